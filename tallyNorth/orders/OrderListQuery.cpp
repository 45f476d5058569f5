#include "OrderListQuery.h"

#include "Columns.h"
#include "base/DateText.h"
#include "base/FoldName.h"
#include "base/MessageArgs.h"
#include "base/SqlStatement.h"
#include "base/SqlValue.h"

#include <QSqlRecord>

namespace {

// The predicate of each kind. Paid state and due dates only mean something on an issued invoice,
// so the last two kinds take numbered orders only; "verified" lists what is ready for issuing.
std::optional<QString> KindCondition(int kind, QVariantList& binds, const QDate& today)
{
    using Kind = OrderListFilter::Kind;
    switch (Kind(kind)) {
    case Kind::NotPrinted:
        return Sql("coalesce(%1, 0) = 0", {Col::ORDERHEAD_PRINTED_COPIES});
    case Kind::Printed:
        return Sql("%1 > 0", {Col::ORDERHEAD_PRINTED_COPIES});
    case Kind::Unverified:
        return Sql("coalesce(%1, '0') <> '1'", {Col::ORDERHEAD_VERIFIED});
    case Kind::Verified:
        return Sql("%1 = '1' and %2 is null", {Col::ORDERHEAD_VERIFIED, Col::ORDERHEAD_INVOICE_NO});
    case Kind::CancelInvoices:
        return Sql("%1 = 1", {Col::ORDERHEAD_TYPE});
    case Kind::Cancelled:
        return Sql("%1 is not null and %2 is not null",
                   {Col::ORDERHEAD_CANCELLING_INVOICE_NO, Col::ORDERHEAD_INVOICE_NO});
    case Kind::Unpaid:
        return Sql("%1 is not null and coalesce(%2, '0') <> '1'",
                   {Col::ORDERHEAD_INVOICE_NO, Col::ORDERHEAD_PAID});
    case Kind::Overdue:
        binds << DateToSql(today);
        return Sql(
            "%1 is not null and coalesce(%2, '0') <> '1' and %3 < ?",
            {Col::ORDERHEAD_INVOICE_NO, Col::ORDERHEAD_PAID, Col::ORDERHEAD_DATE_PAYMENT_DUE});
    case Kind::NotAccepted:
        // Invoices issued before the program reported have no queue row and are left out.
        return Sql("%1 in (select TN_NAV_QUEUE_INVOICE_NO from TN_NAV_QUEUE where "
                   "TN_NAV_QUEUE_STATE not in (2, 3))",
                   {Col::ORDERHEAD_INVOICE_NO});
    }
    return std::nullopt;
}

// column >= from and column <= to, each bound only when given.
QString Range(const char* column, const QDate& from, const QDate& to, QVariantList& binds)
{
    QStringList parts;
    if (from.isValid()) {
        parts << Sql("%1 >= ?", {column});
        binds << DateToSql(from);
    }
    if (to.isValid()) {
        parts << Sql("%1 <= ?", {column});
        binds << DateToSql(to);
    }
    return parts.join(QLatin1String(" and "));
}

} // namespace

