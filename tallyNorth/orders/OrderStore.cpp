#include "OrderStore.h"

#include "ConvertOrderType.h"
#include "OrderFill.h"

#include "Columns.h"
#include "base/DateText.h"
#include "base/FoldName.h"
#include "base/MessageArgs.h"
#include "base/SqlStatement.h"
#include "base/SqlTransaction.h"
#include "base/SqlValue.h"

#include <QSqlError>

#include <variant>

namespace {

// One column and the member that holds it; every column is read and written by its name.
template <class Row> struct Binding
{
    const char* column;
    std::variant<QString Row::*, bool Row::*, double Row::*, int Row::*, qint64 Row::*,
                 QDate Row::*, std::optional<qint64> Row::*, std::optional<int> Row::*,
                 std::optional<double> Row::*>
        member;
};

template <class... F> struct Overload : F...
{
    using F::operator()...;
};
template <class... F> Overload(F...) -> Overload<F...>;

template <class Row> void ReadField(Row& row, const Binding<Row>& b, const QVariant& v)
{
    std::visit(Overload{
                   [&](QString Row::*m) { row.*m = IsNullValue(v) ? QString() : v.toString(); },
                   [&](bool Row::*m) { row.*m = IsFlagSet(v); },
                   [&](double Row::*m) { row.*m = ToNumber(v); },
                   [&](int Row::*m) { row.*m = int(ToInteger(v)); },
                   [&](qint64 Row::*m) { row.*m = ToInteger(v); },
                   [&](QDate Row::*m) { row.*m = DateFromSql(v); },
                   [&](std::optional<qint64> Row::*m) {
                       row.*m = IsNullValue(v) ? std::nullopt : std::optional(ToInteger(v));
                   },
                   [&](std::optional<int> Row::*m) {
                       row.*m = IsNullValue(v) ? std::nullopt : std::optional(int(ToInteger(v)));
                   },
                   [&](std::optional<double> Row::*m) {
                       row.*m = IsNullValue(v) ? std::nullopt : std::optional(ToNumber(v));
                   },
               },
               b.member);
}

template <class T> QVariant OrNull(const std::optional<T>& v)
{
    return v ? QVariant::fromValue(*v) : QVariant();
}

// Empty texts are stored as NULL: the code columns are unique, and NULL reads as empty anyway.
template <class Row> QVariant WriteField(const Row& row, const Binding<Row>& b)
{
    return std::visit(
        Overload{
            [&](QString Row::*m) { return (row.*m).isEmpty() ? QVariant() : QVariant(row.*m); },
            [&](bool Row::*m) { return QVariant(FlagText(row.*m)); },
            [&](double Row::*m) { return QVariant(row.*m); },
            [&](int Row::*m) { return QVariant(row.*m); },
            [&](qint64 Row::*m) { return QVariant(row.*m); },
            [&](QDate Row::*m) {
                return (row.*m).isValid() ? QVariant(DateToSql(row.*m)) : QVariant();
            },
            [&](std::optional<qint64> Row::*m) { return OrNull(row.*m); },
            [&](std::optional<int> Row::*m) { return OrNull(row.*m); },
            [&](std::optional<double> Row::*m) { return OrNull(row.*m); },
        },
        b.member);
}

using OrderBinding = Binding<Order>;
using ItemBinding = Binding<OrderItem>;

// ORDERHEAD's columns but the key, the folded name and the seven totals, which are written apart.
const QList<OrderBinding>& OrderColumns()
{
    static const QList<OrderBinding> columns = {
        {Col::ORDERHEAD_CODE, &Order::code},
        {Col::ORDERHEAD_PARTNER_ID, &Order::partnerId},
        {Col::ORDERHEAD_PARTNER_CODE, &Order::partnerCode},
        {Col::ORDERHEAD_PARTNER_NAME, &Order::partnerName},
        {Col::ORDERHEAD_PARTNER_ZIP, &Order::partnerZip},
        {Col::ORDERHEAD_PARTNER_CITY, &Order::partnerCity},
        {Col::ORDERHEAD_PARTNER_ADDRESS, &Order::partnerAddress},
        {Col::ORDERHEAD_PARTNER_TAX_NO, &Order::partnerTaxNo},
        {Col::ORDERHEAD_PARTNER_EU_TAX_NO, &Order::partnerEuTaxNo},
        {Col::ORDERHEAD_PARTNER_COUNTRY_ID, &Order::partnerCountryId},
        {Col::ORDERHEAD_PARTNER_COUNTRY_INTERNATIONAL_CODE, &Order::partnerCountryCode},
        {Col::ORDERHEAD_PARTNER_COUNTRY_NAME, &Order::partnerCountryName},
        {Col::ORDERHEAD_PARTNER_COUNTRY_NAME_ON_MAILS, &Order::partnerCountryNameOnMails},
        {Col::ORDERHEAD_PARTNER_LANG_ID, &Order::langId},
        {Col::ORDERHEAD_PARTNER_LANG_CODE, &Order::langCode},
        {Col::ORDERHEAD_PARTNER_OTHER_DATA, &Order::partnerOtherData},
        {Col::ORDERHEAD_PARTNER_MAIL_IS_SAME, &Order::mailIsSame},
        {Col::ORDERHEAD_PARTNER_MAIL_NAME, &Order::mailName},
        {Col::ORDERHEAD_PARTNER_MAIL_ZIP, &Order::mailZip},
        {Col::ORDERHEAD_PARTNER_MAIL_CITY, &Order::mailCity},
        {Col::ORDERHEAD_PARTNER_MAIL_ADDRESS, &Order::mailAddress},
        {Col::ORDERHEAD_PARTNER_MAIL_COUNTRY_ID, &Order::mailCountryId},
        {Col::ORDERHEAD_PARTNER_MAIL_COUNTRY_INTERNATIONAL_CODE, &Order::mailCountryCode},
        {Col::ORDERHEAD_PARTNER_MAIL_COUNTRY_NAME, &Order::mailCountryName},
        {Col::ORDERHEAD_PARTNER_MAIL_COUNTRY_NAME_ON_MAILS, &Order::mailCountryNameOnMails},
        {Col::ORDERHEAD_PAYMENTMETHOD_ID, &Order::paymentMethodId},
        {Col::ORDERHEAD_PAYMENTMETHOD_CODE, &Order::paymentMethodCode},
        {Col::ORDERHEAD_PAYMENTMETHOD_NAME, &Order::paymentMethodName},
        {Col::ORDERHEAD_PAYMENTMETHOD_NAME_TRANSLATION, &Order::paymentMethodNameTranslation},
        {Col::ORDERHEAD_PAYMENTMETHOD_PAID, &Order::paymentMethodPaid},
        {Col::ORDERHEAD_PAYMENTMETHOD_ROUND_TO_5, &Order::roundTo5},
        {Col::ORDERHEAD_DATE_SHIPPED, &Order::dateShipped},
        {Col::ORDERHEAD_DATE_CREATED, &Order::dateCreated},
        {Col::ORDERHEAD_DATE_PAYMENT_DUE, &Order::datePaymentDue},
        {Col::ORDERHEAD_CONSOLIDATED_INVOICE, &Order::consolidated},
        {Col::ORDERHEAD_NO_VAT, &Order::noVat},
        {Col::ORDERHEAD_NOVATREASON_ID, &Order::noVatReasonId},
        {Col::ORDERHEAD_NOVATREASON_CODE, &Order::noVatReasonCode},
        {Col::ORDERHEAD_NOVATREASON_TEXT, &Order::noVatReasonText},
        {Col::ORDERHEAD_NOVATREASON_TRANSLATION_TEXT, &Order::noVatReasonTranslationText},
        {Col::ORDERHEAD_CURRENCY_ID, &Order::currencyId},
        {Col::ORDERHEAD_CURRENCY_ABBREVIATION, &Order::currencyAbbreviation},
        {Col::ORDERHEAD_CURRENCY_RATE, &Order::currencyRate},
        {Col::ORDERHEAD_CURRENCY_CALCULATED_UNIT_PRICE_ROUNDING_DECIMALS,
         &Order::unitPriceDecimals},
        {Col::ORDERHEAD_CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS, &Order::lineDecimals},
        {Col::ORDERHEAD_CURRENCY_LINE_TOTAL_PRINTING_DECIMALS, &Order::linePrintingDecimals},
        {Col::ORDERHEAD_CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS, &Order::invoiceDecimals},
        {Col::ORDERHEAD_CURRENCY_INVOICE_TOTAL_PRINTING_DECIMALS, &Order::invoicePrintingDecimals},
        {Col::ORDERHEAD_BANK_NAME, &Order::bankName},
        {Col::ORDERHEAD_BANK_ACCT_NO, &Order::bankAcctNo},
        {Col::ORDERHEAD_BANK_IBAN, &Order::bankIban},
        {Col::ORDERHEAD_BANK_SWIFT, &Order::bankSwift},
        {Col::ORDERHEAD_INVOICE_NO, &Order::invoiceNo},
        {Col::ORDERHEAD_INVOICE_NO_STR, &Order::invoiceNoStr},
        {Col::ORDERHEAD_SUBJECT, &Order::subject},
        {Col::ORDERHEAD_UNPAID_TOTAL, &Order::unpaidTotal},
        {Col::ORDERHEAD_PAID, &Order::paid},
        {Col::ORDERHEAD_TOTAL_LOCAL_CURRENCY_NET, &Order::localNet},
        {Col::ORDERHEAD_TOTAL_LOCAL_CURRENCY_VAT, &Order::localVat},
        {Col::ORDERHEAD_TOTAL_LOCAL_CURRENCY_GROSS, &Order::localGross},
        {Col::ORDERHEAD_COMMENT_TEXT, &Order::commentText},
        {Col::ORDERHEAD_PRINTED_COPIES, &Order::printedCopies},
        {Col::ORDERHEAD_TYPE, &Order::type},
        {Col::ORDERHEAD_CANCELLED_INVOICE_NO, &Order::cancelledInvoiceNo},
        {Col::ORDERHEAD_CANCELLED_INVOICE_NO_STR, &Order::cancelledInvoiceNoStr},
        {Col::ORDERHEAD_CANCELLING_INVOICE_NO, &Order::cancellingInvoiceNo},
        {Col::ORDERHEAD_CANCELLING_INVOICE_NO_STR, &Order::cancellingInvoiceNoStr},
        {Col::ORDERHEAD_VERIFIED, &Order::verified},
    };
    return columns;
}

// ORDERITEM's columns but the key, the order and the three totals.
const QList<ItemBinding>& ItemColumns()
{
    static const QList<ItemBinding> columns = {
        {Col::ORDERITEM_CODE, &OrderItem::code},
        {Col::ORDERITEM_DATE_SHIPPED, &OrderItem::dateShipped},
        {Col::ORDERITEM_PRODUCT_ID, &OrderItem::productId},
        {Col::ORDERITEM_PRODUCT_CODE, &OrderItem::productCode},
        {Col::ORDERITEM_STAT_NO, &OrderItem::statNo},
        {Col::ORDERITEM_NAME, &OrderItem::name},
        {Col::ORDERITEM_NAME_TRANSLATION, &OrderItem::nameTranslation},
        {Col::ORDERITEM_COMMENT, &OrderItem::comment},
        {Col::ORDERITEM_COMMENT_TRANSLATION, &OrderItem::commentTranslation},
        {Col::ORDERITEM_UNIT, &OrderItem::unit},
        {Col::ORDERITEM_UNIT_TRANSLATION, &OrderItem::unitTranslation},
        {Col::ORDERITEM_VAT_ID, &OrderItem::vatId},
        {Col::ORDERITEM_VAT_CODE, &OrderItem::vatCode},
        {Col::ORDERITEM_VAT_PERCENT, &OrderItem::vatPercent},
        {Col::ORDERITEM_VAT_NAME, &OrderItem::vatName},
        {Col::ORDERITEM_LIST_PRICE, &OrderItem::listPrice},
        {Col::ORDERITEM_PRICE, &OrderItem::price},
        {Col::ORDERITEM_QTY, &OrderItem::qty},
        {Col::ORDERITEM_DISCOUNT_TYPE, &OrderItem::discountType},
        {Col::ORDERITEM_DISCOUNT_PERCENT, &OrderItem::discountPercent},
        {Col::ORDERITEM_TOTAL_LOCAL_CURRENCY_NET, &OrderItem::localNet},
        {Col::ORDERITEM_TOTAL_LOCAL_CURRENCY_VAT, &OrderItem::localVat},
        {Col::ORDERITEM_TOTAL_LOCAL_CURRENCY_GROSS, &OrderItem::localGross},
    };
    return columns;
}

// The names and values of one order's or item's columns, ready for an insert or update.
struct ColumnValues
{
    QStringList names;
    QVariantList values;

