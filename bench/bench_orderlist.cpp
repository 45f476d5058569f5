// The order list's first screen on a large company: for the default view, each of the eight
// kinds, each date filter and a partner prefix, the time the list's model takes to read its rows
// (OrderListModel::load, as the tab does) beside the bare SQL "select ... limit" of the same rows
// run in the same process, and the ratio. Then the query plan of each bare query, which must not
// walk the whole ORDERHEAD table.
//
//   ./build/bench/bench_orders_fill orders.db            # once: 1 000 000 orders
//   ./build/bench/bench_orderlist orders.db [limit]       # limit: the first screen, default 1000
#include "BenchCompany.h"

#include "base/Database.h"
#include "base/FoldName.h"
#include "orders/ui/OrderListModel.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QSqlQuery>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int kRuns = 7;

struct Case
{
    const char* name;
    OrderListFilter filter;
    QString where; // the same condition, as the bare query writes it
    QVariantList binds;
};

const char* kColumns =
    "ORDERHEAD_ID, ORDERHEAD_CODE, ORDERHEAD_INVOICE_NO_STR, ORDERHEAD_PARTNER_NAME, "
    "ORDERHEAD_DATE_SHIPPED, ORDERHEAD_DATE_CREATED, ORDERHEAD_DATE_PAYMENT_DUE, "
    "ORDERHEAD_CURRENCY_ABBREVIATION, ORDERHEAD_TOTAL_NET, ORDERHEAD_TOTAL_VAT, "
    "ORDERHEAD_TOTAL_GROSS, ORDERHEAD_UNPAID_TOTAL, ORDERHEAD_PAYMENTMETHOD_NAME, "
    "ORDERHEAD_TYPE, ORDERHEAD_VERIFIED, ORDERHEAD_INVOICE_NO, ORDERHEAD_CANCELLING_INVOICE_NO, "
    "ORDERHEAD_CONSOLIDATED_INVOICE, ORDERHEAD_CURRENCY_INVOICE_TOTAL_PRINTING_DECIMALS";

QString BareSql(const Case& c)
{
    QString sql = QStringLiteral("select %1 from ORDERHEAD").arg(QLatin1StringView(kColumns));
    if (!c.where.isEmpty())
        sql += QStringLiteral(" where ") + c.where;
    return sql + QStringLiteral(" order by ORDERHEAD_ID desc limit ?");
}

double Median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

double BareMs(const Case& c, int limit, int& rows)
{
    QElapsedTimer timer;
    timer.start();
    QSqlQuery q(Database::session());
    q.setForwardOnly(true);
    q.prepare(BareSql(c));
    for (const QVariant& b : c.binds)
        q.addBindValue(b);
    q.addBindValue(limit + 1);
    q.exec();
    rows = 0;
    while (q.next()) {
        for (int i = 0; i < 19; ++i)
            (void)q.value(i);
        ++rows;
    }
    return timer.nsecsElapsed() / 1e6;
}

double ListMs(const Case& c, int limit, int& rows)
{
    OrderListModel model;
    OrderListFilter filter = c.filter;
    filter.limit = limit;
    QElapsedTimer timer;
    timer.start();
    if (Result r = model.load(filter); !r)
        std::fprintf(stderr, "%s: %s\n", c.name, qPrintable(r.message()));
    rows = model.rowCount();
    return timer.nsecsElapsed() / 1e6;
}

