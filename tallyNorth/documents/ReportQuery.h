// The sales and receivables reports without a window: one query per report, grouped and summed
// by SQLite, the amounts as stored. The dialogs and the command line show the same tables.
#pragma once

#include "base/Result.h"

#include <QCoreApplication>
#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

class Progress;

enum class ReportKind {
    ProductsSold,
    Customers,
    Invoices,
    InvoiceItems,
    ReceivablesByInvoices,
    ReceivablesByPartners,
};

enum class ReportDate { Shipped, Created, PaymentDue };
enum class ReportCurrency { Local, Original };

struct ReportFilter
{
    bool byPartner = false;
    qint64 partnerId = 0; // a partner picked from the finder; 0: the typed text is a prefix
    QString partnerText;  // shown in the printed form; searched folded when partnerId is 0
    bool byDate = false;
    ReportDate dateType = ReportDate::Shipped; // the receivables filter the payment due date only
    QDate from;
    QDate to;
    ReportCurrency currency = ReportCurrency::Local;
};

struct ReportColumn
{
    enum class Type { Text, Date, Number };
    QString title;
    Type type = Type::Text;
    int decimals = 0; // numbers: shown with this many decimals
    bool sum = false; // added up in the totals row
};

struct ReportTable
{
    ReportKind kind = ReportKind::Invoices;
    QString title;
    QList<ReportColumn> columns;
    // Values as read: QString, QDate or double (null: empty cell).
    QList<QVariantList> rows;
    QList<qint64> orderIds; // the invoice of each row where a row is one (else empty)
    // One closing row per currency: all in forint with the local currency, else each currency's
    // own (amounts of different currencies are never added). Text columns are empty but the
    // first, which names the row.
    QList<QVariantList> totals;
    // The filter as the printed form tells it: "Partner: ...", "Filter by date shipped: ...".
    QStringList filterLines;

    int columnIndex(const QString& title) const;
};

class ReportQuery
{
    Q_DECLARE_TR_FUNCTIONS(ReportQuery)

public:
    // Runs the report's query. A progress, when given, is asked about cancelling while rows are
    // read; a cancelled run fails with an empty message and leaves table as it was.
    static Result run(ReportKind kind, const ReportFilter& filter, ReportTable& table,
                      Progress* progress = nullptr);

    static QString title(ReportKind kind, ReportCurrency currency);
    static bool isReceivables(ReportKind kind);
    // The text of a date type as the dialog offers it ("Filter by date shipped").
    static QString dateTypeText(ReportDate type);
    // The payment due days of the receivables' day-count mode: the day n days before today for
    // each count, the older day first.
    static std::pair<QDate, QDate> daysAgoRange(int days1, int days2,
                                                const QDate& today = QDate::currentDate());
};
