#include "ReportPrinter.h"

#include "documents/Report.h"

#include <QCoreApplication>
#include <QPageLayout>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>

void PreparePrinter(QPrinter& printer, const Report& report)
{
    // Printers know paper upright; a wide page is upright paper turned.
    const QSizeF paper = report.paperSize() / 600.0;
    const bool wide = paper.width() > paper.height();
    const QPageSize size(wide ? paper.transposed() : paper, QPageSize::Inch, QString(),
                         QPageSize::FuzzyMatch);
    const QPageLayout::Orientation orientation =
        wide ? QPageLayout::Landscape : QPageLayout::Portrait;
    printer.setFullPage(true);
    printer.setPageLayout(QPageLayout(size, orientation, QMarginsF()));
}

Result PrintReport(const Report& report, QPrinter& printer)
{
    return report.print(printer);
}

Result PrintReport(const Report& report, QWidget* parent, bool askPrinter)
{
    QPrinter printer(QPrinter::HighResolution);
    PreparePrinter(printer, report);
    if (askPrinter) {
        QPrintDialog dialog(&printer, parent);
        if (dialog.exec() != QDialog::Accepted)
            return Result::success();
    }
    return report.print(printer);
}

std::unique_ptr<QPrintPreviewDialog> MakeReportPreview(const Report& report, QPrinter& printer,
                                                       QWidget* parent, const QString& title)
{
    PreparePrinter(printer, report);
    auto dialog = std::make_unique<QPrintPreviewDialog>(&printer, parent);
    dialog->setWindowTitle(
        title.isEmpty() ? QCoreApplication::translate("ReportPrinter", "Print Preview") : title);
    QObject::connect(dialog.get(), &QPrintPreviewDialog::paintRequested,
                     [&report](QPrinter* p) { (void)report.print(*p); });
    return dialog;
}

void PreviewReport(const Report& report, QWidget* parent, const QString& title)
{
    QPrinter printer(QPrinter::HighResolution);
    const auto dialog = MakeReportPreview(report, printer, parent, title);
    dialog->resize(900, 1000);
    dialog->exec();
}
