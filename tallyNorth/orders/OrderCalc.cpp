#include "OrderCalc.h"

#include "Columns.h"
#include "base/Database.h"
#include "base/SqlStatement.h"
#include "base/SqlTransaction.h"
#include "base/SqlValue.h"

#include <QCoreApplication>
#include <QSqlError>

#include <algorithm>
#include <cmath>

std::optional<double> CalcDiscountedPrice(double listPrice, double discountPercent,
                                          int discountType, int unitPriceDecimals)
{
    if (discountType == int(DiscountType::EnteredPrice))
        return std::nullopt;
    const double discount = listPrice * discountPercent * 0.01;
    const double price = listPrice - discount;
    if (discountType == int(DiscountType::PercentFromListPrice))
        return RoundDecimals(price, unitPriceDecimals);
    return price;
}

LineTotals LineTotals::fromValues(const QVariant& net, const QVariant& vat, const QVariant& gross)
{
    return {ToNumber(net), ToNumber(vat), ToNumber(gross)};
}

LineTotals CalcLineTotals(double price, double qty, double vatPercent, int lineDecimals)
{
    LineTotals t;
    t.net = RoundDecimals(price * qty, lineDecimals);
    t.vat = RoundDecimals(t.net * vatPercent * 0.01, lineDecimals);
    t.gross = t.net + t.vat;
    return t;
}

std::array<double, OrderTotals::Count> OrderTotals::values() const
{
    return {net, vat, gross, correctionNet, correctionVat, correctionGross, roundingDifference};
}

const std::array<const char*, OrderTotals::Count>& OrderTotals::columns()
{
    static const std::array<const char*, Count> names = {
        Col::ORDERHEAD_TOTAL_NET,
        Col::ORDERHEAD_TOTAL_VAT,
        Col::ORDERHEAD_TOTAL_GROSS,
        Col::ORDERHEAD_TOTAL_CORRECTION_NET,
        Col::ORDERHEAD_TOTAL_CORRECTION_VAT,
        Col::ORDERHEAD_TOTAL_CORRECTION_GROSS,
        Col::ORDERHEAD_TOTAL_ROUNDING_DIFFERENCE,
    };
    return names;
}

namespace {

// Hungarian cash rounding: the step that brings the whole part of gross to a multiple of 5.
// ...1 and ...2 go down, ...3 and ...4 up; negative totals mirror it.
double RoundTo5Difference(double gross)
{
    switch (int(std::fmod(std::trunc(gross), 5.0))) {
    case 1:
        return -1.0;
    case 2:
        return -2.0;
    case 3:
        return 2.0;
    case 4:
        return 1.0;
    case -1:
        return 1.0;
    case -2:
        return 2.0;
    case -3:
        return -2.0;
    case -4:
        return -1.0;
    default:
        return 0.0;
    }
}

} // namespace

OrderTotals CalcOrderTotals(const QList<LineTotals>& items, bool roundTo5, bool noVat,
                            int invoiceDecimals)
{
    OrderTotals t;
    for (const LineTotals& item : items) {
        t.net += item.net;
        t.vat += item.vat;
        t.gross += item.gross;
    }
    t.net = RoundDecimals(t.net, invoiceDecimals);
    if (noVat) {
        t.vat = 0.0;
        t.gross = t.net;
    } else {
        t.vat = RoundDecimals(t.vat, invoiceDecimals);
        t.gross = RoundDecimals(t.gross, invoiceDecimals);
    }
    t.correctionNet = RoundDecimals(t.gross - t.net - t.vat, invoiceDecimals);
    t.net += t.correctionNet;
    t.vat += t.correctionVat;
    t.gross += t.correctionGross;
    if (roundTo5) {
        // Chosen from the whole part only and added to the gross as it is.
        t.roundingDifference = RoundTo5Difference(t.gross);
        t.net += t.roundingDifference;
        t.gross += t.roundingDifference;
    }
    return t;
}

QList<VatDetail> GroupVatDetail(const QList<VatDetail>& items)
{
    QList<VatDetail> groups;
    for (const VatDetail& item : items) {
        auto group = std::find_if(groups.begin(), groups.end(),
                                  [&](const VatDetail& g) { return g.vatId == item.vatId; });
        if (group == groups.end()) {
            groups.append(item);
            continue;
        }
        group->totals.net += item.totals.net;
        group->totals.vat += item.totals.vat;
        group->totals.gross += item.totals.gross;
    }
    return groups;
}

