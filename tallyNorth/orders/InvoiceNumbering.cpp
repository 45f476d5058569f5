#include "InvoiceNumbering.h"

#include "ChequeStore.h"
#include "FormatInvoiceNo.h"
#include "OrderCalc.h"
#include "ReportingQueue.h"

#include "Columns.h"
#include "base/DateText.h"
#include "base/MessageArgs.h"
#include "base/SqlStatement.h"
#include "base/SqlTransaction.h"
#include "base/SqlValue.h"

#include <QSqlError>

namespace {

Result DatabaseFailure(const SqlStatement& st)
{
    return st.failure(InvoiceNumbering::tr("Database error:&") + st.errorText());
}

Result OrderChanged()
{
    return Result::failure(InvoiceNumbering::tr("Maybe an other user changed this order."));
}

} // namespace

Result InvoiceNumbering::nextNumber(qint64& number)
{
    SqlStatement st(Sql("select max(%1) from %2", {Col::INVOICE_ID, Tbl::INVOICE}));
    if (!st.exec())
        return DatabaseFailure(st);
    number = st.next() ? ToInteger(st.value(0)) + 1 : 1;
    return Result::success();
}

Result InvoiceNumbering::checkPrintingDate(const QDate& today, const QString& newNumberText)
{
    SqlStatement st(Sql("select %1 from %2 where %3 is not null and %4 > ? order by %3 desc "
                        "limit 1",
                        {Col::ORDERHEAD_INVOICE_NO_STR, Tbl::ORDERHEAD, Col::ORDERHEAD_INVOICE_NO,
                         Col::ORDERHEAD_DATE_CREATED}),
                    {DateToSql(today)});
    if (!st.exec())
        return DatabaseFailure(st);
    if (!st.next())
        return Result::success();
    return Result::failure(
        FillArgs(tr("Printing date of invoice No. %s is in the future.&Printing this invoice with "
                    "No. %s would be against the law."),
                 {st.value(0).toString(), newNumberText}));
}

PaidState InvoiceNumbering::paidAtIssue(const QVariant& methodPaid,
                                        const QVariant& cancelledInvoiceNo, double totalGross)
{
    // Only an explicit "not paid on issue" leaves the invoice unpaid; data fixes wrote 0 as well.
    const bool notPaidOnIssue = !IsNullValue(methodPaid) && ToInteger(methodPaid, -1) == 0;
    if (notPaidOnIssue && IsNullValue(cancelledInvoiceNo))
        return {false, totalGross};
    return {true, 0.0};
}

