// The rules that fill an order: the defaults of a new order, the snapshots copied from the
// partner, payment method, currency, no-VAT reason, language and product into the order's own
// columns, the due-date default, the totals and the checks before an order is saved.
#pragma once

#include "Order.h"

#include "base/Result.h"

#include <QCoreApplication>
#include <QDate>
#include <QStringList>

#include <optional>

class Interaction;

class OrderFill
{
    Q_DECLARE_TR_FUNCTIONS(OrderFill)

public:
    // A new order: today's dates, the settings' default currency, language, country and subject.
    static Result newOrder(Order& order, const QDate& today = QDate::currentDate());

    // Copies the partner and its country and mailing address into the order, then applies the
    // partner's language, payment method and currency where the partner has them. notes
    // receives what the user should know but does not stop the fill (a missing translation).
    static Result partner(Order& order, qint64 partnerId, QStringList* notes = nullptr);
    static Result paymentMethod(Order& order, qint64 methodId, QStringList* notes = nullptr);
    // The currency's abbreviation, rate, rounding and printing decimals and bank account.
    static Result currency(Order& order, qint64 currencyId);
    // No reason clears the no-VAT data (the flag stays as it is).
    static Result noVatReason(Order& order, std::optional<qint64> reasonId);
    // The second language of the invoice and the translations that depend on it.
    static Result language(Order& order, qint64 langId, QStringList* notes = nullptr);

    // Days until the payment is due. The partner's own agreement wins when it is set (above 0);
    // otherwise the payment method's default days; 0 when neither has any.
    static int dueDays(std::optional<qint64> partnerDays, std::optional<qint64> methodDays);
    // The order's invoice date (today when it has none) plus dueDays() of its partner and
    // payment method as they are in the basic data now.
    static Result defaultDueDate(const Order& order, QDate& due,
                                 const QDate& today = QDate::currentDate());

    // An item of the product in the order's language and currency: the price per currency when
    // there is one, else the product's forint price converted at the order's rate; the partner's
    // (or the settings') default discount; its totals.
    static Result product(OrderItem& item, const Order& order, qint64 productId);
    // The VAT key's name, percent and code; none clears them.
    static Result vat(OrderItem& item, std::optional<qint64> vatId);

    // The unit price from list price and discount (an entered price is kept) and the line totals,
    // with the order's decimals.
    static void recalcItem(OrderItem& item, const Order& order);
    // The seven totals from the items, with the order's rounding flags and decimals.
    static void recalcTotals(Order& order);

    // An item's fields in the order of their checks; the first failure's message.
    static Result checkItem(const OrderItem& item);
    // The checks before an order is saved, in the order the user meets them. An empty due date
    // is filled with defaultDueDate() first. Questions go through interaction; an answer other
    // than yes fails with an empty message.
    static Result checkOrder(Order& order, Interaction& interaction,
                             const QDate& today = QDate::currentDate());
};
