#include "NavQueue.h"

#include "Columns.h"
#include "base/SqlStatement.h"
#include "base/SqlTransaction.h"
#include "base/SqlValue.h"

namespace {

const char kSelect[] =
    "select q.TN_NAV_QUEUE_INVOICE_NO, q.TN_NAV_QUEUE_ORDERHEAD_ID, o.ORDERHEAD_INVOICE_NO_STR, "
    "q.TN_NAV_QUEUE_STATE, q.TN_NAV_QUEUE_TRANSACTION_ID, q.TN_NAV_QUEUE_INDEX, "
    "q.TN_NAV_QUEUE_MESSAGES, q.TN_NAV_QUEUE_ATTEMPTS, q.TN_NAV_QUEUE_NEXT_TRY from TN_NAV_QUEUE q "
    "left join ORDERHEAD o on o.ORDERHEAD_ID = q.TN_NAV_QUEUE_ORDERHEAD_ID ";

QString Now()
{
    return QDateTime::currentDateTimeUtc().toString(Qt::ISODate);
}

Result Read(const QString& tail, const QVariantList& binds, QList<NavQueueEntry>& entries)
{
    entries.clear();
    SqlStatement st(QLatin1String(kSelect) + tail, binds);
    if (!st.exec())
        return st.failure(NavQueue::tr("Database error:&") + st.errorText());
    while (st.next()) {
        NavQueueEntry e;
        e.invoiceNo = ToInteger(st.value("TN_NAV_QUEUE_INVOICE_NO"));
        e.orderId = ToInteger(st.value("TN_NAV_QUEUE_ORDERHEAD_ID"));
        e.invoiceNoText = st.value("ORDERHEAD_INVOICE_NO_STR").toString();
        e.state = NavState(ToInteger(st.value("TN_NAV_QUEUE_STATE")));
        e.transactionId = st.value("TN_NAV_QUEUE_TRANSACTION_ID").toString();
        e.index = int(ToInteger(st.value("TN_NAV_QUEUE_INDEX")));
        e.messages = st.value("TN_NAV_QUEUE_MESSAGES").toString();
        e.attempts = int(ToInteger(st.value("TN_NAV_QUEUE_ATTEMPTS")));
        e.nextTry =
            QDateTime::fromString(st.value("TN_NAV_QUEUE_NEXT_TRY").toString(), Qt::ISODate);
        entries << e;
    }
    return Result::success();
}

} // namespace

Result NavQueue::due(const QDateTime& now, int limit, QList<NavQueueEntry>& entries)
{
    return Read(QStringLiteral("where q.TN_NAV_QUEUE_STATE = 0 and (q.TN_NAV_QUEUE_NEXT_TRY is "
                               "null or q.TN_NAV_QUEUE_NEXT_TRY <= ?) order by 1 limit ?"),
                {now.toUTC().toString(Qt::ISODate), limit}, entries);
}

Result NavQueue::sent(QList<NavQueueEntry>& entries)
{
    return Read(QStringLiteral("where q.TN_NAV_QUEUE_STATE = 1 order by "
                               "q.TN_NAV_QUEUE_TRANSACTION_ID, q.TN_NAV_QUEUE_INDEX"),
                {}, entries);
}

Result NavQueue::list(const QString& invoiceNoText, QList<NavQueueEntry>& entries)
{
    if (invoiceNoText.isEmpty())
        return Read(QStringLiteral("order by 1"), {}, entries);
    return Read(QStringLiteral("where o.ORDERHEAD_INVOICE_NO_STR = ? order by 1"), {invoiceNoText},
                entries);
}

Result NavQueue::markInFlight(const QList<qint64>& invoiceNos)
{
    SqlTransaction transaction;
    for (qint64 no : invoiceNos) {
        if (Result r = ExecSql(QStringLiteral("update TN_NAV_QUEUE set TN_NAV_QUEUE_STATE = 1, "
                                              "TN_NAV_QUEUE_TRANSACTION_ID = null, "
                                              "TN_NAV_QUEUE_INDEX = null, TN_NAV_QUEUE_CHANGED = "
                                              "? where TN_NAV_QUEUE_INVOICE_NO = ?"),
                               {Now(), no});
            !r)
            return r;
    }
    if (!transaction.commit())
        return Result::failure(tr("Database error:&") + transaction.errorText());
    return Result::success();
}

