// Issuing under the numbering law: invoice numbers are gapless and never reused, printing dates
// never go backwards, and everything an invoice fixes (number, printing date, local-currency
// totals, paid state, the rendered document) is written in one transaction or not at all.
#pragma once

#include "base/Result.h"

#include <QCoreApplication>
#include <QDate>
#include <QString>
#include <QVariant>

#include <functional>
#include <optional>

// The rendered parts of an invoice as frozen into its INVOICE row at issue.
struct FrozenInvoice
{
    QString header;
    QString body;
    QString footer;
    std::optional<qint64> logoId; // none: no logo printed
    double logoSizePercent = -1e308;
};

// What an issued invoice got.
struct IssuedInvoice
{
    qint64 number = 0;
    QString numberText;
};

// ORDERHEAD_PAID and ORDERHEAD_UNPAID_TOTAL as set at issue.
struct PaidState
{
    bool paid = true;
    double unpaidTotal = 0.0;
};

class InvoiceNumbering
{
    Q_DECLARE_TR_FUNCTIONS(InvoiceNumbering)

public:
    // Builds the document of an order inside the issuing transaction (after the local-currency
    // totals are written), so that a failed rendering numbers nothing.
    using Render = std::function<Result(qint64 orderId, FrozenInvoice& invoice)>;

    // Gives the order the next number with today as its printing date: local-currency totals,
    // rendering, the INVOICE row, the legal date check, the paid state, the order's number and,
    // for a cancelling invoice, the mark on the invoice it cancels. All of it or nothing.
    static Result issue(qint64 orderId, const QDate& today, const Render& render,
                        IssuedInvoice& issued);

    // The largest INVOICE_ID plus one, 1 for the first invoice.
    static Result nextNumber(qint64& number);
    // Refuses a printing date earlier than that of an invoice already numbered: numbers must
    // follow the printing dates.
    static Result checkPrintingDate(const QDate& today, const QString& newNumberText);
    // A payment method not paid on issue leaves the whole gross unpaid; a cancelling invoice is
    // always paid.
    static PaidState paidAtIssue(const QVariant& methodPaid, const QVariant& cancelledInvoiceNo,
                                 double totalGross);

    // The frozen document of an issued order.
    static Result loadFrozen(qint64 orderId, FrozenInvoice& invoice);
    // Counts printed copies after they are printed.
    static Result addPrintedCopies(qint64 orderId, int copies);
    // The order of an invoice number text (ORDERHEAD_INVOICE_NO_STR).
    static Result findInvoice(const QString& numberText, qint64& orderId);
    // The orders of the invoices numbered from one number text's invoice to another's, in
    // number order; the two may come in either order.
    static Result findRange(const QString& fromText, const QString& toText,
                            QList<qint64>& orderIds);
};
