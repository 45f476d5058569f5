#include "NavReporter.h"

#include "InvoiceData.h"
#include "NavQueue.h"

#include "base/Interaction.h"

#include <QHash>

namespace {

bool Stopped(Progress* progress, NavReportOutcome& outcome)
{
    if (progress && progress->canceled())
        outcome.stopped = true;
    return outcome.stopped;
}

} // namespace

Result NavReporter::send(NavClient& client, const QDateTime& now, NavReportOutcome& outcome,
                         Progress* progress)
{
    for (;;) {
        if (Stopped(progress, outcome))
            return Result::success();
        QList<NavQueueEntry> due;
        if (Result r = NavQueue::due(now, kBatch, due); !r)
            return r;
        if (due.isEmpty())
            return Result::success();

        QList<qint64> numbers;
        QList<NavSignedOperation> operations;
        for (const NavQueueEntry& entry : std::as_const(due)) {
            InvoiceData::Document document;
            if (Result r = InvoiceData::build(entry.orderId, document); !r) {
                // The invoice's data can not be reported as they are: it waits, with the reason.
                outcome.problems << entry.invoiceNoText + QStringLiteral(": ") + r.message();
                if (Result m = NavQueue::markRetry({entry.invoiceNo}, now, r.message()); !m)
                    return m;
                ++outcome.stillWaiting;
                continue;
            }
            numbers << entry.invoiceNo;
            operations << NavSignedOperation{document.operation == NavOperation::Storno
                                                 ? QStringLiteral("STORNO")
                                                 : QStringLiteral("CREATE"),
                                             document.xml.toBase64()};
        }
        if (numbers.isEmpty())
            continue;

        if (Result m = NavQueue::markInFlight(numbers); !m)
            return m;
        QByteArray token;
        QString transactionId;
        Result r = client.tokenExchange(token);
        if (r)
            r = client.manageInvoice(token, operations, transactionId);
        if (!r) {
            outcome.problems << r.message();
            outcome.stillWaiting += int(numbers.size());
            if (Result m = NavQueue::markRetry(numbers, now, r.message()); !m)
                return m;
            // The rest waits as well: the next batch would meet the same fault.
            return Result::success();
        }
        if (Result m = NavQueue::markSent(numbers, transactionId); !m)
            return m;
        outcome.sent += int(numbers.size());
    }
}

Result NavReporter::poll(NavClient& client, NavReportOutcome& outcome, Progress* progress)
{
    QList<NavQueueEntry> sent;
    if (Result r = NavQueue::sent(sent); !r)
        return r;
    QHash<QString, QList<NavQueueEntry>> byTransaction;
    QStringList order;
    for (const NavQueueEntry& e : std::as_const(sent)) {
        if (Stopped(progress, outcome))
            return Result::success();
        if (e.transactionId.isEmpty()) {
            // A send cut short: the authority may have the invoice or not. Sending it again
            // blindly would be refused as a number already reported.
            bool exists = false;
            if (Result r = client.queryInvoiceCheck(e.invoiceNoText, exists); !r) {
                outcome.problems << r.message();
                continue;
            }
            if (exists) {
                if (Result m = NavQueue::markResult(e.invoiceNo, NavState::Accepted, {}); !m)
                    return m;
                ++outcome.accepted;
            } else if (Result m = NavQueue::markWaiting(e.invoiceNo); !m) {
                return m;
            }
            continue;
        }
        if (!byTransaction.contains(e.transactionId))
            order << e.transactionId;
        byTransaction[e.transactionId] << e;
    }
    for (const QString& transactionId : std::as_const(order)) {
        if (Stopped(progress, outcome))
            return Result::success();
        QList<NavProcessingResult> results;
        if (Result r = client.queryTransactionStatus(transactionId, results); !r) {
            outcome.problems << r.message();
            continue; // asked again next time
        }
        for (const NavQueueEntry& e : byTransaction.value(transactionId)) {
            for (const NavProcessingResult& p : std::as_const(results)) {
                if (p.index != e.index)
                    continue;
                NavState state = NavState::Sent;
                if (p.status == QLatin1String("ABORTED") ||
                    (p.status == QLatin1String("DONE") && p.errors))
                    state = NavState::Rejected;
                else if (p.status == QLatin1String("DONE"))
                    state = p.warnings ? NavState::AcceptedWithWarnings : NavState::Accepted;
                if (state == NavState::Sent)
                    break;
                if (Result m = NavQueue::markResult(e.invoiceNo, state, p.messages.join(u'&')); !m)
                    return m;
                if (state == NavState::Rejected) {
                    ++outcome.rejected;
                    outcome.problems << e.invoiceNoText + QStringLiteral(": ") +
                                            p.messages.join(QStringLiteral("; "));
                } else if (state == NavState::AcceptedWithWarnings) {
                    ++outcome.warnings;
                } else {
                    ++outcome.accepted;
                }
                break;
            }
        }
    }
    return Result::success();
}

Result NavReporter::run(const NavClientOptions& options, NavReportOutcome& outcome,
                        Progress* progress)
{
    NavSettings settings;
    if (Result r = NavSettingsStore::load(settings); !r)
        return r;
    if (!settings.complete())
        return Result::failure(tr("The technical user of the online invoice system is not set "
                                  "up.&Fill in the NAV settings first."));
    NavClient client(settings, options);
    // What an earlier run left sent is settled first, so that it is not sent twice.
    if (Result r = poll(client, outcome, progress); !r)
        return r;
    if (Result r = send(client, QDateTime::currentDateTimeUtc(), outcome, progress); !r)
        return r;
    return poll(client, outcome, progress);
}
