// A Report on a printer and in the print preview window.
#pragma once

#include "base/Result.h"

#include <QString>

#include <memory>

class QPrinter;
class QPrintPreviewDialog;
class QWidget;
class Report;

// Sets the printer's paper to the report's (no margins: the report centres its own area).
void PreparePrinter(QPrinter& printer, const Report& report);
Result PrintReport(const Report& report, QPrinter& printer);
// Asks for a printer first when askPrinter is set; a cancelled dialog prints nothing and
// counts as success.
Result PrintReport(const Report& report, QWidget* parent, bool askPrinter = true);

// The preview window over the report (which must outlive it), not yet shown; it prints from
// its own toolbar.
std::unique_ptr<QPrintPreviewDialog> MakeReportPreview(const Report& report, QPrinter& printer,
                                                       QWidget* parent, const QString& title);
void PreviewReport(const Report& report, QWidget* parent, const QString& title = QString());