    void add(const char* name, const QVariant& value)
    {
        names << QString::fromLatin1(name);
        values << value;
    }
    QString insert(const char* table) const
    {
        return QStringLiteral("insert into %1 (%2) values (%3)")
            .arg(QLatin1StringView(table), names.join(QLatin1String(", ")),
                 QStringList(names.size(), QStringLiteral("?")).join(QLatin1String(", ")));
    }
    QString assignments() const { return names.join(QLatin1String(" = ?, ")) + " = ?"; }
};

ColumnValues OrderValues(const Order& order)
{
    ColumnValues v;
    for (const OrderBinding& b : OrderColumns())
        v.add(b.column, WriteField(order, b));
    v.add(Col::ORDERHEAD_PARTNER_NAME_ASCII,
          order.partnerName.isEmpty() ? QVariant() : QVariant(FoldName(order.partnerName)));
    const auto totals = order.totals.values();
    for (int i = 0; i < OrderTotals::Count; ++i)
        v.add(OrderTotals::columns()[i], totals[i]);
    return v;
}

ColumnValues ItemValues(const OrderItem& item, qint64 orderId)
{
    ColumnValues v;
    v.add(Col::ORDERITEM_ORDERHEAD_ID, orderId);
    for (const ItemBinding& b : ItemColumns())
        v.add(b.column, WriteField(item, b));
    v.add(Col::ORDERITEM_TOTAL_NET, item.totals.net);
    v.add(Col::ORDERITEM_TOTAL_VAT, item.totals.vat);
    v.add(Col::ORDERITEM_TOTAL_GROSS, item.totals.gross);
    return v;
}

Result Failure(const SqlStatement& st, const char* message)
{
    return st.failure(OrderStore::tr(message));
}

Result OrderGone()
{
    return Result::failure(
        OrderStore::tr("Unable to load data from database.&Maybe it is deleted by an other user."));
}

Result OrderChanged()
{
    return Result::failure(
        OrderStore::tr("Unable to save changes of order. Maybe an other user changed this order."));
}

Result LoadItems(qint64 orderId, QList<OrderItem>& items)
{
    SqlStatement st(Sql("select * from %1 where %2 = ? order by %3",
                        {Tbl::ORDERITEM, Col::ORDERITEM_ORDERHEAD_ID, Col::ORDERITEM_ID}),
                    {orderId});
    if (!st.exec())
        return Failure(st, QT_TRANSLATE_NOOP("OrderStore", "Unable to load data from database."));
    items.clear();
    while (st.next()) {
        OrderItem item;
        item.id = ToInteger(st.value(Col::ORDERITEM_ID));
        for (const ItemBinding& b : ItemColumns())
            ReadField(item, b, st.value(b.column));
        item.totals = LineTotals::fromValues(st.value(Col::ORDERITEM_TOTAL_NET),
                                             st.value(Col::ORDERITEM_TOTAL_VAT),
                                             st.value(Col::ORDERITEM_TOTAL_GROSS));
        items.append(item);
    }
    return Result::success();
}

Result InsertItem(OrderItem& item, qint64 orderId, const char* message)
{
    const ColumnValues v = ItemValues(item, orderId);
    SqlStatement st(v.insert(Tbl::ORDERITEM), v.values);
    if (!st.exec())
        return Failure(st, message);
    item.id = st.lastInsertId().toLongLong();
    return Result::success();
}

// The items as they are in the order value: removed ones deleted, changed ones updated, new ones
// inserted.
Result SaveItems(QList<OrderItem>& items, qint64 orderId)
{
    QStringList kept;
    QVariantList keptIds{orderId};
    for (const OrderItem& item : std::as_const(items)) {
        if (item.id != 0) {
            kept << QStringLiteral("?");
            keptIds << item.id;
        }
    }
    QString remove =
        Sql("delete from %1 where %2 = ?", {Tbl::ORDERITEM, Col::ORDERITEM_ORDERHEAD_ID});
    if (!kept.isEmpty())
        remove += Sql(" and %1 not in (", {Col::ORDERITEM_ID}) + kept.join(u',') + u')';
    if (SqlStatement st(remove, keptIds); !st.exec())
        return Failure(st, QT_TRANSLATE_NOOP("OrderStore", "Can't delete item."));

    for (OrderItem& item : items) {
        if (item.id == 0) {
            if (Result r = InsertItem(item, orderId,
                                      QT_TRANSLATE_NOOP("OrderStore", "Can't insert order item."));
                !r)
                return r;
            continue;
        }
        const ColumnValues v = ItemValues(item, orderId);
        SqlStatement st(
            Sql("update %1 set ", {Tbl::ORDERITEM}) + v.assignments() +
                Sql(" where %1 = ? and %2 = ?", {Col::ORDERITEM_ID, Col::ORDERITEM_ORDERHEAD_ID}),
            v.values + QVariantList{item.id, orderId});
        if (!st.exec())
            return Failure(st, QT_TRANSLATE_NOOP("OrderStore", "Can't update order item."));
        // An item that is no longer there (deleted with its order elsewhere) is not made again.
        if (st.numRowsAffected() != 1)
            return OrderChanged();
    }
    return Result::success();
}

Result Commit(SqlTransaction& transaction)
{
    if (transaction.active() && !transaction.commit()) {
        return Result::failure(OrderStore::tr("Unable to save changes of order."),
                               Database::session().lastError().text());
    }
    return Result::success();
}

} // namespace

