// The order list's filter against a real company database: the eight kinds, the dates (shipped
// also through the items), the partner and the record limit.
#include "CompanyTestCase.h"
#include "TestData.h"

#include "base/SqlStatement.h"
#include "orders/OrderListQuery.h"

#include <QtTest>

namespace {

void InsertOrder(const QString& name, const QVariantList& values)
{
    // name, copies, verified, invoice no, type, paid, cancelling no, shipped, created, due
    const QString sql = QStringLiteral(
        "insert into ORDERHEAD (ORDERHEAD_PARTNER_NAME, ORDERHEAD_PARTNER_NAME_ASCII, "
        "ORDERHEAD_PRINTED_COPIES, ORDERHEAD_VERIFIED, ORDERHEAD_INVOICE_NO, ORDERHEAD_TYPE, "
        "ORDERHEAD_PAID, ORDERHEAD_CANCELLING_INVOICE_NO, ORDERHEAD_DATE_SHIPPED, "
        "ORDERHEAD_DATE_CREATED, ORDERHEAD_DATE_PAYMENT_DUE) "
        "values (?, upper(?), ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    if (!ExecSql(sql, QVariantList{name, name} + values))
        qFatal("insert failed");
}

QString Names(const QList<OrderListRow>& rows)
{
    QStringList names;
    for (const OrderListRow& row : rows)
        names << row.partnerName;
    return names.join(u' ');
}

const QDate kToday(2024, 6, 15);

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
        QList<OrderListRow> rows;
        bool more = true;
        const Result r = OrderListQuery::load(filter, rows, more, kToday);
        QVERIFY2(r, qPrintable(r.message()));
        QCOMPARE(Names(rows), expected);
        QVERIFY(!more);
    }

    void kindTextComesWithTheRow()
    {
        QList<OrderListRow> rows;
        bool more = false;
        QVERIFY(OrderListQuery::load({}, rows, more, kToday));
        QCOMPARE(rows.at(1).kind.text, QString("Cancel Invoice"));    // Ff
        QCOMPARE(rows.at(2).kind.text, QString("Cancelled Invoice")); // Ee
        QCOMPARE(rows.last().kind.text, QString("Unverified"));       // Aa
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
        QList<OrderListRow> rows;
        bool hasMore = false;
        QVERIFY(OrderListQuery::load(filter, rows, hasMore, kToday));
        QCOMPARE(rows.size(), shown);
        QCOMPARE(hasMore, more);
    }

    void unsupportedKind()
    {
        OrderListFilter filter;
        filter.kind = 9;
        QList<OrderListRow> rows;
        bool more = false;
        QCOMPARE(OrderListQuery::load(filter, rows, more).message(),
                 QString("Unsupported kind selected"));
    }

private:
};

QTEST_GUILESS_MAIN(TestOrderListQuery)
#include "tst_orderlistquery.moc"
