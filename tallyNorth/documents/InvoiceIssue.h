// Printing an invoice: an order without a number is issued first (numbered, rendered and frozen
// in one transaction), then its copies are printed from the frozen INVOICE row. The same path
// serves the order editor, the order list, the command line and the tests.
#pragma once

#include "base/Result.h"
#include "orders/InvoiceNumbering.h"

#include <QCoreApplication>
#include <QDate>
#include <QString>

#include <optional>

class Interaction;
class InvoiceTemplate;
class Report;

// Where the pages go: a PDF file here; a printer or the print preview in the ui library.
class InvoiceOutput
{
public:
    virtual ~InvoiceOutput() = default;
    virtual Result output(const Report& report, const QString& title) = 0;
};

class PdfInvoiceOutput : public InvoiceOutput
{
public:
    explicit PdfInvoiceOutput(QString path) : m_path(std::move(path)) {}
    Result output(const Report& report, const QString& title) override;

private:
    QString m_path;
};

struct InvoicePrintOptions
{
    QDate today = QDate::currentDate(); // the printing date of a new invoice
    // Copies to print; none: the settings' count, asked for when the settings say so.
    std::optional<int> copies;
};

class InvoiceIssue
{
    Q_DECLARE_TR_FUNCTIONS(InvoiceIssue)

public:
    struct Outcome
    {
        IssuedInvoice invoice;
        bool issuedNow = false;
        int copiesPrinted = 0;
    };

    // Issues the order when it has no number yet and prints its copies to output (none: issue
    // only). A cancelled copies question gives a failure with an empty message. A failed print
    // leaves the issued invoice as it is, to be printed again.
    static Result print(qint64 orderId, Interaction& interaction, InvoiceOutput* output,
                        Outcome& outcome, const InvoicePrintOptions& options = {});
    // The sample invoice of the current template, without any order.
    static Result printSample(InvoiceOutput& output);
    // The same with a template not installed yet (the setup window's "Test").
    static Result printSample(InvoiceOutput& output, const InvoiceTemplate& invoiceTemplate);

    // The report of copies of an issued invoice, counted from firstCopyIndex (copies printed
    // before), and its document title.
    static Result buildCopies(qint64 orderId, int firstCopyIndex, int copies, Report& report,
                              QString& title);
};