Result OrderStore::load(qint64 id, Order& order)
{
    SqlStatement st(Sql("select * from %1 where %2 = ?", {Tbl::ORDERHEAD, Col::ORDERHEAD_ID}),
                    {id});
    if (!st.exec())
        return Failure(st, QT_TRANSLATE_NOOP("OrderStore", "Unable to load data from database."));
    if (!st.next())
        return OrderGone();
    Order loaded;
    loaded.id = id;
    for (const OrderBinding& b : OrderColumns())
        ReadField(loaded, b, st.value(b.column));
    loaded.totals.net = ToNumber(st.value(Col::ORDERHEAD_TOTAL_NET));
    loaded.totals.vat = ToNumber(st.value(Col::ORDERHEAD_TOTAL_VAT));
    loaded.totals.gross = ToNumber(st.value(Col::ORDERHEAD_TOTAL_GROSS));
    loaded.totals.correctionNet = ToNumber(st.value(Col::ORDERHEAD_TOTAL_CORRECTION_NET));
    loaded.totals.correctionVat = ToNumber(st.value(Col::ORDERHEAD_TOTAL_CORRECTION_VAT));
    loaded.totals.correctionGross = ToNumber(st.value(Col::ORDERHEAD_TOTAL_CORRECTION_GROSS));
    loaded.totals.roundingDifference = ToNumber(st.value(Col::ORDERHEAD_TOTAL_ROUNDING_DIFFERENCE));
    st.query().finish();
    if (Result r = LoadItems(id, loaded.items); !r)
        return r;
    order = std::move(loaded);
    return Result::success();
}