QStringList Plan(const Case& c, int limit)
{
    QSqlQuery q(Database::session());
    q.prepare(QStringLiteral("explain query plan ") + BareSql(c));
    for (const QVariant& b : c.binds)
        q.addBindValue(b);
    q.addBindValue(limit + 1);
    q.exec();
    QStringList lines;
    while (q.next())
        lines << q.value(3).toString();
    return lines;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() < 2) {
        std::fprintf(stderr, "usage: bench_orderlist COMPANY.db [limit]\n");
        return 2;
    }
    QElapsedTimer opening;
    opening.start();
    if (Result r = OpenBenchCompany(args.at(1)); !r) {
        std::fprintf(stderr, "%s\n", qPrintable(r.message()));
        return 1;
    }
    std::printf("opened (schema extensions included) in %.0f ms\n", opening.elapsed() * 1.0);
    const int limit = args.size() > 2 ? args.at(2).toInt() : 1000;

    QSqlQuery last(Database::session());
    last.exec(QStringLiteral(
        "select (select ORDERHEAD_DATE_SHIPPED from ORDERHEAD order by ORDERHEAD_ID desc "
        "limit 1), count(*) from ORDERHEAD"));
    last.next();
    const QDate newest = QDate::fromString(last.value(0).toString(), Qt::ISODate);
    std::printf("%lld orders, newest shipped %s, first screen %d rows\n",
                last.value(1).toLongLong(), qPrintable(newest.toString(Qt::ISODate)), limit);
    last.finish();
    // A month a year back: old enough that the rowid order does not find it early.
    const QDate from = newest.addYears(-1).addDays(1 - newest.day());
    const QDate to = from.addMonths(1).addDays(-1);
    const QString f = from.toString(Qt::ISODate), t = to.toString(Qt::ISODate);
    const QString today = QDate::currentDate().toString(Qt::ISODate);

    QList<Case> cases;
    cases.append({"every order", {}, {}, {}});
    const char* kindNames[] = {"not printed",     "printed",   "unverified", "verified",
                               "cancel invoices", "cancelled", "unpaid",     "overdue"};
    const QString kindWhere[] = {
        "coalesce(ORDERHEAD_PRINTED_COPIES, 0) = 0",
        "ORDERHEAD_PRINTED_COPIES > 0",
        "coalesce(ORDERHEAD_VERIFIED, '0') <> '1'",
        "ORDERHEAD_VERIFIED = '1' and ORDERHEAD_INVOICE_NO is null",
        "ORDERHEAD_TYPE = 1",
        "ORDERHEAD_CANCELLING_INVOICE_NO is not null and ORDERHEAD_INVOICE_NO is not null",
        "ORDERHEAD_INVOICE_NO is not null and coalesce(ORDERHEAD_PAID, '0') <> '1'",
        "ORDERHEAD_INVOICE_NO is not null and coalesce(ORDERHEAD_PAID, '0') <> '1' and "
        "ORDERHEAD_DATE_PAYMENT_DUE < ?",
    };
    for (int kind = 0; kind < 8; ++kind) {
        Case c{kindNames[kind], {}, kindWhere[kind], {}};
        c.filter.kind = kind;
        if (kind == 7)
            c.binds << today;
        cases.append(c);
    }
    {
        Case c{"date shipped, a month", {}, {}, {f, t, f, t}};
        c.filter.from = from;
        c.filter.to = to;
        c.filter.dateField = OrderListFilter::DateField::Shipped;
        c.where = "(ORDERHEAD_DATE_SHIPPED >= ? and ORDERHEAD_DATE_SHIPPED <= ? or ORDERHEAD_ID "
                  "in (select ORDERITEM_ORDERHEAD_ID from ORDERITEM where ORDERITEM_DATE_SHIPPED "
                  ">= ? and ORDERITEM_DATE_SHIPPED <= ?))";
        cases.append(c);
    }
    {
        Case c{"date created, a month", {}, {}, {f, t}};
        c.filter.from = from;
        c.filter.to = to;
        c.filter.dateField = OrderListFilter::DateField::Created;
        c.where = "ORDERHEAD_DATE_CREATED >= ? and ORDERHEAD_DATE_CREATED <= ?";
        cases.append(c);
    }
    {
        Case c{"payment due, a month", {}, {}, {f, t}};
        c.filter.from = from;
        c.filter.to = to;
        c.filter.dateField = OrderListFilter::DateField::PaymentDue;
        c.where = "ORDERHEAD_DATE_PAYMENT_DUE >= ? and ORDERHEAD_DATE_PAYMENT_DUE <= ?";
        cases.append(c);
    }
    {
        const QString partner = QString::fromUtf8("Mészáros");
        Case c{"partner \"Mészáros\"", {}, {}, {}};
        c.binds << FoldName(partner) << QString(FoldName(partner) + QChar(0xFFFF));
        c.filter.partner = partner;
        c.where = "ORDERHEAD_PARTNER_NAME_ASCII >= ? and ORDERHEAD_PARTNER_NAME_ASCII < ?";
        cases.append(c);
    }
    {
        Case c{"unpaid, date created", {}, {}, {f, t}};
        c.filter.kind = 6;
        c.filter.from = from;
        c.filter.to = to;
        c.filter.dateField = OrderListFilter::DateField::Created;
        c.where =
            kindWhere[6] +
            QStringLiteral(" and ORDERHEAD_DATE_CREATED >= ? and ORDERHEAD_DATE_CREATED <= ?");
        cases.append(c);
    }

    std::printf("\n%-24s %7s %10s %10s %7s\n", "filter", "rows", "list ms", "bare ms", "ratio");
    bool fullScan = false;
    for (const Case& c : cases) {
        QList<double> list, bare;
        int listRows = 0, bareRows = 0;
        ListMs(c, limit, listRows); // warm the cache
        for (int i = 0; i < kRuns; ++i) {
            bare << BareMs(c, limit, bareRows);
            list << ListMs(c, limit, listRows);
        }
        const double l = Median(list), b = Median(bare);
        std::printf("%-24s %7d %10.2f %10.2f %7.2f%s\n", c.name, listRows, l, b, b > 0 ? l / b : 0,
                    listRows != qMin(bareRows, limit) ? "  (row counts differ!)" : "");
    }
    // A plan that scans ORDERHEAD without an index and then sorts has read every order. A scan in
    // id order without a sort stops once the first screen is full.
    std::printf("\nquery plans:\n");
    int fullScans = 0;
    for (const Case& c : cases) {
        const QStringList plan = Plan(c, limit);
        const bool scans = plan.contains(QLatin1String("SCAN ORDERHEAD"));
        const bool sorts = plan.join(u' ').contains(QLatin1String("TEMP B-TREE"));
        if (scans && sorts)
            ++fullScans;
        std::printf("%-24s %s%s\n", c.name, qPrintable(plan.join(QStringLiteral(" | "))),
                    scans && sorts    ? "  <- FULL SCAN"
                    : scans && !sorts ? "  (id order, stops at the limit)"
                                      : "");
    }
    std::printf("\n%d plans read every order\n", fullScans);
    return 0;
}
