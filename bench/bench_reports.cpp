// The sales and receivables reports on a large company: for each report, currency and filter,
// the time ReportQuery::run takes to give the rows (with their totals) beside the bare SQL of
// the same aggregate, executed and stepped through in the same process, and the ratio. The
// target is a ratio within 1.5.
//
//   ./build/bench/bench_orders_fill orders.db             # once: 1 000 000 orders
//   ./build/bench/bench_reports orders.db [runs] [text]    # text: only the cases naming it
//
// Each time is the fastest of the runs: on a machine shared with other work the least disturbed
// run is the one that tells the cost.
//
// The per-invoice and per-item lists run over the last year and the last month, not over
// every one of the five million items: nobody prints those, and their rows would only measure
// memory.
#include "BenchCompany.h"

#include "base/DateText.h"
#include "base/FoldName.h"
#include "base/SqlStatement.h"
#include "documents/ReportQuery.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QSqlQuery>
#include <QSqlRecord>

#include <algorithm>
#include <cstdio>

namespace {

const char* const kJoin = " from ORDERITEM join ORDERHEAD on ORDERHEAD_ID = ORDERITEM_ORDERHEAD_ID";

// The bare query of a report: the same grouping and sums, the filter's condition as given.
QString BareSql(ReportKind kind, bool local, const QString& where)
{
    const QString item = local ? QStringLiteral("ORDERITEM_TOTAL_LOCAL_CURRENCY_")
                               : QStringLiteral("ORDERITEM_TOTAL_");
    const QString sums = QStringLiteral("sum(%1NET), sum(%1VAT), sum(%1GROSS)").arg(item);
    const QString cur = local ? QString() : QStringLiteral(", ORDERHEAD_CURRENCY_ABBREVIATION");
    const QString sales = u" where ORDERHEAD_INVOICE_NO_STR is not null" + where;
    const QString unpaid = u" where ORDERHEAD_INVOICE_NO is not null and "
                           "coalesce(ORDERHEAD_PAID, '0') <> '1'" +
                           where;
    switch (kind) {
    case ReportKind::ProductsSold:
        return u"select ORDERITEM_NAME, sum(ORDERITEM_QTY), ORDERITEM_UNIT" + cur + u", " + sums +
               QLatin1String(kJoin) + sales + u" group by ORDERITEM_NAME, ORDERITEM_UNIT" + cur +
               u" order by ORDERITEM_NAME, ORDERITEM_UNIT" + cur;
    case ReportKind::Customers:
        return u"select ORDERHEAD_PARTNER_NAME" + cur + u", " + sums + QLatin1String(kJoin) +
               sales + u" group by ORDERHEAD_PARTNER_NAME" + cur +
               u" order by ORDERHEAD_PARTNER_NAME" + cur;
    case ReportKind::Invoices:
        return u"select ORDERHEAD_ID, ORDERHEAD_INVOICE_NO_STR, ORDERHEAD_PARTNER_NAME, "
               "ORDERHEAD_PARTNER_CITY, ORDERHEAD_PARTNER_ADDRESS, ORDERHEAD_DATE_SHIPPED, "
               "ORDERHEAD_DATE_CREATED, ORDERHEAD_DATE_PAYMENT_DUE, "
               "ORDERHEAD_CURRENCY_ABBREVIATION, " +
               sums +
               u", ORDERHEAD_PAYMENTMETHOD_NAME, ORDERHEAD_TYPE, ORDERHEAD_VERIFIED, "
               "ORDERHEAD_INVOICE_NO, ORDERHEAD_CANCELLING_INVOICE_NO, "
               "ORDERHEAD_CONSOLIDATED_INVOICE" +
               QLatin1String(kJoin) + sales +
               u" group by ORDERHEAD_ID order by ORDERHEAD_INVOICE_NO_STR, ORDERHEAD_ID";
    case ReportKind::InvoiceItems:
        return u"select ORDERHEAD_ID, ORDERHEAD_INVOICE_NO_STR, ORDERHEAD_PARTNER_NAME, "
               "ORDERHEAD_PARTNER_ZIP, ORDERHEAD_PARTNER_CITY, ORDERHEAD_PARTNER_ADDRESS, "
               "ORDERITEM_DATE_SHIPPED, ORDERHEAD_DATE_CREATED, ORDERHEAD_DATE_PAYMENT_DUE, "
               "ORDERHEAD_PAYMENTMETHOD_NAME, ORDERHEAD_TYPE, ORDERHEAD_VERIFIED, "
               "ORDERHEAD_INVOICE_NO, ORDERHEAD_CANCELLING_INVOICE_NO, "
               "ORDERHEAD_CONSOLIDATED_INVOICE, ORDERITEM_STAT_NO, ORDERITEM_NAME, "
               "ORDERITEM_QTY, ORDERITEM_UNIT, ORDERHEAD_CURRENCY_ABBREVIATION, " +
               item + u"NET, " + item + u"VAT, " + item + u"GROSS" + QLatin1String(kJoin) + sales +
               u" order by ORDERHEAD_INVOICE_NO_STR, ORDERITEM_ID";
    case ReportKind::ReceivablesByInvoices:
        return u"select ORDERHEAD_ID, ORDERHEAD_INVOICE_NO_STR, ORDERHEAD_PARTNER_NAME, "
               "ORDERHEAD_DATE_SHIPPED, ORDERHEAD_DATE_CREATED, ORDERHEAD_DATE_PAYMENT_DUE, "
               "ORDERHEAD_CURRENCY_ABBREVIATION, " +
               (local ? QStringLiteral("ORDERHEAD_TOTAL_LOCAL_CURRENCY_GROSS, "
                                       "ORDERHEAD_CURRENCY_RATE * ORDERHEAD_UNPAID_TOTAL")
                      : QStringLiteral("ORDERHEAD_TOTAL_GROSS, ORDERHEAD_UNPAID_TOTAL")) +
               u" from ORDERHEAD" + unpaid + u" order by ORDERHEAD_INVOICE_NO_STR, ORDERHEAD_ID";
    case ReportKind::ReceivablesByPartners:
        return u"select ORDERHEAD_PARTNER_NAME" + cur + u", " +
               (local ? QStringLiteral("sum(ORDERHEAD_CURRENCY_RATE * ORDERHEAD_UNPAID_TOTAL)")
                      : QStringLiteral("sum(ORDERHEAD_UNPAID_TOTAL)")) +
               u" from ORDERHEAD" + unpaid + u" group by ORDERHEAD_PARTNER_NAME" + cur +
               u" order by ORDERHEAD_PARTNER_NAME" + cur;
    }
    return {};
}

struct Case
{
    QString name;
    ReportKind kind;
    ReportFilter filter;
    QString where; // the filter as the bare query writes it
    QVariantList binds;
};

double Fastest(const QList<double>& values)
{
    return *std::min_element(values.begin(), values.end());
}

double BareMs(const Case& c, qsizetype& rows)
{
    QElapsedTimer timer;
    timer.start();
    QSqlQuery q(Database::session());
    q.setForwardOnly(true);
    q.prepare(BareSql(c.kind, c.filter.currency == ReportCurrency::Local, c.where));
    for (const QVariant& v : c.binds)
        q.addBindValue(v);
    if (!q.exec()) {
        std::fprintf(stderr, "bare query failed: %s\n", qPrintable(q.lastQuery()));
        return -1;
    }
    const int columns = q.record().count();
    rows = 0;
    while (q.next()) {
        for (int i = 0; i < columns; ++i)
            (void)q.value(i);
        ++rows;
    }
    return timer.nsecsElapsed() / 1e6;
}

double ReportMs(const Case& c, qsizetype& rows)
{
    QElapsedTimer timer;
    timer.start();
    ReportTable table;
    if (Result r = ReportQuery::run(c.kind, c.filter, table); !r) {
        std::fprintf(stderr, "report failed: %s %s\n", qPrintable(r.message()),
                     qPrintable(r.sqlError()));
        return -1;
    }
    rows = table.rows.size();
    return timer.nsecsElapsed() / 1e6;
}

const char* KindName(ReportKind kind)
{
    switch (kind) {
    case ReportKind::ProductsSold:
        return "products";
    case ReportKind::Customers:
        return "customers";
    case ReportKind::Invoices:
        return "invoices";
    case ReportKind::InvoiceItems:
        return "items";
    case ReportKind::ReceivablesByInvoices:
        return "receivables-invoices";
    case ReportKind::ReceivablesByPartners:
        return "receivables-partners";
    }
    return "?";
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() < 2) {
        std::fprintf(stderr, "usage: bench_reports COMPANY.db [runs] [text]\n");
        return 2;
    }
    const int runs = args.size() > 2 ? std::max(1, args.at(2).toInt()) : 3;
    const QString only = args.value(3);
    if (Result r = OpenBenchCompany(args.at(1)); !r) {
        std::fprintf(stderr, "%s\n", qPrintable(r.message()));
        return 1;
    }
    // The generator's newest orders are today's.
    const QDate newest = QDate::currentDate();
    const QDate monthStart = newest.addMonths(-1).addDays(1);
    const QDate yearStart = newest.addYears(-1).addDays(1);
    const QString prefix = FoldName(QStringLiteral("Kovács és Társa 1"));

