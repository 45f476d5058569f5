#include "RegisterCommands.h"

#include "FileCommands.h"
#include "HelpCommands.h"
#include "MainWindow.h"
#include "SqlErrorDlg.h"

#include "base/ui/GuiInteraction.h"
#include "documents/LabelTranslations.h"
#include "documents/MessageText.h"
#include "documents/ui/ChequeCommands.h"
#include "documents/ui/InvoicePrinting.h"
#include "documents/ui/OrderLabelTranslationBrowse.h"
#include "documents/ui/OrderListPrinting.h"
#include "documents/ui/ReportCommands.h"
#include "masterdata/ui/MasterdataCommands.h"
#include "nav/ui/NavCommands.h"
#include "orders/ui/OrderEditCommands.h"
#include "orders/ui/OrderListCommands.h"
#include "webshop/ui/WebshopCommands.h"

void InstallShellServices()
{
    GuiInteraction::setMessageFormatter(MessageRichText);
    GuiInteraction::setSqlErrorDialog(&SqlErrorDlg::askRetry);
    InstallHelp();
    InstallLabelLoading();
    InstallOrderEditPrinting();
    InstallOrderPrinting();
}

// One line per subsystem: each registers its handlers with MainWindow::setCommand() and its
// lists with MainWindow::setTabPage().
void RegisterCommands(MainWindow& window)
{
    RegisterFileCommands(window);
    RegisterHelpCommands(window);
    RegisterMasterdataCommands(window);
    RegisterLabelTranslationCommand(window);
    RegisterOrderEditCommands(window);
    RegisterOrderList(window);
    RegisterChequeList(window);
    RegisterReportCommands(window);
    RegisterWebshopCommands(window);
    RegisterNavCommands(window);
}

std::unique_ptr<MainWindow> OpenMainWindow()
{
    auto window = std::make_unique<MainWindow>();
    RegisterCommands(*window);
    window->companyChanged();
    window->show();
    return window;
}
