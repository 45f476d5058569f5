#include "InvoicePrinting.h"

#include "ReportPrinter.h"

#include "orders/ui/OrderEdit.h"

Result PrinterInvoiceOutput::output(const Report& report, const QString& title)
{
    if (!m_preview)
        return PrintReport(report, m_parent);
    PreviewReport(report, m_parent, title);
    return Result::success();
}

void InstallOrderEditPrinting()
{
    OrderEdit::setInvoicePrinter(
        [](qint64 orderId, bool preview, Interaction& interaction, QWidget* parent) {
            PrinterInvoiceOutput output(preview, parent);
            InvoiceIssue::Outcome outcome;
            return InvoiceIssue::print(orderId, interaction, &output, outcome);
        });
}
