#include "HelpCommands.h"

#include "DatabaseSelectDlg.h"
#include "HelpWindow.h"

#include "base/ui/CommandHost.h"
#include "base/ui/HelpLink.h"
#include "masterdata/ui/RecordBrowse.h"

void InstallHelp()
{
    SetHelpOpener(&HelpWindow::open);
    DatabaseSelectDlg::setHelpHandler(&HelpWindow::open);
    RecordBrowse::setHelpOpener(&HelpWindow::open);
}

void RegisterHelpCommands(CommandHost& host)
{
    host.setCommand(MainCommand::HelpTopics,
                    [&host] { HelpWindow::open(host.hostWidget(), QStringLiteral("Bevezetes")); });
    host.setCommand(MainCommand::Declaration, [&host] {
        HelpWindow::open(host.hostWidget(), QStringLiteral("Nyilatkozat"));
    });
    host.setCommand(MainCommand::About, [&host] { HelpWindow::about(host.hostWidget()); });
}