Result InvoiceNumbering::issue(qint64 orderId, const QDate& today, const Render& render,
                               IssuedInvoice& issued)
{
    SqlTransaction transaction;
    if (!transaction.active())
        return Result::failure(tr("Database error:&") + Database::session().lastError().text());

    if (Result r = CalcLocalCurrencyTotals(orderId); !r)
        return r;

    SqlStatement order(Sql("select %1, %2, %3, %4 from %5 where %6 = ?",
                           {Col::ORDERHEAD_INVOICE_NO, Col::ORDERHEAD_CANCELLED_INVOICE_NO,
                            Col::ORDERHEAD_TOTAL_GROSS, Col::ORDERHEAD_PAYMENTMETHOD_PAID,
                            Tbl::ORDERHEAD, Col::ORDERHEAD_ID}),
                       {orderId});
    if (!order.exec())
        return DatabaseFailure(order);
    if (!order.next())
        return Result::failure(
            tr("Unable to load data from database.&Maybe it is deleted by an other user."));
    if (!IsNullValue(order.value(Col::ORDERHEAD_INVOICE_NO)))
        return OrderChanged();
    const QVariant cancelledNo = order.value(Col::ORDERHEAD_CANCELLED_INVOICE_NO);
    const double totalGross = ToNumber(order.value(Col::ORDERHEAD_TOTAL_GROSS));
    const PaidState paid =
        paidAtIssue(order.value(Col::ORDERHEAD_PAYMENTMETHOD_PAID), cancelledNo, totalGross);
    order.query().finish();

    // The document shows the printing date; it is written before rendering, in the same
    // transaction.
    SqlStatement dated(
        Sql("update %1 set %2 = ?, %3 = coalesce(%3, 0) where %4 = ?",
            {Tbl::ORDERHEAD, Col::ORDERHEAD_DATE_CREATED, Col::ORDERHEAD_TYPE, Col::ORDERHEAD_ID}),
        {DateToSql(today), orderId});
    if (!dated.exec())
        return DatabaseFailure(dated);

    FrozenInvoice frozen;
    if (Result r = render(orderId, frozen); !r)
        return r;

    qint64 number = 0;
    if (Result r = nextNumber(number); !r)
        return r;
    const QString numberText = FormatInvoiceNo(number);

    SqlStatement invoice(
        Sql("insert into %1 (%2, %3, %4, %5, %6, %7, %8) values (?, ?, ?, ?, ?, ?, ?)",
            {Tbl::INVOICE, Col::INVOICE_ID, Col::INVOICE_ORDERHEAD_ID, Col::INVOICE_LOGO_ID,
             Col::INVOICE_LOGO_SIZE_PERCENT, Col::INVOICE_HEADER_QTF, Col::INVOICE_FOOTER_QTF,
             Col::INVOICE_BODY_QTF}),
        {number, orderId, frozen.logoId ? QVariant(*frozen.logoId) : QVariant(),
         frozen.logoSizePercent, frozen.header, frozen.footer, frozen.body});
    if (!invoice.exec())
        return DatabaseFailure(invoice);

    if (Result r = checkPrintingDate(today, numberText); !r)
        return r;

    SqlStatement update(
        Sql("update %1 set %2 = ?, %3 = ?, %4 = ?, %5 = '1', %6 = ?, %7 = ? "
            "where %8 = ? and %2 is null",
            {Tbl::ORDERHEAD, Col::ORDERHEAD_INVOICE_NO, Col::ORDERHEAD_PAID,
             Col::ORDERHEAD_UNPAID_TOTAL, Col::ORDERHEAD_VERIFIED, Col::ORDERHEAD_DATE_CREATED,
             Col::ORDERHEAD_INVOICE_NO_STR, Col::ORDERHEAD_ID}),
        {number, FlagText(paid.paid), paid.unpaidTotal, DateToSql(today), numberText, orderId});
    if (!update.exec())
        return DatabaseFailure(update);
    if (update.numRowsAffected() != 1)
        return OrderChanged();

    if (!IsNullValue(cancelledNo)) {
        // An invoice is cancelled once: a second cancelling invoice finds no row to mark.
        SqlStatement mark(Sql("update %1 set %2 = ?, %3 = ?, %4 = '1', %5 = 0 where %6 = ? and "
                              "%2 is null",
                              {Tbl::ORDERHEAD, Col::ORDERHEAD_CANCELLING_INVOICE_NO,
                               Col::ORDERHEAD_CANCELLING_INVOICE_NO_STR, Col::ORDERHEAD_PAID,
                               Col::ORDERHEAD_UNPAID_TOTAL, Col::ORDERHEAD_INVOICE_NO}),
                          {number, numberText, ToInteger(cancelledNo)});
        if (!mark.exec())
            return DatabaseFailure(mark);
        if (mark.numRowsAffected() != 1)
            return Result::failure(tr("Cancelled invoice can not be cancelled."));
    }

    // The cheque goes with the invoice, so it is made in the same transaction. A cancelling
    // invoice (negative) or a zero total has nothing to collect.
    bool chequeWanted = false;
    if (Result r = ChequeStore::chequeFlag(orderId, chequeWanted); !r)
        return r;
    if (chequeWanted && IsNullValue(cancelledNo) && totalGross > 0) {
        qint64 chequeId = 0;
        if (Result r = ChequeStore::createForInvoice(orderId, today, chequeId); !r)
            return r;
    }
    // The report to the tax authority waits in the same transaction: no number without it.
    if (Result r = ReportingQueue::queue(number, orderId); !r)
        return r;

    if (!transaction.commit())
        return Result::failure(tr("Database error:&") + Database::session().lastError().text());
    issued = {number, numberText};
    return Result::success();
}

