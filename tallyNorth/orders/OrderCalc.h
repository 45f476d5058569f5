// The money arithmetic of orders: the one rounding primitive and everything built on it. Every
// amount that is shown, stored or printed comes from these functions; nothing else rounds.
#pragma once

#include "base/Result.h"
#include "base/RoundDecimals.h"
#include "masterdata/DiscountType.h"

#include <QList>
#include <QString>
#include <QVariant>

#include <array>
#include <optional>

// The unit price from the list price and discount; nothing for a price the user enters, which is
// never recomputed. Unknown types behave like "no discount".
std::optional<double> CalcDiscountedPrice(double listPrice, double discountPercent,
                                          int discountType, int unitPriceDecimals);

// ORDERITEM_TOTAL_NET, ORDERITEM_TOTAL_VAT and ORDERITEM_TOTAL_GROSS of one item.
struct LineTotals
{
    double net = 0.0;
    double vat = 0.0;
    double gross = 0.0;

    // From stored values: NULL or empty counts as 0.
    static LineTotals fromValues(const QVariant& net, const QVariant& vat, const QVariant& gross);
};

// The VAT is computed from the rounded net, and the gross is their plain sum.
LineTotals CalcLineTotals(double price, double qty, double vatPercent, int lineDecimals);

// The seven totals of an order, in the order of their columns.
struct OrderTotals
{
    double net = 0.0;
    double vat = 0.0;
    double gross = 0.0;
    double correctionNet = 0.0;
    double correctionVat = 0.0;
    double correctionGross = 0.0;
    double roundingDifference = 0.0;

    static constexpr int Count = 7;
    std::array<double, Count> values() const;
    // ORDERHEAD_TOTAL_NET ... ORDERHEAD_TOTAL_ROUNDING_DIFFERENCE, matching values().
    static const std::array<const char*, Count>& columns();
};

// Sums the items and rounds to the invoice total decimals. The rounding error between the summed
// gross and net + VAT is carried by the net total (correction net); Hungarian cash rounding to
// 5 forints, when asked for, moves net and gross by the rounding difference.
OrderTotals CalcOrderTotals(const QList<LineTotals>& items, bool roundTo5, bool noVat,
                            int invoiceDecimals);

// One group of the VAT summary of an invoice, or one item as input to the grouping.
struct VatDetail
{
    std::optional<qint64> vatId; // ORDERITEM_VAT_ID; items without a VAT key form one group
    QString name;
    double percent = 0.0;
    QString code;
    LineTotals totals;
};

// Groups items by VAT key in order of first appearance; name, percent and code come from the
// group's first item. The sums are neither rounded nor corrected.
QList<VatDetail> GroupVatDetail(const QList<VatDetail>& items);

// The VAT summary of an order in the database, its items taken by ORDERITEM_ID.
Result LoadVatDetail(qint64 orderId, QList<VatDetail>& groups);

// Fixes the local-currency (forint) totals of an order and its items at issue time. A forint
// order copies its totals; another currency converts them with ORDERHEAD_CURRENCY_RATE, rounded
// to the forint's decimals. Fails when the forint row is missing from CURRENCYY. Runs in its own
// transaction, or inside the caller's when one is already open.
Result CalcLocalCurrencyTotals(qint64 orderId);
