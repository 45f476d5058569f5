#include "ReportingQueue.h"

#include "base/SqlStatement.h"

#include <QCoreApplication>
#include <QDateTime>

Result QueueForReporting(qint64 invoiceNo, qint64 orderId)
{
    SqlStatement st(QStringLiteral("insert into TN_NAV_QUEUE (TN_NAV_QUEUE_INVOICE_NO, "
                                   "TN_NAV_QUEUE_ORDERHEAD_ID, TN_NAV_QUEUE_STATE, "
                                   "TN_NAV_QUEUE_QUEUED) values (?, ?, 0, ?)"),
                    {invoiceNo, orderId, QDateTime::currentDateTimeUtc().toString(Qt::ISODate)});
    if (!st.exec())
        return st.failure(QCoreApplication::translate("InvoiceNumbering", "Database error:&") +
                          st.errorText());
    return Result::success();
}
