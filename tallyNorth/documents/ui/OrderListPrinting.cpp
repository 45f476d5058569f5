#include "OrderListPrinting.h"

#include "ReportPrinter.h"

#include "base/ui/GuiInteraction.h"
#include "documents/InvoiceIssue.h"
#include "documents/Report.h"
#include "orders/ui/OrderPrintHooks.h"

#include <QCoreApplication>
#include <QPrintDialog>
#include <QPrinter>

namespace {

// One printer for the whole selection, chosen once before the first invoice.
class PrinterOutput : public InvoiceOutput
{
public:
    explicit PrinterOutput(QWidget* parent) : m_parent(parent) {}

    Result output(const Report& report, const QString& title) override
    {
        PreparePrinter(m_printer, report);
        if (!m_asked) {
            QPrintDialog dialog(&m_printer, m_parent);
            if (dialog.exec() != QDialog::Accepted)
                return Result::failure(QString());
            m_asked = true;
        }
        m_printer.setDocName(title);
        return PrintReport(report, m_printer);
    }

private:
    QWidget* m_parent;
    QPrinter m_printer{QPrinter::HighResolution};
    bool m_asked = false;
};

Result PrintOrders(QWidget* parent, const QList<qint64>& ids)
{
    GuiInteraction interaction(parent);
    PrinterOutput output(parent);
    for (qint64 id : ids) {
        InvoiceIssue::Outcome outcome;
        if (Result r = InvoiceIssue::print(id, interaction, &output, outcome); !r)
            return r;
    }
    return Result::success();
}

Result PreviewOrder(QWidget* parent, qint64 id)
{
    Report report;
    QString title;
    if (Result r = InvoiceIssue::buildCopies(id, 0, 1, report, title); !r)
        return r;
    PreviewReport(report, parent, title);
    return Result::success();
}

} // namespace

void InstallOrderPrinting()
{
    SetOrderPrintHooks({&PrintOrders, &PreviewOrder});
}
