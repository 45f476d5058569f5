// The order list's filter against a real company database: the eight kinds, the dates (shipped
// also through the items), the partner and the record limit; and the status text of a row.
#include "CompanyTestCase.h"
#include "OrdersTestData.h"

#include "orders/ConvertOrderType.h"
#include "orders/OrderListQuery.h"

#include <QtTest>

namespace {

// name, copies, verified, invoice no, type, paid, cancelling no, shipped, created, due
void InsertOrder(const QString& name, const QVariantList& values)
{
    OrdersInsert("ORDERHEAD",
                 "PARTNER_NAME PARTNER_NAME_ASCII PRINTED_COPIES VERIFIED INVOICE_NO TYPE PAID "
                 "CANCELLING_INVOICE_NO DATE_SHIPPED DATE_CREATED DATE_PAYMENT_DUE",
                 QVariantList{name, name.toUpper()} + values);
}

const QDate kToday(2024, 6, 15);

// The partner names of the rows the filter gives, newest first, and whether there are more.
QString Names(const OrderListFilter& filter, bool* more = nullptr)
{
    QList<OrderListRow> rows;
    bool hasMore = true; // the query must say
    const Result r = OrderListQuery::load(filter, rows, hasMore, kToday);
    if (more)
        *more = hasMore;
    QStringList names;
    for (const OrderListRow& row : std::as_const(rows))
        names << row.partnerName;
    return r ? names.join(u' ') : "<" + r.message() + ">";
}

} // namespace