Result OrderStore::save(Order& order)
{
    if (order.issued())
        return OrderChanged();
    // Work on a copy so that a failed save leaves the caller's ids untouched.
    Order saved = order;
    OrderFill::recalcTotals(saved);
    // Not active when the caller has a transaction open: the writes then belong to that one.
    SqlTransaction transaction;
    const ColumnValues v = OrderValues(saved);
    if (saved.id == 0) {
        SqlStatement st(v.insert(Tbl::ORDERHEAD), v.values);
        if (!st.exec())
            return Failure(st,
                           QT_TRANSLATE_NOOP("OrderStore", "Unable to create order in database."));
        saved.id = st.lastInsertId().toLongLong();
    } else {
        SqlStatement st(
            Sql("update %1 set ", {Tbl::ORDERHEAD}) + v.assignments() +
                Sql(" where %1 = ? and %2 is null", {Col::ORDERHEAD_ID, Col::ORDERHEAD_INVOICE_NO}),
            v.values + QVariantList{saved.id});
        if (!st.exec())
            return Failure(st, QT_TRANSLATE_NOOP("OrderStore", "Unable to save changes of order."));
        if (st.numRowsAffected() != 1)
            return OrderChanged();
    }
    if (Result r = SaveItems(saved.items, saved.id); !r)
        return r;
    if (Result r = Commit(transaction); !r)
        return r;
    order = std::move(saved);
    return Result::success();
}

