// The sales and receivables reports over a few hand-made invoices whose sums are worked out by
// hand below, their text, clipboard and CSV forms, the printed form and the report verb.
//
// The invoices (partner 1 was "Alfa Kft." and is "Alfa Zrt." since A-4):
//   A-1  Alfa Kft.  HUF        shipped 03-05 created 03-05 due 03-13  paid
//        Csavar 10 db   1000 / 270 / 1270
//   A-2  Alfa Kft.  EUR @ 300  shipped 03-10 created 03-10 due 03-20  unpaid 100 EUR
//        Csavar 5 db    100 / 0 / 100 EUR = 30000 / 0 / 30000 Ft
//   A-3  Béta Bt.   HUF consolidated, shipped 03-31 created 04-01 due 04-15  unpaid 1270
//        Anyacsavar 1 db (02-20) 500 / 135 / 635, Csavar 2 db (03-15) 200 / 54 / 254,
//        Csavar 3 db (04-02) 300 / 81 / 381
//   A-4  Alfa Zrt.  HUF        shipped 03-20 created 03-20 due 03-28  paid, unpaid total left 127
//        Csavar 1 db    100 / 27 / 127
//   an order of Béta Bt. never issued: Csavar 100 db 99999 / 0 / 99999
#include "ReportTestData.h"
#include "ScriptedInteraction.h"
#include "TestCompany.h"
#include "TestData.h"

#include "base/Database.h"
#include "base/SqlStatement.h"
#include "documents/QtfReader.h"
#include "documents/ReportOutput.h"
#include "documents/ReportQuery.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(ReportKind)
Q_DECLARE_METATYPE(ReportFilter)

namespace {

ReportFilter Filter(ReportCurrency currency = ReportCurrency::Local)
{
    ReportFilter f;
    f.currency = currency;
    return f;
}

ReportFilter Dated(ReportDate type, const char* from, const char* to,
                   ReportCurrency currency = ReportCurrency::Local)
{
    ReportFilter f = Filter(currency);
    f.byDate = true;
    f.dateType = type;
    f.from = QDate::fromString(QString::fromLatin1(from), Qt::ISODate);
    f.to = QDate::fromString(QString::fromLatin1(to), Qt::ISODate);
    return f;
}

ReportFilter Partner(qint64 id, const QString& text, ReportFilter f = {})
{
    f.byPartner = true;
    f.partnerId = id;
    f.partnerText = text;
    return f;
}

// The named columns of rows as "a|b; c|d", cells as the list shows them.
QString Rows(const ReportTable& t, const QList<QVariantList>& rows, const QStringList& columns)
{
    QStringList lines;
    for (const QVariantList& row : rows) {
        QStringList cells;
        for (const QString& title : columns) {
            const int c = t.columnIndex(title);
            cells << (c < 0 ? u"<no "_s + title + u'>'
                            : ReportOutput::cellText(t.columns.at(c), row.value(c)));
        }
        lines << cells.join(u'|');
    }
    return lines.join(u"; "_s);
}

QStringList Titles(const ReportTable& t)
{
    QStringList titles;
    for (const ReportColumn& c : t.columns)
        titles << c.title;
    return titles;
}

// A small CSV reader: ";" between cells, quoted cells with doubled quotes, CRLF line ends.
QList<QStringList> ParseCsv(QByteArray data)
{
    if (data.startsWith("\xEF\xBB\xBF"))
        data.remove(0, 3);
    static const QRegularExpression cell(u"\"((?:[^\"]|\"\")*)\"|([^;\"\r]*)"_s);
    const QString text = QString::fromUtf8(data);
    QList<QStringList> lines{{}};
    for (qsizetype at = 0; at < text.size();) {
        const QRegularExpressionMatch m = cell.match(text, at, QRegularExpression::NormalMatch,
                                                     QRegularExpression::AnchorAtOffsetMatchOption);
        lines.last() << (m.hasCaptured(1) ? m.captured(1).replace(u"\"\""_s, u"\""_s)
                                          : m.captured(2));
        at = m.capturedEnd();
        if (text.mid(at, 2) == u"\r\n"_s)
            lines << QStringList();
        at += text.mid(at, 2) == u"\r\n"_s ? 2 : 1; // the line end or the ";"
    }
    lines.removeLast();
    return lines;
}

const QString kInvoiceColumns = u"Invoice No|Net|Gross|Kind"_s;

} // namespace