    QList<Case> cases;
    const ReportKind kinds[] = {ReportKind::ProductsSold,
                                ReportKind::Customers,
                                ReportKind::Invoices,
                                ReportKind::InvoiceItems,
                                ReportKind::ReceivablesByInvoices,
                                ReportKind::ReceivablesByPartners};
    for (const ReportKind kind : kinds) {
        const bool receivables = ReportQuery::isReceivables(kind);
        const bool lists = kind == ReportKind::Invoices || kind == ReportKind::InvoiceItems;
        for (const ReportCurrency currency : {ReportCurrency::Local, ReportCurrency::Original}) {
            const QString label = QString::fromLatin1(KindName(kind)) +
                                  (currency == ReportCurrency::Local ? u" local" : u" original");
            ReportFilter all;
            all.currency = currency;
            if (!lists)
                cases.append({label + u", everything", kind, all, QString(), {}});
            const QString dateColumn = receivables ? QStringLiteral("ORDERHEAD_DATE_PAYMENT_DUE")
                                                   : QStringLiteral("ORDERITEM_DATE_SHIPPED");
            for (const auto& [span, from] :
                 {std::pair{QStringLiteral(", last year"), yearStart},
                  std::pair{QStringLiteral(", last month"), monthStart}}) {
                ReportFilter dated = all;
                dated.byDate = true;
                dated.dateType = receivables ? ReportDate::PaymentDue : ReportDate::Shipped;
                dated.from = from;
                dated.to = newest;
                cases.append({label + span,
                              kind,
                              dated,
                              u" and " + dateColumn + u" between ? and ?",
                              {DateToSql(from), DateToSql(newest)}});
            }
            ReportFilter partner = all;
            partner.byPartner = true;
            partner.partnerText = prefix;
            cases.append({label + u", partner prefix",
                          kind,
                          partner,
                          QStringLiteral(" and ORDERHEAD_PARTNER_NAME_ASCII >= ? and "
                                         "ORDERHEAD_PARTNER_NAME_ASCII < ?"),
                          {prefix, QString(prefix + QChar(0xFFFF))}});
        }
    }

    std::printf("%-48s %10s %10s %10s %6s\n", "report", "rows", "report ms", "bare ms", "ratio");
    double worst = 0;
    for (const Case& c : cases) {
        if (!c.name.contains(only))
            continue;
        QList<double> report, bare;
        qsizetype reportRows = 0, bareRows = 0;
        // Alternated, so that the page cache serves both alike.
        for (int i = 0; i < runs; ++i) {
            bare << BareMs(c, bareRows);
            report << ReportMs(c, reportRows);
        }
        const double r = Fastest(report), b = Fastest(bare);
        const double ratio = b > 0 ? r / b : 0;
        // Times of a millisecond or two are noise, not a ratio.
        if (b >= 2)
            worst = std::max(worst, ratio);
        std::printf("%-48s %10lld %10.1f %10.1f %6.2f%s\n", qPrintable(c.name),
                    static_cast<long long>(reportRows), r, b, ratio,
                    reportRows == bareRows ? "" : "  ROW COUNTS DIFFER");
        std::fflush(stdout);
    }
    std::printf("worst ratio over 2 ms %.2f (target 1.5)\n", worst);
    return 0;
}