Result OrderListQuery::load(const OrderListFilter& filter, QList<OrderListRow>& rows, bool& more,
                            const QDate& today)
{
    rows.clear();
    more = false;
    QStringList where;
    QVariantList binds;
    if (filter.kind) {
        const std::optional<QString> condition = KindCondition(*filter.kind, binds, today);
        if (!condition)
            return Result::failure(tr("Unsupported kind selected"));
        where << *condition;
    }
    if (filter.from.isValid() || filter.to.isValid()) {
        switch (filter.dateField) {
        case OrderListFilter::DateField::Shipped: {
            // A consolidated invoice ships on its items' dates: an order matches through them too.
            const QString head = Range(Col::ORDERHEAD_DATE_SHIPPED, filter.from, filter.to, binds);
            const QString items = Range(Col::ORDERITEM_DATE_SHIPPED, filter.from, filter.to, binds);
            where << u'(' + head +
                         Sql(" or %1 in (select %2 from %3 where ",
                             {Col::ORDERHEAD_ID, Col::ORDERITEM_ORDERHEAD_ID, Tbl::ORDERITEM}) +
                         items + QLatin1String("))");
            break;
        }
        case OrderListFilter::DateField::Created:
            where << Range(Col::ORDERHEAD_DATE_CREATED, filter.from, filter.to, binds);
            break;
        case OrderListFilter::DateField::PaymentDue:
            where << Range(Col::ORDERHEAD_DATE_PAYMENT_DUE, filter.from, filter.to, binds);
            break;
        }
    }
    if (!filter.partner.trimmed().isEmpty()) {
        // A range on the folded name rather than "like": the name's index serves a range, while
        // "like" (case-insensitive) would walk every order.
        const QString prefix = FoldName(filter.partner.trimmed());
        where << Sql("%1 >= ? and %1 < ?", {Col::ORDERHEAD_PARTNER_NAME_ASCII});
        binds << QVariant(prefix) << QVariant(prefix + QChar(0xFFFF));
    }
    // Only the columns the list shows.
    static constexpr const char* kColumns[] = {
        Col::ORDERHEAD_ID,
        Col::ORDERHEAD_CODE,
        Col::ORDERHEAD_INVOICE_NO_STR,
        Col::ORDERHEAD_PARTNER_NAME,
        Col::ORDERHEAD_DATE_SHIPPED,
        Col::ORDERHEAD_DATE_CREATED,
        Col::ORDERHEAD_DATE_PAYMENT_DUE,
        Col::ORDERHEAD_CURRENCY_ABBREVIATION,
        Col::ORDERHEAD_TOTAL_NET,
        Col::ORDERHEAD_TOTAL_VAT,
        Col::ORDERHEAD_TOTAL_GROSS,
        Col::ORDERHEAD_UNPAID_TOTAL,
        Col::ORDERHEAD_PAYMENTMETHOD_NAME,
        Col::ORDERHEAD_TYPE,
        Col::ORDERHEAD_VERIFIED,
        Col::ORDERHEAD_INVOICE_NO,
        Col::ORDERHEAD_CANCELLING_INVOICE_NO,
        Col::ORDERHEAD_CONSOLIDATED_INVOICE,
        Col::ORDERHEAD_CURRENCY_INVOICE_TOTAL_PRINTING_DECIMALS,
        // The reporting state, found by the queue's key.
        "(select TN_NAV_QUEUE_STATE from TN_NAV_QUEUE where TN_NAV_QUEUE_INVOICE_NO = "
        "ORDERHEAD_INVOICE_NO) as NAV_STATE",
        "(select TN_NAV_QUEUE_MESSAGES from TN_NAV_QUEUE where TN_NAV_QUEUE_INVOICE_NO = "
        "ORDERHEAD_INVOICE_NO) as NAV_MESSAGES",
    };
    QStringList columns;
    for (const char* column : kColumns)
        columns << QLatin1StringView(column);
    QString text = QLatin1String("select ") + columns.join(QLatin1String(", ")) +
                   Sql(" from %1", {Tbl::ORDERHEAD});
    if (!where.isEmpty())
        text += QLatin1String(" where ") + where.join(QLatin1String(" and "));
    text += Sql(" order by %1 desc", {Col::ORDERHEAD_ID});
    if (filter.limit > 0) {
        text += QLatin1String(" limit ?");
        binds << filter.limit + 1;
    }
    SqlStatement st(text, binds);
    st.query().setForwardOnly(true);
    if (!st.exec())
        return st.failure(
            FillArgs(tr("Hiba: Szamlak lekerdezese nem sikerult&%s"), {st.errorText()}));
    if (filter.limit > 0)
        rows.reserve(filter.limit);
    // Each column's place is looked up by its name once, not on every row: a row of the list
    // costs little more than the bare query's.
    const QSqlRecord record = st.query().record();
    const auto place = [&record](const char* column) {
        return record.indexOf(QLatin1StringView(column));
    };
    const int id = place(Col::ORDERHEAD_ID), code = place(Col::ORDERHEAD_CODE),
              invoiceNoStr = place(Col::ORDERHEAD_INVOICE_NO_STR),
              partnerName = place(Col::ORDERHEAD_PARTNER_NAME),
              dateShipped = place(Col::ORDERHEAD_DATE_SHIPPED),
              dateCreated = place(Col::ORDERHEAD_DATE_CREATED),
              datePaymentDue = place(Col::ORDERHEAD_DATE_PAYMENT_DUE),
              currency = place(Col::ORDERHEAD_CURRENCY_ABBREVIATION),
              totalNet = place(Col::ORDERHEAD_TOTAL_NET),
              totalVat = place(Col::ORDERHEAD_TOTAL_VAT),
              totalGross = place(Col::ORDERHEAD_TOTAL_GROSS),
              unpaidTotal = place(Col::ORDERHEAD_UNPAID_TOTAL),
              paymentMethod = place(Col::ORDERHEAD_PAYMENTMETHOD_NAME),
              type = place(Col::ORDERHEAD_TYPE), verified = place(Col::ORDERHEAD_VERIFIED),
              invoiceNo = place(Col::ORDERHEAD_INVOICE_NO),
              cancellingNo = place(Col::ORDERHEAD_CANCELLING_INVOICE_NO),
              consolidated = place(Col::ORDERHEAD_CONSOLIDATED_INVOICE),
              printingDecimals = place(Col::ORDERHEAD_CURRENCY_INVOICE_TOTAL_PRINTING_DECIMALS),
              navState = place("NAV_STATE"), navMessages = place("NAV_MESSAGES");
    while (st.next()) {
        if (filter.limit > 0 && rows.size() == filter.limit) {
            more = true;
            break;
        }
        OrderListRow row;
        row.id = ToInteger(st.value(id));
        row.code = st.value(code).toString();
        row.invoiceNoStr = st.value(invoiceNoStr).toString();
        row.partnerName = st.value(partnerName).toString();
        row.dateShipped = DateFromSql(st.value(dateShipped));
        row.dateCreated = DateFromSql(st.value(dateCreated));
        row.datePaymentDue = DateFromSql(st.value(datePaymentDue));
        row.currency = st.value(currency).toString();
        row.totalNet = ToNumber(st.value(totalNet));
        row.totalVat = ToNumber(st.value(totalVat));
        row.totalGross = ToNumber(st.value(totalGross));
        row.unpaidTotal = ToNumber(st.value(unpaidTotal));
        row.paymentMethod = st.value(paymentMethod).toString();
        row.kind = ConvertOrderType(st.value(type), st.value(verified), st.value(invoiceNo),
                                    st.value(cancellingNo), st.value(consolidated));
        row.printingDecimals = int(ToInteger(st.value(printingDecimals)));
        row.verified = IsFlagSet(st.value(verified));
        if (!IsNullValue(st.value(navState)))
            row.reportState = int(ToInteger(st.value(navState)));
        row.reportMessages = st.value(navMessages).toString();
        rows << row;
    }
    return Result::success();
}

QString OrderListQuery::moreMessage()
{
    return tr("There are more matching orders then displayed. Try more specific filter.");
}
