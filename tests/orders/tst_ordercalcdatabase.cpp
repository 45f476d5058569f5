// The order arithmetic that reads and writes a real company database: the forint totals fixed
// at issue time and the VAT summary.
#include "ExactMoney.h"
#include "TestCompany.h"

#include "app/SqlStatement.h"
#include "app/SqlTransaction.h"
#include "orders/OrderCalc.h"

#include <QtTest>

namespace {

struct Amounts
{
    double net = 0;
    double vat = 0;
    double gross = 0;
};

qint64 InsertOrder(const QVariant& currencyId, const QVariant& rate, Amounts totals)
{
    SqlStatement st(
        QStringLiteral("insert into ORDERHEAD (ORDERHEAD_CURRENCY_ID, ORDERHEAD_CURRENCY_RATE, "
                       "ORDERHEAD_TOTAL_NET, ORDERHEAD_TOTAL_VAT, ORDERHEAD_TOTAL_GROSS) "
                       "values (?, ?, ?, ?, ?)"),
        {currencyId, rate, totals.net, totals.vat, totals.gross});
    if (!st.exec())
        qFatal("insert order: %s", qPrintable(st.errorText()));
    return st.lastInsertId().toLongLong();
}

qint64 InsertItem(qint64 orderId, Amounts totals)
{
    SqlStatement st(
        QStringLiteral("insert into ORDERITEM (ORDERITEM_ORDERHEAD_ID, ORDERITEM_TOTAL_NET, "
                       "ORDERITEM_TOTAL_VAT, ORDERITEM_TOTAL_GROSS) values (?, ?, ?, ?)"),
        {orderId, totals.net, totals.vat, totals.gross});
    if (!st.exec())
        qFatal("insert item: %s", qPrintable(st.errorText()));
    return st.lastInsertId().toLongLong();
}

void InsertVatItem(qint64 orderId, const QVariant& vatId, const QString& name, double percent,
                   Amounts totals)
{
    SqlStatement st(
        QStringLiteral("insert into ORDERITEM (ORDERITEM_ORDERHEAD_ID, ORDERITEM_VAT_ID, "
                       "ORDERITEM_VAT_NAME, ORDERITEM_VAT_PERCENT, ORDERITEM_VAT_CODE, "
                       "ORDERITEM_TOTAL_NET, ORDERITEM_TOTAL_VAT, ORDERITEM_TOTAL_GROSS) "
                       "values (?, ?, ?, ?, ?, ?, ?, ?)"),
        {orderId, vatId, name, percent, name.left(2), totals.net, totals.vat, totals.gross});
    if (!st.exec())
        qFatal("insert item: %s", qPrintable(st.errorText()));
}

QVariantList LocalTotals(const char* table, const char* idColumn, qint64 id)
{
    const QString prefix = QString::fromLatin1(table);
    SqlStatement st(
        QStringLiteral("select %1_TOTAL_LOCAL_CURRENCY_NET, %1_TOTAL_LOCAL_CURRENCY_VAT, "
                       "%1_TOTAL_LOCAL_CURRENCY_GROSS from %1 where %2 = ?")
            .arg(prefix, QString::fromLatin1(idColumn)),
        {id});
    if (!st.exec() || !st.next())
        return {};
    return {st.value(0), st.value(1), st.value(2)};
}

QVariantList OrderLocal(qint64 id)
{
    return LocalTotals("ORDERHEAD", "ORDERHEAD_ID", id);
}

QVariantList ItemLocal(qint64 id)
{
    return LocalTotals("ORDERITEM", "ORDERITEM_ID", id);
}

void SetForintDecimals(int line, int invoice)
{
    QVERIFY(ExecSql(
        QStringLiteral("update CURRENCYY set CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS = ?, "
                       "CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS = ? where CURRENCY_ID = 0"),
        {line, invoice}));
}

} // namespace

#define QCOMPARE_AMOUNTS(actual, n, v, g)                                                          \
    do {                                                                                           \
        const QVariantList amounts_ = (actual);                                                    \
        QCOMPARE(amounts_.size(), 3);                                                              \
        QCOMPARE_MONEY(amounts_[0].toDouble(), n);                                                 \
        QCOMPARE_MONEY(amounts_[1].toDouble(), v);                                                 \
        QCOMPARE_MONEY(amounts_[2].toDouble(), g);                                                 \
    } while (false)

class TestOrderCalcDatabase : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void forintOrderCopiesWithoutRounding_data();
    void forintOrderCopiesWithoutRounding();
    void foreignOrderConvertsItemsAndOrderSeparately_data();
    void foreignOrderConvertsItemsAndOrderSeparately();
    void missingForintRowFailsAndWritesNothing();
    void missingOrderFails();
    void failurePartWayWritesNothing();
    void joinsTheCallersTransaction();
    void vatDetailOfOneOrder();
};

