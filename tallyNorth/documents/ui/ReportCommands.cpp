#include "ReportCommands.h"

#include "ReportDlg.h"

#include "base/ui/CommandHost.h"

void RegisterReportCommands(CommandHost& host)
{
    const std::pair<MainCommand, ReportKind> reports[] = {
        {MainCommand::OutgoingInvoices, ReportKind::Invoices},
        {MainCommand::OutgoingInvoiceItems, ReportKind::InvoiceItems},
        {MainCommand::CustomersReport, ReportKind::Customers},
        {MainCommand::ProductsSoldReport, ReportKind::ProductsSold},
        {MainCommand::ReceivablesByInvoices, ReportKind::ReceivablesByInvoices},
        {MainCommand::ReceivablesByPartners, ReportKind::ReceivablesByPartners},
    };
    for (const auto& [command, kind] : reports)
        host.setCommand(command, [&host, kind] { ReportDlg::open(kind, host.hostWidget()); });
}
