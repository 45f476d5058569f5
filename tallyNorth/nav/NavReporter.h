// Sends what waits in the reporting queue and asks for the verdicts of what was sent. Runs after
// issuing, never inside it: a failure here leaves every invoice issued and still queued.
#pragma once

#include "NavClient.h"

#include "base/Result.h"

#include <QCoreApplication>
#include <QDateTime>

struct NavReportOutcome
{
    int sent = 0;
    int accepted = 0;
    int warnings = 0;
    int rejected = 0;
    int stillWaiting = 0; // left for a later try
    QStringList problems; // what went wrong, for the user
    bool stopped = false; // the user stopped the run; the rest waits for the next
};

class Progress;

class NavReporter
{
    Q_DECLARE_TR_FUNCTIONS(NavReporter)

public:
    // At most this many invoices go in one manageInvoice, as the interface allows.
    static constexpr int kBatch = 100;

    // Sends the due invoices in batches; a failed batch waits for its back-off. A progress
    // window's Cancel is heeded between batches and between questions, never inside one.
    static Result send(NavClient& client, const QDateTime& now, NavReportOutcome& outcome,
                       Progress* progress = nullptr);
    // Asks the state of every sent transaction and records the verdicts.
    static Result poll(NavClient& client, NavReportOutcome& outcome, Progress* progress = nullptr);
    // Both, with the stored settings; fails when the technical user is not set up.
    static Result run(const NavClientOptions& options, NavReportOutcome& outcome,
                      Progress* progress = nullptr);
};
