#include "NavCommands.h"

#include "NavSetupPage.h"

#include "base/ui/CommandHost.h"
#include "base/ui/GuiInteraction.h"
#include "nav/NavReporter.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QVBoxLayout>

namespace {

void EditSettings(CommandHost& host)
{
    GuiInteraction interaction(host.hostWidget());
    QDialog dialog(host.hostWidget());
    dialog.setWindowTitle(
        QCoreApplication::translate("NavCommands", "NAV online invoice settings"));
    auto* page = new NavSetupPage(&dialog);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(page);
    layout->addWidget(buttons);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, [&] {
        if (Result r = page->save(); !r)
            return interaction.message(Interaction::MessageKind::Error, r.message());
        dialog.accept();
    });
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    if (Result r = page->load(); !r)
        return interaction.message(Interaction::MessageKind::Error, r.message());
    dialog.exec();
}

void Report(CommandHost& host)
{
    GuiInteraction interaction(host.hostWidget());
    NavReportOutcome outcome;
    Result r = Result::success();
    {
        const auto progress = interaction.progress(
            QCoreApplication::translate("NavCommands", "Reporting invoices to NAV. Please wait."));
        QApplication::setOverrideCursor(Qt::WaitCursor);
        r = NavReporter::run({}, outcome, progress.get());
        QApplication::restoreOverrideCursor();
    }
    host.reloadTab(MainTab::Orders);
    if (!r)
        return interaction.message(Interaction::MessageKind::Error, r.message());
    QString text =
        QCoreApplication::translate(
            "NavCommands", "Sent: %1&Accepted: %2&Accepted with warnings: %3&Rejected: %4&Waiting "
                           "for a later try: %5")
            .arg(outcome.sent)
            .arg(outcome.accepted)
            .arg(outcome.warnings)
            .arg(outcome.rejected)
            .arg(outcome.stillWaiting);
    if (outcome.stopped)
        text += u'&' + QCoreApplication::translate("NavCommands",
                                                   "Stopped: the rest is sent at the next report.");
    // A rejected invoice is shown with the authority's message.
    if (!outcome.problems.isEmpty())
        text += u'&' + outcome.problems.join(u'&');
    interaction.message(outcome.problems.isEmpty() ? Interaction::MessageKind::Info
                                                   : Interaction::MessageKind::Exclamation,
                        text);
}

} // namespace

void RegisterNavCommands(CommandHost& host)
{
    host.setCommand(MainCommand::NavSetup, [&host] { EditSettings(host); });
    host.setCommand(MainCommand::NavReport, [&host] { Report(host); });
}