Result OrderStore::remove(const QList<qint64>& ids, DeleteOutcome& outcome)
{
    outcome = {};
    for (qint64 id : ids) {
        SqlTransaction transaction;
        // A numbered invoice counts as printed: deleting it would leave a gap in the numbering.
        SqlStatement state(Sql("select %1, %2 from %3 where %4 = ?",
                               {Col::ORDERHEAD_PRINTED_COPIES, Col::ORDERHEAD_INVOICE_NO,
                                Tbl::ORDERHEAD, Col::ORDERHEAD_ID}),
                           {id});
        if (!state.exec())
            return Failure(state,
                           QT_TRANSLATE_NOOP("OrderStore", "Error in deleting order/invoice."));
        if (!state.next())
            return Result::failure(
                tr("Unable to delete order. It is possible that an other user modified it."));
        if (ToInteger(state.value(Col::ORDERHEAD_PRINTED_COPIES)) > 0 ||
            !IsNullValue(state.value(Col::ORDERHEAD_INVOICE_NO))) {
            ++outcome.printed;
            continue;
        }
        state.query().finish();
        SqlStatement head(Sql("delete from %1 where %2 = ? and coalesce(%3, 0) = 0 and %4 is null",
                              {Tbl::ORDERHEAD, Col::ORDERHEAD_ID, Col::ORDERHEAD_PRINTED_COPIES,
                               Col::ORDERHEAD_INVOICE_NO}),
                          {id});
        if (!head.exec())
            return Failure(head,
                           QT_TRANSLATE_NOOP("OrderStore", "Error in deleting order/invoice."));
        if (head.numRowsAffected() != 1)
            return Result::failure(
                tr("Unable to delete order. It is possible that an other user modified it."));
        SqlStatement items(
            Sql("delete from %1 where %2 = ?", {Tbl::ORDERITEM, Col::ORDERITEM_ORDERHEAD_ID}),
            {id});
        if (!items.exec())
            return Failure(items, QT_TRANSLATE_NOOP("OrderStore", "Can't delete record."));
        if (Result r = Commit(transaction); !r)
            return Result::failure(tr("Can't delete record."), r.sqlError());
        ++outcome.deleted;
    }
    return Result::success();
}