class TestOrderListQuery : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        CompanyTestCase::init();
        QVERIFY(ExecSql("delete from ORDERHEAD"));
        const QVariant null;
        // Added in this order; the list shows the newest first.
        InsertOrder("Aa", {0, "0", null, 0, "0", null, "2024-01-10", "2024-01-10", "2024-01-20"});
        InsertOrder("Bb", {0, "1", null, 0, "0", null, "2024-02-10", "2024-02-10", "2024-02-20"});
        InsertOrder("Cc", {1, "1", 1, 0, "0", null, "2024-03-10", "2024-03-10", "2024-06-14"});
        InsertOrder("Dd", {1, "1", 2, 0, "0", null, "2024-04-10", "2024-04-10", "2024-06-15"});
        InsertOrder("Ee", {1, "1", 3, 0, "1", 4, "2024-05-10", "2024-05-10", "2024-05-20"});
        InsertOrder("Ff", {1, "1", 4, 1, "1", null, "2024-05-11", "2024-05-11", "2024-05-21"});
        // A consolidated order whose head date is old but whose item shipped in March.
        InsertOrder("Gg", {0, "0", null, 0, "0", null, "2023-12-01", "2023-12-01", "2023-12-11"});
        QVERIFY(ExecSql("insert into ORDERITEM (ORDERITEM_ORDERHEAD_ID, ORDERITEM_DATE_SHIPPED) "
                        "select max(ORDERHEAD_ID), '2024-03-05' from ORDERHEAD"));
    }

    void filters_data()
    {
        AddColumns<QVariant, int, QDate, QDate, QString, QString>(
            {"kind", "dateField", "from", "to", "partner", "expected"});
        const QDate none;
        const QVariant all;
        AddRow("every order", all, 0, none, none, QString(), QString("Gg Ff Ee Dd Cc Bb Aa"));
        AddRow("not printed", QVariant(0), 0, none, none, QString(), QString("Gg Bb Aa"));
        AddRow("unverified", QVariant(2), 0, none, none, QString(), QString("Gg Aa"));
        AddRow("verified, not yet issued", QVariant(3), 0, none, none, QString(), QString("Bb"));
        AddRow("cancel invoices", QVariant(4), 0, none, none, QString(), QString("Ff"));
        AddRow("cancelled invoices", QVariant(5), 0, none, none, QString(), QString("Ee"));
        AddRow("unpaid invoices", QVariant(6), 0, none, none, QString(), QString("Dd Cc"));
        AddRow("overdue: due before today", QVariant(7), 0, none, none, QString(), QString("Cc"));
        AddRow("shipped, through the items", all, 0, QDate(2024, 3, 1), QDate(2024, 3, 31),
               QString(), QString("Gg Cc"));
        AddRow("created, heads only", all, 1, QDate(2024, 3, 1), QDate(2024, 3, 31), QString(),
               QString("Cc"));
        AddRow("due, open end", all, 2, QDate(2024, 6, 1), none, QString(), QString("Dd Cc"));
        AddRow("shipped, open start", all, 0, none, QDate(2024, 1, 31), QString(),
               QString("Gg Aa"));
        AddRow("partner, folded", all, 0, none, none, QString("dd"), QString("Dd"));
        AddRow("partner and kind", QVariant(1), 0, none, none, QString("c"), QString("Cc"));
        AddRow("partner with a like wildcard", all, 0, none, none, QString("%"), QString());
    }

    void filters()
    {
        auto [kind, dateField, from, to, partner, expected] =
            Fetch<QVariant, int, QDate, QDate, QString, QString>(
                {"kind", "dateField", "from", "to", "partner", "expected"});
        OrderListFilter filter;
        if (kind.isValid())
            filter.kind = kind.toInt();
        filter.dateField = OrderListFilter::DateField(dateField);
        filter.from = from;
        filter.to = to;
        filter.partner = partner;
        bool more = true;
        QCOMPARE(Names(filter, &more), expected);
        QVERIFY(!more);
    }

    void limitSaysThereAreMore_data()
    {
        AddColumns<int, int, bool>({"limit", "shown", "more"});
        AddRow("below", 3, 3, true);
        AddRow("exactly all", 7, 7, false);
        AddRow("no limit", 0, 7, false);
    }

    void limitSaysThereAreMore()
    {
        auto [limit, shown, more] = Fetch<int, int, bool>({"limit", "shown", "more"});
        OrderListFilter filter;
        filter.limit = limit;
        bool hasMore = false;
        QCOMPARE(Names(filter, &hasMore).count(u' ') + 1, shown);
        QCOMPARE(hasMore, more);
    }

    void orderType_data()
    {
        // kind, verified, number, cancelled by, consolidated
        AddColumns<QVariantList, QString, QColor>({"columns", "text", "ink"});
        const QVariant null, yes("1"), no("0");
        const QColor red(200, 0, 0), green(0, 200, 0), blue(0, 0, 180), purple(200, 0, 200), plain;
        const auto row = [](const char* name, const QVariantList& columns, const char* text,
                            const QColor& ink) { QTest::newRow(name) << columns << text << ink; };
        // The first condition that holds decides, whatever the later columns say.
        row("unverified beats all", {1, no, 5, 7, yes}, "Unverified", red);
        row("verified NULL", {0, null, 5, null, null}, "Unverified", red);
        row("unprinted beats cancelled", {0, yes, null, 7, no}, "Unprinted", green);
        row("empty number text", {0, yes, QString(), null, null}, "Unprinted", green);
        row("cancelled beats kind", {1, yes, 5, 7, no}, "Cancelled Invoice", blue);
        row("cancelled consolidated", {0, yes, 5, "A-0007", yes},
            "Cancelled Invoice (consolidated)", blue);
        row("invoice", {0, yes, "A-000005", QString(), no}, "Invoice", plain);
        row("consolidated invoice", {0, yes, 5, null, yes}, "Consolidated Invoice", plain);
        row("cancel invoice, kind as text", {"1", 1, 6, null, null}, "Cancel Invoice", purple);
        row("cancel consolidated", {1, yes, 6, null, yes}, "Cancel Invoice (consolidated)", purple);
        row("other kind", {2, yes, 5, null, null}, "", plain);
        row("kind NULL", {null, yes, 5, null, null}, "", plain);
    }

    void orderType()
    {
        auto [columns, text, ink] =
            Fetch<QVariantList, QString, QColor>({"columns", "text", "ink"});
        const OrderTypeText result =
            ConvertOrderType(columns[0], columns[1], columns[2], columns[3], columns[4]);
        QCOMPARE(result.text, text);
        QCOMPARE(result.ink, ink);
    }
};

QTEST_GUILESS_MAIN(TestOrderListQuery)
#include "tst_orderlistquery.moc"