namespace {

Result DatabaseFailure(const SqlStatement& st)
{
    return st.failure(QCoreApplication::translate("OrderCalc", "Database error:&") +
                      st.errorText());
}

Result OrderMissing()
{
    return Result::failure(QCoreApplication::translate(
        "OrderCalc", "Unable to load data from database.&Maybe it is deleted by an other user."));
}

} // namespace

Result LoadVatDetail(qint64 orderId, QList<VatDetail>& groups)
{
    SqlStatement st(Sql("select %1, %2, %3, %4, %5, %6, %7 from %8 where %9 = ? order by %10",
                        {Col::ORDERITEM_VAT_ID, Col::ORDERITEM_VAT_NAME, Col::ORDERITEM_VAT_PERCENT,
                         Col::ORDERITEM_VAT_CODE, Col::ORDERITEM_TOTAL_NET,
                         Col::ORDERITEM_TOTAL_VAT, Col::ORDERITEM_TOTAL_GROSS, Tbl::ORDERITEM,
                         Col::ORDERITEM_ORDERHEAD_ID, Col::ORDERITEM_ID}),
                    {orderId});
    if (!st.exec())
        return DatabaseFailure(st);
    QList<VatDetail> items;
    while (st.next()) {
        VatDetail item;
        if (!IsNullValue(st.value(Col::ORDERITEM_VAT_ID)))
            item.vatId = ToInteger(st.value(Col::ORDERITEM_VAT_ID));
        item.name = st.value(Col::ORDERITEM_VAT_NAME).toString();
        item.percent = ToNumber(st.value(Col::ORDERITEM_VAT_PERCENT));
        item.code = st.value(Col::ORDERITEM_VAT_CODE).toString();
        item.totals = LineTotals::fromValues(st.value(Col::ORDERITEM_TOTAL_NET),
                                             st.value(Col::ORDERITEM_TOTAL_VAT),
                                             st.value(Col::ORDERITEM_TOTAL_GROSS));
        items.append(item);
    }
    groups = GroupVatDetail(items);
    return Result::success();
}

