#pragma once
// Orders of the basic data: its partner and its test product (1000 Ft at 27 %).
#include "orders/InvoiceNumbering.h"
#include "orders/OrderFill.h"
#include "orders/OrderStore.h"

#include <QtGlobal>

// One line of qty pieces; method 0 keeps the partner's payment method.
inline Order TestOrder(double qty = 2, const QDate& day = QDate::currentDate(), qint64 method = 0)
{
    Order order;
    if (!OrderFill::newOrder(order, day) || !OrderFill::partner(order, 1) ||
        (method && !OrderFill::paymentMethod(order, method)))
        qFatal("no order");
    OrderItem item;
    if (!OrderFill::product(item, order, 1))
        qFatal("no product");
    item.qty = qty;
    OrderFill::recalcItem(item, order);
    order.items << item;
    return order;
}

inline qint64 SavedTestOrder(double qty, const QDate& day, qint64 method = 2,
                             bool consolidated = false)
{
    Order order = TestOrder(qty, day, method);
    order.consolidated = consolidated;
    if (!OrderStore::save(order))
        qFatal("not saved");
    return order.id;
}

// A stand-in for the rendered document: the rendering has its own test.
inline Result StandInDocument(qint64 orderId, FrozenInvoice& invoice)
{
    invoice.body = QString("body of %1").arg(orderId);
    return Result::success();
}

inline Result IssueTestOrder(qint64 orderId, const QDate& day, QString* numberText = nullptr)
{
    IssuedInvoice issued;
    const Result r = InvoiceNumbering::issue(orderId, day, StandInDocument, issued);
    if (numberText)
        *numberText = issued.numberText;
    return r;
}