class TestReports : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_company.isValid());
        QVERIFY(ReportTestData::FillInvoices());
    }

    void rows_data()
    {
        AddColumns<ReportKind, ReportFilter, QString, QString>(
            {"kind", "filter", "columns", "expected"});
        using K = ReportKind;
        using D = ReportDate;
        const auto O = ReportCurrency::Original;
        const ReportFilter march = Dated(D::Shipped, "2024-03-01", "2024-03-31");
        // The consolidated A-3 counts with its March item only.
        AddRow("products sold in March", K::ProductsSold, march,
               u"Product Name|Qty|Unit|Net|VAT|Gross"_s,
               u"Csavar|18.00|db|31300.00|351.00|31651.00"_s);
        AddRow("products sold, original currency", K::ProductsSold, Filter(O),
               u"Product Name|Qty|Currency|Net"_s,
               u"Anyacsavar|1.00|HUF|500.00; Csavar|5.00|EUR|100.00; Csavar|16.00|HUF|1600.00"_s);
        AddRow("customers in March", K::Customers, march, u"Partner Name|Net|VAT|Gross"_s,
               u"Alfa Kft.|31000|270|31270; Alfa Zrt.|100|27|127; Béta Bt.|200|54|254"_s);
        // Euro and forint invoices of one partner: one row in forint, two in their own money.
        AddRow("customers, local currency", K::Customers, Filter(), u"Partner Name|Gross"_s,
               u"Alfa Kft.|31270; Alfa Zrt.|127; Béta Bt.|1270"_s);
        AddRow("customers, original currency", K::Customers, Filter(O),
               u"Partner Name|Currency|Net|VAT|Gross"_s,
               u"Alfa Kft.|EUR|100|0|100; Alfa Kft.|HUF|1000|270|1270; Alfa Zrt.|HUF|100|27|127; "
               "Béta Bt.|HUF|1000|270|1270"_s);
        AddRow("invoices shipped in March", K::Invoices, march, kInvoiceColumns,
               u"A-1|1000|1270|Invoice; A-2|30000|30000|Invoice; "
               "A-3|200|254|Consolidated Invoice; A-4|100|127|Invoice"_s);
        AddRow("invoices created in March", K::Invoices,
               Dated(D::Created, "2024-03-01", "2024-03-31"), u"Invoice No"_s, u"A-1; A-2; A-4"_s);
        AddRow("invoices due in April", K::Invoices,
               Dated(D::PaymentDue, "2024-04-01", "2024-04-30"), u"Invoice No|Gross"_s,
               u"A-3|1270"_s);
        // Picked by id, the renamed partner keeps its older invoices.
        AddRow("partner by id", K::Invoices, Partner(1, u"Alfa Zrt."_s), u"Invoice No"_s,
               u"A-1; A-2; A-4"_s);
        AddRow("partner by old name's start", K::Invoices, Partner(0, u"alfa k"_s), u"Invoice No"_s,
               u"A-1; A-2"_s);
        AddRow("partner by folded start", K::Invoices, Partner(0, u"bet"_s), u"Invoice No"_s,
               u"A-3"_s);
        AddRow("wildcards are plain text", K::Invoices, Partner(0, u"%"_s), u"Invoice No"_s,
               QString());
        AddRow("items in March", K::InvoiceItems, march,
               u"Invoice No|Date Shipped|Product Name|Qty|Net"_s,
               u"A-1|2024.03.05.|Csavar|10.00|1000.00; A-2|2024.03.10.|Csavar|5.00|30000.00; "
               "A-3|2024.03.15.|Csavar|2.00|200.00; A-4|2024.03.20.|Csavar|1.00|100.00"_s);
        // Paid never show, whatever their unpaid total says.
        AddRow("receivables by invoices", K::ReceivablesByInvoices, Filter(),
               u"Invoice No|Currency|Gross|Unpaid Total"_s,
               u"A-2|EUR|30000|30000; A-3|HUF|1270|1270"_s);
        AddRow("receivables by invoices, original", K::ReceivablesByInvoices, Filter(O),
               u"Invoice No|Currency|Gross|Unpaid Total"_s,
               u"A-2|EUR|100|100; A-3|HUF|1270|1270"_s);
        AddRow("receivables due in April", K::ReceivablesByInvoices,
               Dated(D::PaymentDue, "2024-04-01", "2024-04-30"), u"Invoice No"_s, u"A-3"_s);
        AddRow("receivables by partners", K::ReceivablesByPartners, Filter(),
               u"Partner Name|Unpaid Total"_s, u"Alfa Kft.|30000; Béta Bt.|1270"_s);
        AddRow("receivables by partners, original", K::ReceivablesByPartners, Filter(O),
               u"Partner Name|Currency|Unpaid Total"_s, u"Alfa Kft.|EUR|100; Béta Bt.|HUF|1270"_s);
    }

    void rows()
    {
        auto [kind, filter, columns, expected] = Fetch<ReportKind, ReportFilter, QString, QString>(
            {"kind", "filter", "columns", "expected"});
        ReportTable table;
        const Result r = ReportQuery::run(kind, filter, table);
        QVERIFY2(r.ok(), qPrintable(r.message() + r.sqlError()));
        QCOMPARE(Rows(table, table.rows, columns.split(u'|')), expected);
    }

    void totals_data()
    {
        AddColumns<ReportKind, ReportFilter, QString>({"kind", "filter", "expected"});
        const auto O = ReportCurrency::Original;
        AddRow("one forint total", ReportKind::ProductsSold,
               Dated(ReportDate::Shipped, "2024-03-01", "2024-03-31"),
               u"Total|||31300.00|351.00|31651.00"_s);
        AddRow("a total per currency", ReportKind::Customers, Filter(O),
               u"Total (EUR)|EUR|100|0|100; Total (HUF)|HUF|2100|567|2667"_s);
        AddRow("receivables in forint", ReportKind::ReceivablesByPartners, Filter(),
               u"Total|31270"_s);
    }

    void totals()
    {
        auto [kind, filter, expected] =
            Fetch<ReportKind, ReportFilter, QString>({"kind", "filter", "expected"});
        ReportTable table;
        QVERIFY(ReportQuery::run(kind, filter, table).ok());
        QCOMPARE(Rows(table, table.totals, Titles(table)), expected);
    }

    void columnsAndTitles_data()
    {
        AddColumns<ReportKind, ReportCurrency, QString, QString>(
            {"kind", "currency", "title", "columns"});
        using K = ReportKind;
        const auto L = ReportCurrency::Local;
        const auto O = ReportCurrency::Original;
        AddRow("products", K::ProductsSold, O, u"Products Sold Report In Original Currency"_s,
               u"Product Name|Qty|Unit|Currency|Net|VAT|Gross"_s);
        AddRow("customers", K::Customers, L, u"Customers Report In Local Currency (HUF)"_s,
               u"Partner Name|Net|VAT|Gross"_s);
        AddRow("invoices", K::Invoices, L, u"Outgoing Invoices In Local Currency (HUF)"_s,
               u"Invoice No|Partner Name|City|Address|Date Shipped|Date Created|"
               "Date Payment Due|Currency|Net|VAT|Gross|Payment Method|Kind"_s);
        AddRow("items", K::InvoiceItems, O, u"Outgoing Invoice Items In Original Currency"_s,
               u"Invoice No|Partner Name|ZIP|City|Address|Date Shipped|Date Created|"
               "Date Payment Due|Payment Method|Kind|Stat No|Product Name|Qty|Unit|Currency|Net|"
               "VAT|Gross"_s);
        AddRow("unpaid invoices", K::ReceivablesByInvoices, L,
               u"Kifizetetlen szamlak In Local Currency (HUF)"_s,
               u"Invoice No|Partner Name|Date Shipped|Date Created|Date Payment Due|Currency|"
               "Gross|Unpaid Total"_s);
        AddRow("partners in debt", K::ReceivablesByPartners, O,
               u"Tartozo partnerek In Original Currency"_s,
               u"Partner Name|Currency|Unpaid Total"_s);
    }

    void columnsAndTitles()
    {
        auto [kind, currency, title, columns] = Fetch<ReportKind, ReportCurrency, QString, QString>(
            {"kind", "currency", "title", "columns"});
        ReportTable table;
        QVERIFY(ReportQuery::run(kind, Filter(currency), table).ok());
        QCOMPARE(table.title, title);
        QCOMPARE(Titles(table).join(u'|'), columns);
        // A row per invoice carries its order for "Show Invoice".
        if (kind == ReportKind::Invoices || kind == ReportKind::ReceivablesByInvoices)
            QCOMPARE(table.orderIds.size(), table.rows.size());
    }

    void daysAgoRange()
    {
        const QDate today(2024, 5, 10);
        const auto [from, to] = ReportQuery::daysAgoRange(5, 30, today);
        QCOMPARE(from, QDate(2024, 4, 10));
        QCOMPARE(to, QDate(2024, 5, 5));
        QCOMPARE(ReportQuery::daysAgoRange(30, 5, today), std::pair(from, to));
    }

    void csvRoundTrip()
    {
        ReportTable table;
        table.title = u"T"_s;
        table.columns = {{u"Name"_s, ReportColumn::Type::Text, 0, false},
                         {u"Day"_s, ReportColumn::Type::Date, 0, false},
                         {u"Gross"_s, ReportColumn::Type::Number, 0, true}};
        table.rows = {{u"Kovács; \"Fő\" Kft."_s, QDate(2024, 3, 5), 1234567.5},
                      {u"two\nlines"_s, QVariant(), -0.25},
                      {u"Árvíztűrő"_s, QDate(2024, 12, 31), QVariant()}};
        const QByteArray csv = ReportOutput::csv(table);
        QVERIFY(csv.startsWith("\xEF\xBB\xBF"));
        const QList<QStringList> expected{
            {u"Name"_s, u"Day"_s, u"Gross"_s},
            {u"Kovács; \"Fő\" Kft."_s, u"2024.03.05."_s, u"1234567,50"_s},
            {u"two\nlines"_s, QString(), u"-0,25"_s},
            {u"Árvíztűrő"_s, u"2024.12.31."_s, QString()}};
        QCOMPARE(ParseCsv(csv), expected);

        // The clipboard: the same cells between tabs, a line break inside a cell flattened.
        const QStringList copied = ReportOutput::tabText(table).split(u'\n');
        QCOMPARE(copied.value(1), u"Kovács; \"Fő\" Kft.\t2024.03.05.\t1234567,50"_s);
        QCOMPARE(copied.value(2), u"two lines\t\t-0,25"_s);
    }

    void textForm()
    {
        ReportTable table;
        QVERIFY(ReportQuery::run(ReportKind::Customers,
                                 Dated(ReportDate::Shipped, "2024-03-01", "2024-03-31"), table)
                    .ok());
        const QStringList lines = ReportOutput::text(table).split(u'\n');
        QCOMPARE(
            (QStringList{lines.value(0), lines.value(1), lines.value(3), lines.value(4),
                         lines.value(8)}),
            (QStringList{u"Customers Report In Local Currency (HUF)"_s,
                         u"Filter by date shipped: 2024.03.01. - 2024.03.31."_s,
                         u"Partner Name    Net  VAT  Gross"_s, u"Alfa Kft.     31000  270  31270"_s,
                         u"Total         31300  351  31651"_s}));
    }

    void printedForm()
    {
        const ReportFilter filter =
            Partner(1, u"Alfa Zrt."_s, Dated(ReportDate::Shipped, "2024-03-01", "2024-03-31"));
        ReportTable table;
        QVERIFY(ReportQuery::run(ReportKind::Customers, filter, table).ok());
        const QString text =
            QtfToPlainText(ReportOutput::qtf(table, u"Minta Bt."_s, QDate(2024, 4, 2)), true);
        const QStringList lines = text.split(u'\n');
        QCOMPARE(
            lines.mid(0, 5),
            (QStringList{u"Customers Report In Local Currency (HUF)"_s, u"Partner: Alfa Zrt."_s,
                         u"Filter by date shipped: 2024.03.01. - 2024.03.31."_s, u"Minta Bt."_s,
                         u"Printing Date: 2024.04.02."_s}));
        // Whole forints grouped by no-break spaces; the totals close the table.
        QVERIFY2(text.contains(u"Alfa Kft.\t31\u00A0000\t270\t31\u00A0270"_s), qPrintable(text));
        QVERIFY2(text.contains(u"Total\t31\u00A0100\t297\t31\u00A0397"_s), qPrintable(text));

        // The receivables print their grand total under the list.
        QVERIFY(ReportQuery::run(ReportKind::ReceivablesByPartners, Filter(), table).ok());
        const QString receivables = QtfToPlainText(ReportOutput::qtf(table, u"M"_s, {}), true);
        QVERIFY2(receivables.trimmed().endsWith(u"Total: 31\u00A0270"_s), qPrintable(receivables));

        QTemporaryDir dir;
        const QString pdf = dir.filePath(u"r.pdf"_s);
        QVERIFY(ReportOutput::report(table, u"M"_s).exportPdf(pdf).ok());
        QVERIFY(QFileInfo(pdf).size() > 1000);
    }

    void cli_data()
    {
        AddColumns<QStringList, int, QString>({"args", "exitCode", "contains"});
        const auto row = [](const char* name, const char* args, int exitCode, const QString& out) {
            AddRow(name, QString::fromUtf8(args).split(u' '), exitCode, out);
        };
        row("euro in forint", "receivables-invoices", 0,
            u"2024.03.20.       EUR       30000         30000"_s);
        row("csv", "customers --currency original --format csv", 0,
            u"Alfa Kft.;EUR;100,00;0,00;100,00"_s);
        row("by partner id", "invoices --partner-id 1", 0, u"Partner: Alfa Zrt."_s);
        row("unknown report", "sales", 2, {});
        row("receivables by date created",
            "receivables-partners --from 2024.01.01. --to 2024.12.31. --date created", 2, {});
        row("from without to", "items --from 2024-01-01", 2, {});
        row("pdf without file", "items --format pdf", 2, {});
    }

    void cli()
    {
        auto [args, exitCode, contains] =
            Fetch<QStringList, int, QString>({"args", "exitCode", "contains"});
        Database::close();
        const ProcessRun r = RunProcess(
            QStringLiteral(TN_CLI), QStringList{u"--db"_s, m_company.path(), u"report"_s} + args);
        QVERIFY(Database::open(m_company.path()).ok());
        QVERIFY2(r.exitCode == exitCode, qPrintable(r.err));
        QVERIFY2(r.out.contains(contains), qPrintable(r.out));
    }

    // Last: it adds a great many items to A-1 for a while.
    void cancel_data()
    {
        AddColumns<ReportKind>({"kind"});
        // Stopped while the rows are read, and while SQLite groups them before the first row (three
        // customers: no row loop to stop in).
        AddRow("rows", ReportKind::InvoiceItems);
        AddRow("grouping", ReportKind::Customers);
    }

    void cancel()
    {
        auto [kind] = Fetch<ReportKind>({"kind"});
        QVERIFY(ReportTestData::Exec(
            u"insert into ORDERITEM (ORDERITEM_ORDERHEAD_ID, ORDERITEM_NAME, ORDERITEM_QTY) "
            "with recursive n(i) as (select 1 union all select i + 1 from n where i < 400000) "
            "select 1, 'Filler ' || (i % 5000), 1 from n"_s));
        ReportTable table;
        table.title = u"before"_s;
        ScriptedInteraction ask;
        ask.cancelAfterChecks = 0;
        const auto progress = ask.progress(u"Running"_s);
        const Result r = ReportQuery::run(kind, Filter(), table, progress.get());
        QVERIFY(
            ReportTestData::Exec(u"delete from ORDERITEM where ORDERITEM_NAME like 'Filler %'"_s));
        QVERIFY(!r.ok());
        QCOMPARE(r.message(), QString()); // nothing to tell
        QCOMPARE(table.title, u"before"_s);
    }

private:
    TestCompany m_company;
};

QTEST_MAIN(TestReports)
#include "tst_reports.moc"
