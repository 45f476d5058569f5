#include "ChequeCommands.h"

#include "ChequeList.h"
#include "ChequePrinter.h"

#include "base/ui/CommandHost.h"
#include "base/ui/GuiInteraction.h"
#include "orders/ChequeStore.h"
#include "orders/ui/OrderPrintHooks.h"

#include <QPointer>

void RegisterChequeList(CommandHost& host)
{
    host.setTabPage(MainTab::Cheques, new ChequeList(host.hostWidget()));
    // The host is the main window: while its widget lives, so does it.
    const QPointer<QWidget> window = host.hostWidget();
    SetChequePrintHook([&host, window](QWidget* parent, const QList<qint64>& orderIds) -> Result {
        QList<qint64> cheques;
        if (Result r = ChequeStore::forInvoices(orderIds, QDate::currentDate(), cheques); !r)
            return r;
        GuiInteraction interaction(parent);
        ChequePrinterOutput output(false, parent);
        int printed = 0;
        const Result r = ChequePrinting::print(ChequePrintMode::SelectedOnly, cheques, output,
                                               interaction, QDate::currentDate(), printed);
        if (window)
            host.reloadTab(MainTab::Cheques);
        return r;
    });
}