void TestOrderCalcDatabase::forintOrderCopiesWithoutRounding_data()
{
    QTest::addColumn<QVariant>("currencyId");
    QTest::newRow("currency 0") << QVariant(0);
    QTest::newRow("no currency") << QVariant();
}

void TestOrderCalcDatabase::forintOrderCopiesWithoutRounding()
{
    QFETCH(QVariant, currencyId);
    TestCompany company;
    QVERIFY(company.isValid());
    // The forint's own decimals (1 and 0) must not touch the copies; nor may a stray rate.
    const qint64 order = InsertOrder(currencyId, 300.0, {1010.55, 272.85, 1283.4});
    const qint64 first = InsertItem(order, {1000.55, 270.15, 1270.7});
    const qint64 second = InsertItem(order, {10, 2.7, 12.7});
    const qint64 otherOrder = InsertOrder(0, 1.0, {5, 0, 5});
    const qint64 otherItem = InsertItem(otherOrder, {5, 0, 5});

    QVERIFY(CalcLocalCurrencyTotals(order));

    QCOMPARE_AMOUNTS(OrderLocal(order), 1010.55, 272.85, 1283.4);
    QCOMPARE_AMOUNTS(ItemLocal(first), 1000.55, 270.15, 1270.7);
    QCOMPARE_AMOUNTS(ItemLocal(second), 10.0, 2.7, 12.7);
    QVERIFY(OrderLocal(otherOrder).at(0).isNull());
    QCOMPARE_MONEY(ItemLocal(otherItem).at(0).toDouble(), 0.0); // the column's default
}

void TestOrderCalcDatabase::foreignOrderConvertsItemsAndOrderSeparately_data()
{
    QTest::addColumn<int>("lineDecimals");
    QTest::addColumn<int>("invoiceDecimals");
    QTest::addColumn<QList<double>>("firstItem");
    QTest::addColumn<QList<double>>("secondItem");
    QTest::addColumn<QList<double>>("order");

    // Items 10.25 / 2.77 / 13.02 and 3.33 / 0.90 / 4.23 EUR, order 13.58 / 3.67 / 17.25 EUR at
    // 385.5 Ft. Products: 3951.375, 1067.835, 5019.21; 1283.71499..., 346.94999..., 1630.665...;
    // 5235.09, 1414.785, 6649.875.
    // Shipped forint settings: lines to 1 decimal, totals whole. 346.94999... times 10 is
    // exactly 3469.5 in doubles, so it rounds up.
    QTest::newRow("lines 1, totals 0")
        << 1 << 0 << QList<double>{3951.4, 1067.8, 5019.2} << QList<double>{1283.7, 347.0, 1630.7}
        << QList<double>{5235, 1415, 6650};
    // The other way round, to tell the two settings apart.
    QTest::newRow("lines 0, totals 2")
        << 0 << 2 << QList<double>{3951, 1068, 5019} << QList<double>{1284, 347, 1631}
        << QList<double>{5235.09, 1414.79, 6649.88};
}

void TestOrderCalcDatabase::foreignOrderConvertsItemsAndOrderSeparately()
{
    QFETCH(int, lineDecimals);
    QFETCH(int, invoiceDecimals);
    QFETCH(QList<double>, firstItem);
    QFETCH(QList<double>, secondItem);
    QFETCH(QList<double>, order);
    TestCompany company;
    QVERIFY(company.isValid());
    SetForintDecimals(lineDecimals, invoiceDecimals);
    const qint64 id = InsertOrder(1, 385.5, {13.58, 3.67, 17.25});
    const qint64 first = InsertItem(id, {10.25, 2.77, 13.02});
    const qint64 second = InsertItem(id, {3.33, 0.9, 4.23});

    QVERIFY(CalcLocalCurrencyTotals(id));

    QCOMPARE_AMOUNTS(ItemLocal(first), firstItem[0], firstItem[1], firstItem[2]);
    QCOMPARE_AMOUNTS(ItemLocal(second), secondItem[0], secondItem[1], secondItem[2]);
    // Converted from the order's totals: 6650 although the items' local gross sum to 6649.9.
    QCOMPARE_AMOUNTS(OrderLocal(id), order[0], order[1], order[2]);
}

void TestOrderCalcDatabase::missingForintRowFailsAndWritesNothing()
{
    TestCompany company;
    QVERIFY(company.isValid());
    const qint64 id = InsertOrder(1, 385.5, {100, 27, 127});
    const qint64 item = InsertItem(id, {100, 27, 127});
    QVERIFY(ExecSql(QStringLiteral("delete from CURRENCYY where CURRENCY_ID = 0")));

    const Result r = CalcLocalCurrencyTotals(id);
    QVERIFY(!r);
    QVERIFY(!r.message().isEmpty());
    QVERIFY(OrderLocal(id).at(0).isNull());
    QCOMPARE_MONEY(ItemLocal(item).at(0).toDouble(), 0.0);

    // A forint order does not need the row.
    const qint64 forint = InsertOrder(0, 1.0, {100, 27, 127});
    QVERIFY(CalcLocalCurrencyTotals(forint));
    QCOMPARE_AMOUNTS(OrderLocal(forint), 100.0, 27.0, 127.0);
}

