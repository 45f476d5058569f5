// The invoice on a printer or in the print preview, for the order editor's "Print" and
// "Print Preview".
#pragma once

#include "documents/InvoiceIssue.h"

class QWidget;

class PrinterInvoiceOutput : public InvoiceOutput
{
public:
    PrinterInvoiceOutput(bool preview, QWidget* parent) : m_preview(preview), m_parent(parent) {}
    Result output(const Report& report, const QString& title) override;

private:
    bool m_preview;
    QWidget* m_parent;
};

// Lets the order editor issue and print through InvoiceIssue.
void InstallOrderEditPrinting();