QString OrderStore::printedMessage(int count)
{
    return FillArgs(tr("%d orders/invoices can not be deleted,&because they are printed yet."),
                    {QString::number(count)});
}

Order OrderStore::cloned(const Order& order, const QDate& today)
{
    Order copy = order;
    copy.id = 0;
    copy.code.clear();
    copy.dateShipped = today;
    copy.dateCreated = today;
    copy.datePaymentDue = QDate(); // computed again from the due days
    copy.invoiceNo.reset();
    copy.invoiceNoStr.clear();
    copy.unpaidTotal = 0.0;
    copy.paid = false;
    copy.localNet.reset();
    copy.localVat.reset();
    copy.localGross.reset();
    copy.printedCopies = 0;
    // A copy of a cancelling invoice is an ordinary order; its lines keep their signs.
    copy.type = int(OrderType::Invoice);
    copy.cancelledInvoiceNo.reset();
    copy.cancelledInvoiceNoStr.clear();
    copy.cancellingInvoiceNo.reset();
    copy.cancellingInvoiceNoStr.clear();
    copy.verified = false;
    for (OrderItem& item : copy.items) {
        item.id = 0;
        item.code.clear();
        item.dateShipped = today;
        item.localNet.reset();
        item.localVat.reset();
        item.localGross.reset();
    }
    return copy;
}

Result OrderStore::clone(qint64 id, qint64& newId)
{
    Order order;
    if (Result r = load(id, order); !r)
        return r;
    const QDate today = QDate::currentDate();
    Order copy = cloned(order, today);
    if (Result r = OrderFill::defaultDueDate(copy, copy.datePaymentDue, today); !r)
        return r;
    if (Result r = save(copy); !r)
        return Result::failure(tr("Can't create order in database.") + u'&' + r.message(),
                               r.sqlError(), r.statement());
    newId = copy.id;
    return Result::success();
}
