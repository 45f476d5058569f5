// Reads and writes orders with their items. Head and items are always written together in one
// transaction; an order that has an invoice number is never changed or deleted.
#pragma once

#include "Order.h"

#include "base/Result.h"

#include <QCoreApplication>
#include <QList>

class OrderStore
{
    Q_DECLARE_TR_FUNCTIONS(OrderStore)

public:
    struct DeleteOutcome
    {
        int deleted = 0;
        int printed = 0; // refused: printed (or numbered) already
    };

    // The order and its items by ORDERITEM_ID. A vanished order gives the "deleted by an other
    // user" message.
    static Result load(qint64 id, Order& order);

    // A new order (id 0) is inserted, an existing one updated only while its invoice number is
    // empty. The totals are recomputed from the items first. Items missing from order.items are
    // deleted, new ones inserted; on success order and its items carry their ids. On failure
    // nothing is written and order's ids are as they were.
    static Result save(Order& order);

    // Deletes each order with its items, each in its own transaction. Printed orders are left and
    // counted; the first other failure stops and is returned.
    static Result remove(const QList<qint64>& ids, DeleteOutcome& outcome);
    // "%d orders/invoices can not be deleted,&because they are printed yet." for count.
    static QString printedMessage(int count);

    // A new, unissued copy of the order: no number, no copies, no paid state, today's dates and
    // the due date computed again. newId receives the copy's id.
    static Result clone(qint64 id, qint64& newId);
    // The same on a value: what clone() stores.
    static Order cloned(const Order& order, const QDate& today);
};
