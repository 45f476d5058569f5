// The order arithmetic that reads and writes a real company database: the forint totals fixed
// at issue time and the VAT summary.
#include "CompanyTestCase.h"
#include "OrdersTestData.h"

#include "Columns.h"
#include "base/SqlStatement.h"
#include "orders/OrderCalc.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

using Amounts = QList<double>; // net, VAT, gross

qint64 InsertOrder(const QVariant& currencyId, double rate, const Amounts& t)
{
    return OrdersInsert(u"ORDERHEAD"_s,
                        u"CURRENCY_ID CURRENCY_RATE TOTAL_NET TOTAL_VAT TOTAL_GROSS"_s,
                        {currencyId, rate, t[0], t[1], t[2]});
}

qint64 InsertItem(qint64 orderId, const Amounts& t, const QVariant& vatId = {},
                  const QString& vatName = {}, double vatPercent = 0)
{
    return OrdersInsert(u"ORDERITEM"_s,
                        u"ORDERHEAD_ID VAT_ID VAT_NAME VAT_PERCENT VAT_CODE TOTAL_NET TOTAL_VAT "
                        "TOTAL_GROSS"_s,
                        {orderId, vatId, vatName, vatPercent, vatName.left(2), t[0], t[1], t[2]});
}

// The local-currency totals of an ORDERHEAD or ORDERITEM row; NULLs are left out.
Amounts Local(const char* table, qint64 id)
{
    SqlStatement st(
        QStringLiteral("select %1_TOTAL_LOCAL_CURRENCY_NET, %1_TOTAL_LOCAL_CURRENCY_VAT, "
                       "%1_TOTAL_LOCAL_CURRENCY_GROSS from %1 where %1_ID = ?")
            .arg(QLatin1String(table)),
        {id});
    Amounts out;
    if (st.exec() && st.next()) {
        for (int i = 0; i < 3; ++i) {
            if (!st.value(i).isNull())
                out << st.value(i).toDouble();
        }
    }
    return out;
}

} // namespace

