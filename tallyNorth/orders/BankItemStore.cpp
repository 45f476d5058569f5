#include "BankItemStore.h"

#include "ConvertOrderType.h"

#include "Columns.h"
#include "base/DateText.h"
#include "base/MessageArgs.h"
#include "base/SqlStatement.h"
#include "base/SqlTransaction.h"
#include "base/SqlValue.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

// Amounts from here on no longer fit the columns' precision of whole money.
constexpr double kLargestAmount = 1e12;

// Reads "1234,5", "1234.5" and "1 234,5" alike, as the number fields do.
std::optional<double> ReadNumber(QString text)
{
    text.remove(QRegularExpression(QStringLiteral("[\\s\\x{00A0}\\x{202F}]")));
    text.replace(u',', u'.');
    bool ok = false;
    const double value = text.toDouble(&ok);
    return ok && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

} // namespace

Result BankItemStore::loadInvoice(qint64 orderId, BankItemInvoice& invoice)
{
    SqlStatement st(
        Sql("select %1, %2, %3, %4, %5, %6, %7, %8, %9, %10 from %11 where %12 = ?",
            {Col::ORDERHEAD_INVOICE_NO, Col::ORDERHEAD_INVOICE_NO_STR,
             Col::ORDERHEAD_CURRENCY_ABBREVIATION, Col::ORDERHEAD_TOTAL_GROSS, Col::ORDERHEAD_PAID,
             Col::ORDERHEAD_UNPAID_TOTAL, Col::ORDERHEAD_TYPE, Col::ORDERHEAD_CANCELLING_INVOICE_NO,
             Col::ORDERHEAD_CANCELLING_INVOICE_NO_STR,
             Col::ORDERHEAD_CURRENCY_INVOICE_TOTAL_PRINTING_DECIMALS, Tbl::ORDERHEAD,
             Col::ORDERHEAD_ID}),
        {orderId});
    if (!st.exec() || !st.next())
        return st.failure(tr("Unable to load invoice data from database."));
    if (IsNullValue(st.value(Col::ORDERHEAD_INVOICE_NO)))
        return Result::failure(tr("Only an issued invoice can be paid. This order has no "
                                  "invoice number yet."));
    if (ToInteger(st.value(Col::ORDERHEAD_TYPE)) == int(OrderType::CancellingInvoice))
        return Result::failure(tr("A cancelling invoice can not be paid."));
    if (!IsNullValue(st.value(Col::ORDERHEAD_CANCELLING_INVOICE_NO)))
        return Result::failure(
            FillArgs(tr("This invoice is cancelled by %s, it can not be paid."),
                     {st.value(Col::ORDERHEAD_CANCELLING_INVOICE_NO_STR).toString()}));
    invoice.orderId = orderId;
    invoice.invoiceNo = ToInteger(st.value(Col::ORDERHEAD_INVOICE_NO));
    invoice.invoiceNoStr = st.value(Col::ORDERHEAD_INVOICE_NO_STR).toString();
    invoice.currency = st.value(Col::ORDERHEAD_CURRENCY_ABBREVIATION).toString();
    invoice.totalGross = ToNumber(st.value(Col::ORDERHEAD_TOTAL_GROSS));
    invoice.paid = IsFlagSet(st.value(Col::ORDERHEAD_PAID));
    invoice.unpaidTotal = ToNumber(st.value(Col::ORDERHEAD_UNPAID_TOTAL));
    invoice.decimals = int(std::clamp<qint64>(
        ToInteger(st.value(Col::ORDERHEAD_CURRENCY_INVOICE_TOTAL_PRINTING_DECIMALS), 2), 0, 6));
    return Result::success();
}

Result BankItemStore::parseAmount(const QString& text, double& amount)
{
    if (text.trimmed().isEmpty())
        return Result::failure(tr("Bank Paid Total field must have a value."));
    const std::optional<double> value = ReadNumber(text);
    if (!value)
        return Result::failure(
            FillArgs(tr("\"%s\" is not an amount. Type digits, with a decimal comma or point."),
                     {text.trimmed()}));
    amount = *value;
    return Result::success();
}

