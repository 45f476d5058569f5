// The online reporting queue as issuing sees it: the row that makes a new invoice wait for its
// report, written inside the issuing transaction so that no issued invoice can be missed. The
// reporting itself (nav/) reads and advances these rows later, never blocking an issue.
#pragma once

#include "base/Result.h"

// Queues the invoice just numbered; the caller's transaction makes it one with the number.
Result QueueForReporting(qint64 invoiceNo, qint64 orderId);