namespace {

// The totals of an item or an order and their local-currency copies.
struct TotalColumns
{
    const char* table;
    const char* net;
    const char* vat;
    const char* gross;
    const char* localNet;
    const char* localVat;
    const char* localGross;
};

constexpr TotalColumns kItemTotals = {Tbl::ORDERITEM,
                                      Col::ORDERITEM_TOTAL_NET,
                                      Col::ORDERITEM_TOTAL_VAT,
                                      Col::ORDERITEM_TOTAL_GROSS,
                                      Col::ORDERITEM_TOTAL_LOCAL_CURRENCY_NET,
                                      Col::ORDERITEM_TOTAL_LOCAL_CURRENCY_VAT,
                                      Col::ORDERITEM_TOTAL_LOCAL_CURRENCY_GROSS};
constexpr TotalColumns kOrderTotals = {Tbl::ORDERHEAD,
                                       Col::ORDERHEAD_TOTAL_NET,
                                       Col::ORDERHEAD_TOTAL_VAT,
                                       Col::ORDERHEAD_TOTAL_GROSS,
                                       Col::ORDERHEAD_TOTAL_LOCAL_CURRENCY_NET,
                                       Col::ORDERHEAD_TOTAL_LOCAL_CURRENCY_VAT,
                                       Col::ORDERHEAD_TOTAL_LOCAL_CURRENCY_GROSS};

Result CopyColumns(const TotalColumns& c, const char* key, qint64 id)
{
    SqlStatement st(
        Sql("update %1 set %2 = %3, %4 = %5, %6 = %7 where %8 = ?",
            {c.table, c.localNet, c.net, c.localVat, c.vat, c.localGross, c.gross, key}),
        {id});
    return st.exec() ? Result::success() : DatabaseFailure(st);
}

// Converted with the rate and rounded to the forint's decimals.
Result WriteLocal(const TotalColumns& c, const char* key, qint64 id, const LineTotals& totals,
                  double rate, int decimals)
{
    SqlStatement st(Sql("update %1 set %2 = ?, %3 = ?, %4 = ? where %5 = ?",
                        {c.table, c.localNet, c.localVat, c.localGross, key}),
                    {RoundDecimals(rate * totals.net, decimals),
                     RoundDecimals(rate * totals.vat, decimals),
                     RoundDecimals(rate * totals.gross, decimals), id});
    return st.exec() ? Result::success() : DatabaseFailure(st);
}

// A forint order: the totals are already local; copied as they are, without rounding.
Result CopyToLocal(qint64 orderId)
{
    const Result r = CopyColumns(kItemTotals, Col::ORDERITEM_ORDERHEAD_ID, orderId);
    return r ? CopyColumns(kOrderTotals, Col::ORDERHEAD_ID, orderId) : r;
}

struct ItemTotals
{
    qint64 id = 0;
    LineTotals totals;
};

Result LoadItemTotals(qint64 orderId, QList<ItemTotals>& items)
{
    SqlStatement st(Sql("select %1, %2, %3, %4 from %5 where %6 = ? order by %1",
                        {Col::ORDERITEM_ID, Col::ORDERITEM_TOTAL_NET, Col::ORDERITEM_TOTAL_VAT,
                         Col::ORDERITEM_TOTAL_GROSS, Tbl::ORDERITEM, Col::ORDERITEM_ORDERHEAD_ID}),
                    {orderId});
    if (!st.exec())
        return DatabaseFailure(st);
    while (st.next())
        items.append({ToInteger(st.value(Col::ORDERITEM_ID)),
                      LineTotals::fromValues(st.value(Col::ORDERITEM_TOTAL_NET),
                                             st.value(Col::ORDERITEM_TOTAL_VAT),
                                             st.value(Col::ORDERITEM_TOTAL_GROSS))});
    return Result::success();
}

// A foreign-currency order: items and order converted separately, so the order's local totals
// need not equal the sum of its items' local totals.
Result ConvertToLocal(qint64 orderId, double rate, const LineTotals& orderTotals)
{
    SqlStatement local(
        Sql("select %1, %2 from %3 where %4 = ?",
            {Col::CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS,
             Col::CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS, Tbl::CURRENCYY, Col::CURRENCY_ID}),
        {0});
    if (!local.exec())
        return DatabaseFailure(local);
    if (!local.next())
        return Result::failure(QCoreApplication::translate(
            "OrderCalc", "The forint (currency 0) is missing from the currencies."));
    const int lineDecimals =
        int(ToInteger(local.value(Col::CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS)));
    const int invoiceDecimals =
        int(ToInteger(local.value(Col::CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS)));

    QList<ItemTotals> items;
    if (Result r = LoadItemTotals(orderId, items); !r)
        return r;
    for (const ItemTotals& item : std::as_const(items)) {
        Result r =
            WriteLocal(kItemTotals, Col::ORDERITEM_ID, item.id, item.totals, rate, lineDecimals);
        if (!r)
            return r;
    }
    return WriteLocal(kOrderTotals, Col::ORDERHEAD_ID, orderId, orderTotals, rate, invoiceDecimals);
}

} // namespace

Result CalcLocalCurrencyTotals(qint64 orderId)
{
    // Nested in the caller's transaction when there is one: the writes then belong to that one.
    SqlTransaction transaction;
    SqlStatement order(Sql("select %1, %2, %3, %4, %5 from %6 where %7 = ?",
                           {Col::ORDERHEAD_CURRENCY_ID, Col::ORDERHEAD_CURRENCY_RATE,
                            Col::ORDERHEAD_TOTAL_NET, Col::ORDERHEAD_TOTAL_VAT,
                            Col::ORDERHEAD_TOTAL_GROSS, Tbl::ORDERHEAD, Col::ORDERHEAD_ID}),
                       {orderId});
    if (!order.exec())
        return DatabaseFailure(order);
    if (!order.next())
        return OrderMissing();
    const bool forint = ToInteger(order.value(Col::ORDERHEAD_CURRENCY_ID)) == 0;
    const double rate = ToNumber(order.value(Col::ORDERHEAD_CURRENCY_RATE));
    const LineTotals totals = LineTotals::fromValues(order.value(Col::ORDERHEAD_TOTAL_NET),
                                                     order.value(Col::ORDERHEAD_TOTAL_VAT),
                                                     order.value(Col::ORDERHEAD_TOTAL_GROSS));
    order.query().finish();

    const Result r = forint ? CopyToLocal(orderId) : ConvertToLocal(orderId, rate, totals);
    if (!r)
        return r;
    if (!transaction.commit())
        return Result::failure(QCoreApplication::translate("OrderCalc", "Database error:&") +
                               Database::session().lastError().text());
    return Result::success();
}
