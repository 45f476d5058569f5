// An invoice document from the template set: the order's values put into the fourteen pieces,
// joined into a page header, a body and a page footer. Rendered once at issue and frozen into
// the INVOICE row; each printed copy only fills its own marks (title, copy number, invoice
// number, logo) into the frozen texts.
#pragma once

#include "base/Result.h"
#include "orders/InvoiceNumbering.h"

#include <QCoreApplication>
#include <QList>
#include <QSqlRecord>
#include <QVariant>

class InvoiceTemplate;
class LabelTranslations;
class Report;

// Everything the renderer reads: the order's row and its items with every column, and the
// settings record.
struct InvoiceData
{
    QSqlRecord head;
    QList<QSqlRecord> items;
    QSqlRecord setup;
    int localPrintingDecimals = 0; // of the forint, for the local-currency totals
    bool sample = false;
};

class InvoiceRender
{
    Q_DECLARE_TR_FUNCTIONS(InvoiceRender)

public:
    // The order and its items as stored (items by ORDERITEM_ID, or by shipping date and VAT
    // name for a consolidated invoice).
    static Result load(qint64 orderId, InvoiceData& data);
    // A made-up forint order for the sample invoice of the current template.
    static Result loadSample(InvoiceData& data);

    // Header, body and footer; every inserted value is escaped, so data never reads as
    // formatting. The per-copy placeholders stay in the texts for PrintCopy().
    static Result render(const InvoiceData& data, const InvoiceTemplate& invoiceTemplate,
                         const LabelTranslations& labels, FrozenInvoice& invoice);
};

// Loads and renders one order, with the logo settings of the moment checked.
Result RenderInvoice(qint64 orderId, const InvoiceTemplate& invoiceTemplate,
                     const LabelTranslations& labels, FrozenInvoice& invoice);

// "Számla", "Gyűjtőszámla" or "Sztornó számla", " (másolat)" from the second copy on, and the
// title in the partner's language beside it.
QString InvoiceTitle(int type, int copyIndex, bool consolidated, const QVariant& language,
                     const LabelTranslations& labels);
// "1. (eredeti)" for the original, "2." for the later copies.
QString InvoiceCopyMark(int copyNumber, const QVariant& language, const LabelTranslations& labels);

// One printed copy of a frozen invoice.
struct InvoiceCopy
{
    int type = 0;
    bool consolidated = false;
    int copyIndex = 0; // copies printed before this one; 0 is the original
    QVariant language;
    QString numberText;
    bool sample = false;
};

// Fills the copy's marks into the frozen texts and sets them as the current section of report
// (call newSection() between copies). Fails when the logo is not a picture.
Result PrintCopy(Report& report, const FrozenInvoice& invoice, const InvoiceCopy& copy,
                 const LabelTranslations& labels);