void TestOrderCalcDatabase::missingOrderFails()
{
    TestCompany company;
    QVERIFY(company.isValid());
    QVERIFY(!CalcLocalCurrencyTotals(4711));
}

void TestOrderCalcDatabase::failurePartWayWritesNothing()
{
    TestCompany company;
    QVERIFY(company.isValid());
    const qint64 id = InsertOrder(1, 385.5, {13.58, 3.67, 17.25});
    const qint64 item = InsertItem(id, {10.25, 2.77, 13.02});
    // The items are written before the order; make the order's update fail.
    QVERIFY(ExecSql(QStringLiteral("create trigger BLOCK_ORDER before update on ORDERHEAD "
                                   "begin select raise(abort, 'blocked'); end")));

    const Result r = CalcLocalCurrencyTotals(id);
    QVERIFY(!r);
    QVERIFY2(r.sqlError().contains(QLatin1String("blocked")), qPrintable(r.sqlError()));
    QCOMPARE_AMOUNTS(ItemLocal(item), 0.0, 0.0, 0.0);
    QVERIFY(OrderLocal(id).at(0).isNull());
}

void TestOrderCalcDatabase::joinsTheCallersTransaction()
{
    TestCompany company;
    QVERIFY(company.isValid());
    const qint64 id = InsertOrder(1, 400.0, {10, 2.7, 12.7});
    {
        // Issuing may hold a transaction around the whole issue; its rollback takes this back.
        SqlTransaction issue;
        QVERIFY(issue.active());
        QVERIFY(CalcLocalCurrencyTotals(id));
        QCOMPARE_AMOUNTS(OrderLocal(id), 4000.0, 1080.0, 5080.0);
    }
    QVERIFY(OrderLocal(id).at(0).isNull());

    // On its own it commits and leaves no transaction open behind it.
    QVERIFY(CalcLocalCurrencyTotals(id));
    SqlTransaction next;
    QVERIFY(next.active());
    next.rollback();
    QCOMPARE_AMOUNTS(OrderLocal(id), 4000.0, 1080.0, 5080.0);
}

void TestOrderCalcDatabase::vatDetailOfOneOrder()
{
    TestCompany company;
    QVERIFY(company.isValid());
    const qint64 id = InsertOrder(0, 1.0, {});
    const qint64 other = InsertOrder(0, 1.0, {});
    InsertVatItem(id, 3, QStringLiteral("5%"), 5, {1000, 50, 1050});
    InsertVatItem(other, 1, QStringLiteral("27%"), 27, {999, 269.73, 1268.73});
    InsertVatItem(id, 1, QStringLiteral("27%"), 27, {100.1, 27.03, 127.13});
    InsertVatItem(id, QVariant(), QStringLiteral("AAM"), 0, {40, 0, 40});
    InsertVatItem(id, 3, QStringLiteral("5%"), 5, {-200, -10, -210});
    InsertVatItem(id, 1, QStringLiteral("27%"), 27, {0.2, 0.05, 0.25});

    QList<VatDetail> groups;
    QVERIFY(LoadVatDetail(id, groups));
    // By VAT key in the order the items were entered; the other order's item stays out.
    QCOMPARE(groups.size(), 3);
    QCOMPARE(groups[0].vatId, std::optional<qint64>(3));
    QCOMPARE(groups[0].name, QStringLiteral("5%"));
    QCOMPARE(groups[0].code, QStringLiteral("5%"));
    QCOMPARE_MONEY(groups[0].percent, 5.0);
    QCOMPARE_MONEY(groups[0].totals.net, 800.0);
    QCOMPARE_MONEY(groups[0].totals.vat, 40.0);
    QCOMPARE_MONEY(groups[0].totals.gross, 840.0);
    QCOMPARE(groups[1].vatId, std::optional<qint64>(1));
    QCOMPARE_MONEY(groups[1].totals.net, 100.1 + 0.2);
    QCOMPARE_MONEY(groups[1].totals.vat, 27.03 + 0.05);
    QCOMPARE_MONEY(groups[1].totals.gross, 127.13 + 0.25);
    QVERIFY(!groups[2].vatId.has_value());
    QCOMPARE(groups[2].name, QStringLiteral("AAM"));
    QCOMPARE_MONEY(groups[2].totals.gross, 40.0);
}

QTEST_GUILESS_MAIN(TestOrderCalcDatabase)
#include "tst_ordercalcdatabase.moc"