Result InvoiceNumbering::loadFrozen(qint64 orderId, FrozenInvoice& invoice)
{
    SqlStatement st(Sql("select %1, %2, %3, %4, %5 from %6 where %7 = ?",
                        {Col::INVOICE_HEADER_QTF, Col::INVOICE_BODY_QTF, Col::INVOICE_FOOTER_QTF,
                         Col::INVOICE_LOGO_ID, Col::INVOICE_LOGO_SIZE_PERCENT, Tbl::INVOICE,
                         Col::INVOICE_ORDERHEAD_ID}),
                    {orderId});
    if (!st.exec())
        return DatabaseFailure(st);
    if (!st.next())
        return Result::failure(tr("The invoice of this order is missing from the database."));
    invoice.header = st.value(Col::INVOICE_HEADER_QTF).toString();
    invoice.body = st.value(Col::INVOICE_BODY_QTF).toString();
    invoice.footer = st.value(Col::INVOICE_FOOTER_QTF).toString();
    const QVariant logoId = st.value(Col::INVOICE_LOGO_ID);
    invoice.logoId = IsNullValue(logoId) ? std::nullopt : std::optional(ToInteger(logoId));
    invoice.logoSizePercent = ToNumber(st.value(Col::INVOICE_LOGO_SIZE_PERCENT), -1e308);
    return Result::success();
}

Result InvoiceNumbering::addPrintedCopies(qint64 orderId, int copies)
{
    SqlStatement st(Sql("update %1 set %2 = coalesce(%2, 0) + ? where %3 = ?",
                        {Tbl::ORDERHEAD, Col::ORDERHEAD_PRINTED_COPIES, Col::ORDERHEAD_ID}),
                    {copies, orderId});
    if (!st.exec())
        return DatabaseFailure(st);
    return Result::success();
}

Result InvoiceNumbering::findInvoice(const QString& numberText, qint64& orderId)
{
    SqlStatement st(Sql("select %1 from %2 where %3 = ? and %4 is not null",
                        {Col::ORDERHEAD_ID, Tbl::ORDERHEAD, Col::ORDERHEAD_INVOICE_NO_STR,
                         Col::ORDERHEAD_INVOICE_NO}),
                    {numberText});
    if (!st.exec())
        return DatabaseFailure(st);
    if (!st.next())
        return Result::failure(FillArgs(tr("There is no invoice with No. %s."), {numberText}));
    orderId = ToInteger(st.value(0));
    return Result::success();
}

namespace {

Result InvoiceNumberOf(const QString& numberText, qint64& number)
{
    SqlStatement st(Sql("select %1 from %2 where %3 = ? and %1 is not null",
                        {Col::ORDERHEAD_INVOICE_NO, Tbl::ORDERHEAD, Col::ORDERHEAD_INVOICE_NO_STR}),
                    {numberText});
    if (!st.exec())
        return DatabaseFailure(st);
    if (!st.next())
        return Result::failure(
            FillArgs(InvoiceNumbering::tr("There is no invoice with No. %s."), {numberText}));
    number = ToInteger(st.value(0));
    return Result::success();
}

} // namespace

Result InvoiceNumbering::findRange(const QString& fromText, const QString& toText,
                                   QList<qint64>& orderIds)
{
    qint64 from = 0;
    qint64 to = 0;
    if (Result r = InvoiceNumberOf(fromText, from); !r)
        return r;
    if (Result r = InvoiceNumberOf(toText, to); !r)
        return r;
    SqlStatement st(Sql("select %1 from %2 where %3 between ? and ? order by %3",
                        {Col::ORDERHEAD_ID, Tbl::ORDERHEAD, Col::ORDERHEAD_INVOICE_NO}),
                    {std::min(from, to), std::max(from, to)});
    if (!st.exec())
        return DatabaseFailure(st);
    orderIds.clear();
    while (st.next())
        orderIds << ToInteger(st.value(0));
    return Result::success();
}
