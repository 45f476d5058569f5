// The cancelling invoice: an issued invoice is never changed or deleted, it is cancelled by a new
// order of the cancelling kind that repeats it with negated quantities and totals. It is numbered
// like any invoice; issuing it marks the invoice it cancels.
#pragma once

#include "base/Result.h"

#include <QCoreApplication>
#include <QDate>
#include <QString>

#include <optional>

// What the cancelling invoice may have of its own; unset fields are copied.
struct CancelData
{
    QDate dateShipped;
    QDate datePaymentDue;
    std::optional<qint64> paymentMethodId;
};

// What stands in the way of cancelling an order; each window words it its own way.
struct CancelState
{
    enum class Block { None, NotInvoice, Cancelled, Cancelling, CancelWaiting };
    Block block = Block::None;
    QString cancelledBy; // the number text of the invoice that cancelled it
};

class CancelInvoice
{
    Q_DECLARE_TR_FUNCTIONS(CancelInvoice)

public:
    static Result state(qint64 orderId, CancelState& state);
    // Whether the order is an issued invoice that can still be cancelled.
    static Result check(qint64 orderId);
    // What the "Cancel the Invoice" window may accept; byItems keeps each item's own date.
    static Result checkData(const CancelData& data, bool byItems);
    // The cancelling order with its items, in one transaction; newId receives its id.
    static Result create(qint64 orderId, const CancelData& data, qint64& newId,
                         const QDate& today = QDate::currentDate());
};
