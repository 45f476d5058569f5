#include "ReportingQueue.h"

#include "base/SqlStatement.h"

#include <QDateTime>

Result ReportingQueue::queue(qint64 invoiceNo, qint64 orderId)
{
    SqlStatement st(QStringLiteral("insert into TN_NAV_QUEUE (TN_NAV_QUEUE_INVOICE_NO, "
                                   "TN_NAV_QUEUE_ORDERHEAD_ID, TN_NAV_QUEUE_STATE, "
                                   "TN_NAV_QUEUE_QUEUED) values (?, ?, 0, ?)"),
                    {invoiceNo, orderId, QDateTime::currentDateTimeUtc().toString(Qt::ISODate)});
    if (!st.exec())
        return st.failure(tr("Database error:&") + st.errorText());
    return Result::success();
}

QString ReportingQueue::stateText(NavState state)
{
    switch (state) {
    case NavState::Waiting:
        return tr("Waiting");
    case NavState::Sent:
        return tr("Sent");
    case NavState::Accepted:
        return tr("Accepted");
    case NavState::AcceptedWithWarnings:
        return tr("Accepted with warnings");
    case NavState::Rejected:
        return tr("Rejected");
    }
    return {};
}