Result BankItemStore::checkItem(const BankItem& item)
{
    if (!item.transferDate.isValid())
        return Result::failure(tr("Bankitem Transfer Date mustn't not be empty."));
    if (!std::isfinite(item.paidTotal) || item.paidTotal == 0.0)
        return Result::failure(tr("Bank Paid Total field must have a value."));
    if (std::abs(item.paidTotal) >= kLargestAmount)
        return Result::failure(tr("The paid total is too large."));
    return Result::success();
}

double BankItemStore::remaining(double unpaid, double paid)
{
    const double rest = unpaid - paid;
    return std::abs(rest) < kTolerance ? 0.0 : rest;
}

Result BankItemStore::add(BankItemInvoice& invoice, BankItem& item)
{
    if (Result r = checkItem(item); !r)
        return r;

    SqlTransaction transaction;
    SqlStatement insert(
        Sql("insert into %1 (%2, %3, %4, %5, %6, %7, %8) values (?, ?, ?, ?, ?, ?, ?)",
            {Tbl::BANKITEM, Col::BANKITEM_ORDERHEAD_ID, Col::BANKITEM_INVOICE_NO,
             Col::BANKITEM_INVOICE_NO_STR, Col::BANKITEM_TRANSFER_DATE, Col::BANKITEM_PAID_TOTAL,
             Col::BANKITEM_RECORD_NO, Col::BANKITEM_COMMENT}),
        {invoice.orderId, invoice.invoiceNo, invoice.invoiceNoStr, DateToSql(item.transferDate),
         item.paidTotal, item.recordNo, item.comment});
    if (!insert.exec())
        return insert.failure(tr("Unable to insert bank item.") + u'&' + tr("Database error:&") +
                              insert.errorText());
    const qint64 id = insert.lastInsertId().toLongLong();

    // From the unpaid total the user saw, so the message and the stored state agree.
    const double rest = remaining(invoice.unpaidTotal, item.paidTotal);
    const bool paid = rest == 0.0;
    SqlStatement update(
        Sql("update %1 set %2 = ?, %3 = ? where %4 = ?",
            {Tbl::ORDERHEAD, Col::ORDERHEAD_PAID, Col::ORDERHEAD_UNPAID_TOTAL, Col::ORDERHEAD_ID}),
        {FlagText(paid), rest, invoice.orderId});
    if (!update.exec())
        return update.failure(tr("Can't create bank item in database.") + u'&' +
                              tr("Database error:&") + update.errorText());
    if (update.numRowsAffected() != 1)
        return Result::failure(tr("Can't create bank item in database.") + u'&' +
                               tr("Unable to load invoice data from database."));
    if (!transaction.commit())
        return Result::failure(tr("Can't create bank item in database.") + u'&' +
                               tr("Database error:&") + transaction.errorText());
    item.id = id;
    invoice.paid = paid;
    invoice.unpaidTotal = rest;
    return Result::success();
}

Result BankItemStore::list(qint64 orderId, QList<BankItem>& items)
{
    items.clear();
    SqlStatement st(Sql("select %1, %2, %3, %4, %5 from %6 where %7 = ? order by %3, %1",
                        {Col::BANKITEM_ID, Col::BANKITEM_RECORD_NO, Col::BANKITEM_TRANSFER_DATE,
                         Col::BANKITEM_PAID_TOTAL, Col::BANKITEM_COMMENT, Tbl::BANKITEM,
                         Col::BANKITEM_ORDERHEAD_ID}),
                    {orderId});
    if (!st.exec())
        return st.failure(tr("Database error:&") + st.errorText());
    while (st.next()) {
        BankItem item;
        item.id = ToInteger(st.value(Col::BANKITEM_ID));
        item.recordNo = st.value(Col::BANKITEM_RECORD_NO).toString();
        item.transferDate = DateFromSql(st.value(Col::BANKITEM_TRANSFER_DATE));
        item.paidTotal = ToNumber(st.value(Col::BANKITEM_PAID_TOTAL));
        item.comment = st.value(Col::BANKITEM_COMMENT).toString();
        items << item;
    }
    return Result::success();
}
