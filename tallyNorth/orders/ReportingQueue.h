// The online reporting queue as issuing and the order list see it: the row that makes a new
// invoice wait for its report, written inside the issuing transaction so that no issued invoice
// can be missed, and the state's text. The reporting itself (nav/) reads and advances the rows
// later, never blocking an issue.
#pragma once

#include "base/Result.h"

#include <QCoreApplication>
#include <QString>

enum class NavState { Waiting = 0, Sent = 1, Accepted = 2, AcceptedWithWarnings = 3, Rejected = 4 };

class ReportingQueue
{
    Q_DECLARE_TR_FUNCTIONS(ReportingQueue)

public:
    // Queues the invoice just numbered; the caller's transaction makes it one with the number.
    static Result queue(qint64 invoiceNo, qint64 orderId);
    static QString stateText(NavState state);
};
