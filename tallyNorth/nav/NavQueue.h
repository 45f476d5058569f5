// The reporting queue: which issued invoices wait for their report, which were sent under which
// transaction, and what the authority answered. Rows are made by issuing (orders/ReportingQueue)
// and only advanced here; a failed send leaves them waiting for a later try.
#pragma once

#include "base/Result.h"
#include "orders/ReportingQueue.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QList>
#include <QString>

struct NavQueueEntry
{
    qint64 invoiceNo = 0;
    qint64 orderId = 0;
    QString invoiceNoText;
    NavState state = NavState::Waiting;
    QString transactionId;
    int index = 0; // the invoice's place in its request, from 1
    QString messages;
    int attempts = 0;
    QDateTime nextTry; // invalid: at once
};

class NavQueue
{
    Q_DECLARE_TR_FUNCTIONS(NavQueue)

public:
    // Waiting invoices whose next try has come, oldest number first, at most limit of them.
    static Result due(const QDateTime& now, int limit, QList<NavQueueEntry>& entries);
    // Sent invoices whose answer has not been asked yet (those of a run cut short have no
    // transaction id).
    static Result sent(QList<NavQueueEntry>& entries);
    // One invoice by its number text, or every row when the text is empty.
    static Result list(const QString& invoiceNoText, QList<NavQueueEntry>& entries);

    // The invoices are about to go out: until the answer is stored they read as sent without a
    // transaction, so that a run cut short asks the authority before sending them again.
    static Result markInFlight(const QList<qint64>& invoiceNos);
    // The invoices went out under the transaction, in the order given (index 1, 2, ...).
    static Result markSent(const QList<qint64>& invoiceNos, const QString& transactionId);
    // A network fault or a refused request: the invoices stay waiting until the back-off ends.
    static Result markRetry(const QList<qint64>& invoiceNos, const QDateTime& now,
                            const QString& message);
    // The authority's verdict on one invoice.
    static Result markResult(qint64 invoiceNo, NavState state, const QString& messages);
    // A send cut short that did not reach the authority: the invoice waits, due at once.
    static Result markWaiting(qint64 invoiceNo);
    // A rejected invoice goes back to waiting, after the cause has been put right.
    static Result requeue(qint64 invoiceNo);

    // The wait before the next try after that many failed ones: a minute, doubled each time, at
    // most six hours.
    static qint64 backOffSeconds(int attempts);
    static QString stateText(NavState state);
};
