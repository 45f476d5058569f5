// Product prices in foreign currencies: calculated from the net price, or overridden.
#include "TestCompany.h"

#include "Columns.h"
#include "app/Setup.h"
#include "app/SqlStatement.h"
#include "masterdata/ProductPrices.h"

#include <QtTest>

class TestProductPrices : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void calculatedPrice_data()
    {
        QTest::addColumn<double>("net");
        QTest::addColumn<double>("rate");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QVariant>("price");
        QTest::newRow("1000 at 300, 2 decimals") << 1000.0 << 300.0 << 2 << QVariant(3.33);
        QTest::newRow("half rounds away from zero") << 1005.0 << 10.0 << 0 << QVariant(101.0);
        QTest::newRow("negative half") << -1005.0 << 10.0 << 0 << QVariant(-101.0);
        QTest::newRow("zero rate gives none") << 1000.0 << 0.0 << 2 << QVariant();
        QTest::newRow("negative rate gives none") << 1000.0 << -300.0 << 2 << QVariant();
    }

    void calculatedPrice()
    {
        QFETCH(double, net);
        QFETCH(double, rate);
        QFETCH(int, decimals);
        QFETCH(QVariant, price);
        const std::optional<double> got = CalculatedPrice(net, {1, "Euro", "EUR", rate, decimals});
        QCOMPARE(got.has_value(), price.isValid());
        if (got)
            QCOMPARE(*got, price.toDouble());
    }

    void overriddenPriceReplacesCalculated()
    {
        TestCompany company;
        QVERIFY(company.isValid());
        QVERIFY(ExecSql("update CURRENCYY set CURRENCY_RATE = 300 where CURRENCY_ID = 1"));
        QVERIFY(ExecSql(
            "insert into PRODUCT (PRODUCT_ID, PRODUCT_NAME, PRODUCT_PRICE) values (2, 'B', 500)"));
        QVERIFY(ExecSql("insert into PRODUCTPRICE values (2, 1, 1.99), (2, 2, NULL)"));
        CurrencyPrices euro;
        QVERIFY(euro.load(1));
        QCOMPARE(euro.currency().abbreviation, "EUR");
        QCOMPARE(euro.price(1, 1000), std::optional<double>(3.33));
        QCOMPARE(euro.price(2, 500), std::optional<double>(1.99));
        // An empty overridden price counts as none.
        CurrencyPrices dollar;
        QVERIFY(dollar.load(2));
        QCOMPARE(dollar.price(2, 500), std::optional<double>(2.78));
        QVERIFY(!CurrencyPrices().load(99));
    }

    void listCurrencyPrefersOrderDefault()
    {
        TestCompany company;
        QVERIFY(company.isValid());
        QVERIFY(Setup::current().load());
        QCOMPARE(ListPriceCurrency(), std::optional<qint64>(1)); // the default is the forint
        Setup::current().set(Col::SETUP_INVOICE_CURRENCY_ID, 2);
        QCOMPARE(ListPriceCurrency(), std::optional<qint64>(2));
        QVERIFY(ExecSql("delete from CURRENCYY where CURRENCY_ID <> 0"));
        QVERIFY(!ListPriceCurrency());
    }
};

QTEST_GUILESS_MAIN(TestProductPrices)
#include "tst_productprices.moc"
