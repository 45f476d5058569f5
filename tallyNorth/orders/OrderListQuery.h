// The rows of the order list under its filter: the query that the list window and the command
// line share.
#pragma once

#include "ConvertOrderType.h"

#include "base/Result.h"

#include <QCoreApplication>
#include <QDate>
#include <QList>
#include <QString>

#include <optional>

struct OrderListFilter
{
    enum class DateField { Shipped, Created, PaymentDue };
    enum class Kind {
        NotPrinted = 0,
        Printed = 1,
        Unverified = 2,
        Verified = 3,
        CancelInvoices = 4,
        Cancelled = 5,
        Unpaid = 6,
        Overdue = 7,
        NotAccepted = 8, // issued, but not (yet) accepted by the online invoice system
    };

    std::optional<int> kind; // a Kind value; none lists every order
    DateField dateField = DateField::Shipped;
    QDate from; // invalid: open
    QDate to;
    QString partner; // beginning of the partner's name, folded
    int limit = 0;   // 0: every row
};

struct OrderListRow
{
    qint64 id = 0;
    QString code;
    QString invoiceNoStr;
    QString partnerName;
    QDate dateShipped;
    QDate dateCreated;
    QDate datePaymentDue;
    QString currency;
    double totalNet = 0.0;
    double totalVat = 0.0;
    double totalGross = 0.0;
    double unpaidTotal = 0.0;
    QString paymentMethod;
    OrderTypeText kind;
    bool verified = false;
    int printingDecimals = 0;       // the order's invoice total printing decimals
    std::optional<int> reportState; // a NavState value; none: not in the reporting queue
    QString reportMessages;         // the authority's messages, "&" between them
};

class OrderListQuery
{
    Q_DECLARE_TR_FUNCTIONS(OrderListQuery)

public:
    // Newest first. more is set when more orders match than the limit let through.
    static Result load(const OrderListFilter& filter, QList<OrderListRow>& rows, bool& more,
                       const QDate& today = QDate::currentDate());
    // "There are more matching orders then displayed. Try more specific filter."
    static QString moreMessage();
};