Result NavQueue::markSent(const QList<qint64>& invoiceNos, const QString& transactionId)
{
    SqlTransaction transaction;
    for (int i = 0; i < invoiceNos.size(); ++i) {
        if (Result r = ExecSql(QStringLiteral("update TN_NAV_QUEUE set TN_NAV_QUEUE_STATE = 1, "
                                              "TN_NAV_QUEUE_TRANSACTION_ID = ?, TN_NAV_QUEUE_INDEX "
                                              "= ?, TN_NAV_QUEUE_MESSAGES = null, "
                                              "TN_NAV_QUEUE_CHANGED = ? where "
                                              "TN_NAV_QUEUE_INVOICE_NO = ?"),
                               {transactionId, i + 1, Now(), invoiceNos.at(i)});
            !r)
            return r;
    }
    if (!transaction.commit())
        return Result::failure(tr("Database error:&") + transaction.errorText());
    return Result::success();
}

Result NavQueue::markRetry(const QList<qint64>& invoiceNos, const QDateTime& now,
                           const QString& message)
{
    SqlTransaction transaction;
    for (qint64 no : invoiceNos) {
        const QVariant attempts =
            SelectValue(QStringLiteral("select TN_NAV_QUEUE_ATTEMPTS from TN_NAV_QUEUE where "
                                       "TN_NAV_QUEUE_INVOICE_NO = ?"),
                        {no});
        const int next = int(ToInteger(attempts)) + 1;
        const QDateTime nextTry = now.toUTC().addSecs(backOffSeconds(next));
        if (Result r = ExecSql(QStringLiteral("update TN_NAV_QUEUE set TN_NAV_QUEUE_STATE = 0, "
                                              "TN_NAV_QUEUE_ATTEMPTS = ?, TN_NAV_QUEUE_NEXT_TRY = "
                                              "?, TN_NAV_QUEUE_MESSAGES = ?, TN_NAV_QUEUE_CHANGED "
                                              "= ? where TN_NAV_QUEUE_INVOICE_NO = ?"),
                               {next, nextTry.toString(Qt::ISODate), message, Now(), no});
            !r)
            return r;
    }
    if (!transaction.commit())
        return Result::failure(tr("Database error:&") + transaction.errorText());
    return Result::success();
}

Result NavQueue::markResult(qint64 invoiceNo, NavState state, const QString& messages)
{
    return ExecSql(
        QStringLiteral("update TN_NAV_QUEUE set TN_NAV_QUEUE_STATE = ?, "
                       "TN_NAV_QUEUE_MESSAGES = ?, TN_NAV_QUEUE_CHANGED = ? where "
                       "TN_NAV_QUEUE_INVOICE_NO = ?"),
        {int(state), messages.isEmpty() ? QVariant() : QVariant(messages), Now(), invoiceNo});
}

Result NavQueue::markWaiting(qint64 invoiceNo)
{
    return ExecSql(QStringLiteral("update TN_NAV_QUEUE set TN_NAV_QUEUE_STATE = 0, "
                                  "TN_NAV_QUEUE_NEXT_TRY = null, TN_NAV_QUEUE_CHANGED = ? where "
                                  "TN_NAV_QUEUE_INVOICE_NO = ? and TN_NAV_QUEUE_STATE = 1"),
                   {Now(), invoiceNo});
}

Result NavQueue::requeue(qint64 invoiceNo)
{
    return ExecSql(QStringLiteral("update TN_NAV_QUEUE set TN_NAV_QUEUE_STATE = 0, "
                                  "TN_NAV_QUEUE_ATTEMPTS = 0, TN_NAV_QUEUE_NEXT_TRY = null, "
                                  "TN_NAV_QUEUE_CHANGED = ? where TN_NAV_QUEUE_INVOICE_NO = ? and "
                                  "TN_NAV_QUEUE_STATE = 4"),
                   {Now(), invoiceNo});
}

qint64 NavQueue::backOffSeconds(int attempts)
{
    const qint64 limit = 6 * 3600;
    if (attempts <= 0)
        return 0;
    if (attempts > 20)
        return limit;
    return std::min<qint64>(limit, qint64(60) << (attempts - 1));
}

QString NavQueue::stateText(NavState state)
{
    return ReportingQueue::stateText(state);
}