class TestOrderCalcDatabase : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:

    void forintOrderCopiesWithoutRounding_data()
    {
        QTest::addColumn<QVariant>("currencyId");
        QTest::newRow("currency 0") << QVariant(0);
        QTest::newRow("no currency") << QVariant();
    }

    void forintOrderCopiesWithoutRounding()
    {
        QFETCH(QVariant, currencyId);
        // The forint's own decimals (1 and 0) must not touch the copies; nor may a stray rate.
        const qint64 order = InsertOrder(currencyId, 300.0, {1010.55, 272.85, 1283.4});
        const qint64 item = InsertItem(order, {1010.55, 272.85, 1283.4});
        const qint64 otherOrder = InsertOrder(0, 1.0, {5, 0, 5});
        const qint64 otherItem = InsertItem(otherOrder, {5, 0, 5});

        QVERIFY(CalcLocalCurrencyTotals(order));
        QCOMPARE(Local(Tbl::ORDERHEAD, order), (Amounts{1010.55, 272.85, 1283.4}));
        QCOMPARE(Local(Tbl::ORDERITEM, item), (Amounts{1010.55, 272.85, 1283.4}));
        QCOMPARE(Local(Tbl::ORDERHEAD, otherOrder), Amounts());         // NULL
        QCOMPARE(Local(Tbl::ORDERITEM, otherItem), (Amounts{0, 0, 0})); // the columns' default
    }

    void foreignOrderConvertsItemsAndOrderSeparately_data()
    {
        AddColumns<int, int, Amounts, Amounts, Amounts>(
            {"lineDecimals", "invoiceDecimals", "firstItem", "secondItem", "order"});
        // Items 10.25 / 2.77 / 13.02 and 3.33 / 0.90 / 4.23 EUR, order 13.58 / 3.67 / 17.25 EUR at
        // 385.5 Ft. Products: 3951.375, 1067.835, 5019.21; 1283.71499..., 346.94999...,
        // 1630.665...; 5235.09, 1414.785, 6649.875. Shipped forint settings: lines to 1 decimal,
        // totals whole. 346.94999... times 10 is exactly 3469.5 in doubles, so it rounds up. The
        // order's 6650 is not the items' 6649.9.
        QTest::newRow("lines 1, totals 0")
            << 1 << 0 << Amounts{3951.4, 1067.8, 5019.2} << Amounts{1283.7, 347, 1630.7}
            << Amounts{5235, 1415, 6650};
        // The other way round, to tell the two settings apart.
        QTest::newRow("lines 0, totals 2")
            << 0 << 2 << Amounts{3951, 1068, 5019} << Amounts{1284, 347, 1631}
            << Amounts{5235.09, 1414.79, 6649.88};
    }

    void foreignOrderConvertsItemsAndOrderSeparately()
    {
        auto [lineDecimals, invoiceDecimals, firstItem, secondItem, order] =
            Fetch<int, int, Amounts, Amounts, Amounts>(
                {"lineDecimals", "invoiceDecimals", "firstItem", "secondItem", "order"});
        QVERIFY(ExecSql(
            QStringLiteral("update CURRENCYY set CURRENCY_LINE_TOTAL_ROUNDING_DECIMALS = ?, "
                           "CURRENCY_INVOICE_TOTAL_ROUNDING_DECIMALS = ? "
                           "where CURRENCY_ID = 0"),
            {lineDecimals, invoiceDecimals}));
        const qint64 id = InsertOrder(1, 385.5, {13.58, 3.67, 17.25});
        const qint64 first = InsertItem(id, {10.25, 2.77, 13.02});
        const qint64 second = InsertItem(id, {3.33, 0.9, 4.23});

        QVERIFY(CalcLocalCurrencyTotals(id));
        QCOMPARE(Local(Tbl::ORDERITEM, first), firstItem);
        QCOMPARE(Local(Tbl::ORDERITEM, second), secondItem);
        QCOMPARE(Local(Tbl::ORDERHEAD, id), order);
    }

    void failuresWriteNothing()
    {
        QVERIFY(!CalcLocalCurrencyTotals(4711));

        const qint64 id = InsertOrder(1, 385.5, {13.58, 3.67, 17.25});
        const qint64 item = InsertItem(id, {10.25, 2.77, 13.02});
        // The items are written before the order: a failing order update must take them back.
        QVERIFY(ExecSql(QStringLiteral("create trigger BLOCK_ORDER before update on ORDERHEAD "
                                       "begin select raise(abort, 'blocked'); end")));
        const Result blocked = CalcLocalCurrencyTotals(id);
        QVERIFY2(blocked.sqlError().contains(QLatin1String("blocked")),
                 qPrintable(blocked.sqlError()));
        QCOMPARE(Local(Tbl::ORDERITEM, item), (Amounts{0, 0, 0}));
        QVERIFY(ExecSql(QStringLiteral("drop trigger BLOCK_ORDER")));

        // Without the forint row a foreign order cannot be converted; a forint order needs none.
        QVERIFY(ExecSql(QStringLiteral("delete from CURRENCYY where CURRENCY_ID = 0")));
        const Result missing = CalcLocalCurrencyTotals(id);
        QVERIFY(!missing);
        QVERIFY(!missing.message().isEmpty());
        QCOMPARE(Local(Tbl::ORDERHEAD, id), Amounts()); // NULL
        const qint64 forint = InsertOrder(0, 1.0, {100, 27, 127});
        QVERIFY(CalcLocalCurrencyTotals(forint));
        QCOMPARE(Local(Tbl::ORDERHEAD, forint), (Amounts{100, 27, 127}));
    }

    void vatDetailOfOneOrder()
    {
        const qint64 id = InsertOrder(0, 1.0, {0, 0, 0});
        const qint64 other = InsertOrder(0, 1.0, {0, 0, 0});
        InsertItem(id, {1000, 50, 1050}, 3, QStringLiteral("5%"), 5);
        InsertItem(other, {999, 269.73, 1268.73}, 1, QStringLiteral("27%"), 27);
        InsertItem(id, {100.1, 27.03, 127.13}, 1, QStringLiteral("27%"), 27);
        InsertItem(id, {40, 0, 40}, QVariant(), QStringLiteral("AAM"));
        InsertItem(id, {-200, -10, -210}, 3, QStringLiteral("5% new name"), 5);
        InsertItem(id, {0.2, 0.05, 0.25}, 1, QStringLiteral("27%"), 27);

        QList<VatDetail> groups;
        QVERIFY(LoadVatDetail(id, groups));
        // By VAT key in the order the items were entered, named by the first item of each; the
        // other order's item stays out; sums as they come (10.1 + 0.2 is not 10.3 in doubles).
        QCOMPARE(groups.size(), 3);
        const auto sums = [](const VatDetail& g) {
            return Amounts{g.totals.net, g.totals.vat, g.totals.gross};
        };
        QCOMPARE(groups[0].vatId, std::optional<qint64>(3));
        QVERIFY(groups[0].name == "5%" && groups[0].code == "5%" && groups[0].percent == 5.0);
        QCOMPARE(sums(groups[0]), (Amounts{800, 40, 840}));
        QCOMPARE(groups[1].vatId, std::optional<qint64>(1));
        QCOMPARE(sums(groups[1]), (Amounts{100.1 + 0.2, 27.03 + 0.05, 127.13 + 0.25}));
        QVERIFY(!groups[2].vatId.has_value());
        QCOMPARE(sums(groups[2]), (Amounts{40, 0, 40}));
    }
};

QTEST_GUILESS_MAIN(TestOrderCalcDatabase)
#include "tst_ordercalcdatabase.moc"
