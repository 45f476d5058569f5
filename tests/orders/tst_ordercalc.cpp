// The money rules of orders, with expectations worked out by hand from the written rules and
// from what IEEE doubles hold for the decimal amounts involved.
#include "DataTable.h"

#include "orders/OrderCalc.h"

#include <QtTest>

#include <cmath>

// Amounts must match to the last bit: QCOMPARE forgives small differences between doubles.
#define QCOMPARE_MONEY(actual, expected)                                                           \
    QCOMPARE(QString::number(actual, 'g', 17), QString::number(expected, 'g', 17))

using Amounts = QList<double>;
Q_DECLARE_METATYPE(std::optional<double>)

class TestOrderCalc : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void roundDecimals_data()
    {
        AddColumns<double, int, double>({"value", "decimals", "expected"});
        // Half away from zero.
        QTest::newRow("2.5 up") << 2.5 << 0 << 3.0;
        QTest::newRow("-2.5 down") << -2.5 << 0 << -3.0;
        QTest::newRow("exact half at 2") << 0.125 << 2 << 0.13;
        // Just below one half must go down, at several positions and signs.
        QTest::newRow("below half at 0") << 2.4999999999999996 << 0 << 2.0;
        QTest::newRow("below half at 2") << 0.12499999999999999 << 2 << 0.12;
        QTest::newRow("1.005 at 2") << 1.005 << 2 << 1.0; // stored as 1.00499999999999989...
        // Stored below 1.45, but 10 times it is exactly 14.5.
        QTest::newRow("1.45 at 1") << 1.45 << 1 << 1.5;
        // Adding 0.5 rounds in double arithmetic here; kept as invoices always had it.
        QTest::newRow("largest double below half") << 0.49999999999999994 << 0 << 1.0;
        // The 1e-15 rule; and no negative zero, which would print as "-0".
        QTest::newRow("below limit would round up") << 9.99e-16 << 15 << 0.0;
        QTest::newRow("at limit kept") << 1e-15 << 15 << 1e-15;
        QTest::newRow("negative to zero") << -0.4 << 0 << 0.0;
        // Large amounts. Above 2^52 every double is whole and adding 0.5 lands on the even one.
        QTest::newRow("large at 2") << 123456789012.345 << 2 << 123456789012.35;
        QTest::newRow("odd whole above 2^52") << 4503599627370497.0 << 0 << 4503599627370498.0;
        // Stored as ...840.3046875; to 2 decimals ...840.30, whose nearest double is ...840.296875.
        QTest::newRow("scaled above 2^52") << 67348409009840.305 << 2 << 67348409009840.3;
        QTest::newRow("beyond range when scaled") << 1e300 << 10 << 1e300;
        // Negative decimal counts round to tens, hundreds...
        QTest::newRow("hundreds half") << -1250.0 << -2 << -1300.0;
    }

    void roundDecimals()
    {
        auto [value, decimals, expected] =
            Fetch<double, int, double>({"value", "decimals", "expected"});
        const double result = RoundDecimals(value, decimals);
        QCOMPARE_MONEY(result, expected);
        QCOMPARE(std::signbit(result), std::signbit(expected)); // "-0" must never be printed
    }

    void decimalCount_data()
    {
        AddColumns<double, int>({"value", "count"});
        QTest::newRow("whole") << 127.0 << 0;
        QTest::newRow("stored inexactly") << 1.005 << 3;
        QTest::newRow("small, no exponent") << 1e-7 << 7;
        QTest::newRow("sum of tenths") << 0.1 + 0.2 << 17; // 0.30000000000000004
        QTest::newRow("smallest double") << 5e-324 << 324;
    }

    void decimalCount()
    {
        auto [value, count] = Fetch<double, int>({"value", "count"});
        QCOMPARE(DecimalCount(value), count);
    }

    void priceConversion_data()
    {
        AddColumns<bool, double, double, double>({"toGross", "price", "vat", "expected"});
        // To gross: a whole net price may take two decimals, one with decimals keeps as many.
        QTest::newRow("whole net, none needed") << true << 100.0 << 27.0 << 127.0;
        QTest::newRow("whole net, two kept") << true << 1.0 << 5.0 << 1.05;
        QTest::newRow("one decimal") << true << 100.5 << 27.0 << 127.6;  // 127.635
        QTest::newRow("two decimals") << true << 33.33 << 27.0 << 42.33; // 42.3291
        QTest::newRow("one decimal drops two") << true << 0.1 << 27.0 << 0.1;
        QTest::newRow("negative net") << true << -100.0 << 27.0 << -127.0;
        // To net: two more decimals than the gross price shows.
        QTest::newRow("whole gross") << false << 1000.0 << 27.0 << 787.4;   // 787.4015...
        QTest::newRow("gross with 2") << false << 99.99 << 27.0 << 78.7323; // 78.73228...
        QTest::newRow("gross with 1") << false << 12.7 << 27.0 << 10.0;
        QTest::newRow("gross without VAT") << false << 5.55 << 0.0 << 5.55;
    }

    void priceConversion()
    {
        auto [toGross, price, vat, expected] =
            Fetch<bool, double, double, double>({"toGross", "price", "vat", "expected"});
        QCOMPARE_MONEY(toGross ? NetToGross(price, vat) : GrossToNet(price, vat), expected);
    }

    void discountedPrice_data()
    {
        AddColumns<double, double, int, int, std::optional<double>>(
            {"listPrice", "percent", "type", "decimals", "price"});
        // 849.15 and 7.33033 rounded to the unit-price decimals.
        QTest::newRow("percent, whole") << 999.0 << 15.0 << 1 << 0 << std::optional(849.0);
        QTest::newRow("percent, two decimals") << 10.99 << 33.3 << 1 << 2 << std::optional(7.33);
        QTest::newRow("negative list price") << -999.0 << 15.0 << 1 << 0 << std::optional(-849.0);
        // Type 0 keeps the price unrounded, percent included: 999 - 149.85 as doubles.
        QTest::newRow("no discount type") << 999.0 << 15.0 << 0 << 0 << std::optional(849.15);
        // The price the user typed stays, whatever the percent says.
        QTest::newRow("entered price") << 999.0 << 15.0 << 2 << 0 << std::optional<double>();
    }

    void discountedPrice()
    {
        auto [listPrice, percent, type, decimals, price] =
            Fetch<double, double, int, int, std::optional<double>>(
                {"listPrice", "percent", "type", "decimals", "price"});
        const std::optional<double> result =
            CalcDiscountedPrice(listPrice, percent, type, decimals);
        QCOMPARE(result.has_value(), price.has_value());
        if (price)
            QCOMPARE_MONEY(*result, *price);
    }

    void lineTotals_data()
    {
        AddColumns<double, double, double, int, Amounts>(
            {"price", "qty", "vat", "decimals", "expected"});
        const auto row = [](const char* name, double price, double qty, double vat, int decimals,
                            const Amounts& expected) {
            QTest::newRow(name) << price << qty << vat << decimals << expected;
        };
        row("forint", 849.0, 3.0, 27.0, 0, {2547, 688, 3235});               // VAT 687.69
        row("two decimals", 10.99, 3.0, 27.0, 2, {32.97, 8.9, 32.97 + 8.9}); // VAT 8.9019
        // 33.33 * 1.5 is stored below 49.995, but 100 times it is exactly 4999.5.
        row("product lands on half", 33.33, 1.5, 27.0, 2, {50.0, 13.5, 63.5});
        row("stored below half", 1.005, 1.0, 0.0, 2, {1.0, 0.0, 1.0});
        // VAT of the rounded net 2 (0.54 -> 1), not of the unrounded 1.6 (0.432 -> 0).
        row("VAT of rounded net", 1.6, 1.0, 27.0, 0, {2.0, 1.0, 3.0});
        row("returned goods", 849.0, -1.0, 27.0, 0, {-849, -229, -1078}); // VAT -229.23
    }

    void lineTotals()
    {
        auto [price, qty, vat, decimals, expected] = Fetch<double, double, double, int, Amounts>(
            {"price", "qty", "vat", "decimals", "expected"});
        const LineTotals t = CalcLineTotals(price, qty, vat, decimals);
        QCOMPARE((Amounts{t.net, t.vat, t.gross}), expected);
    }

    void orderTotals_data()
    {
        using Items = QList<LineTotals>;
        AddColumns<Items, bool, bool, int>({"items", "roundTo5", "noVat", "decimals"});
        // net, VAT, gross, correction net, rounding difference (correction VAT and gross stay 0).
        QTest::addColumn<Amounts>("expected");
        const auto row = [](const char* name, const Items& items, bool roundTo5, bool noVat,
                            int decimals, const Amounts& expected) {
            QTest::newRow(name) << items << roundTo5 << noVat << decimals << expected;
        };
        row("no items", {}, true, false, 0, {0, 0, 0, 0, 0});
        // Net 100.00 + VAT 27.00 against gross 127.01: the net carries the cent.
        row("correction up", {{50, 13.5, 63.5}, {50, 13.5, 63.51}}, false, false, 2,
            {100.01, 27, 127.01, 0.01, 0});
        // Net 20.8 -> 21, VAT 5.62 -> 6, gross 26.42 -> 26: one forint taken back from the net.
        row("correction down", {{10.4, 2.81, 13.21}, {10.4, 2.81, 13.21}}, false, false, 0,
            {20, 6, 26, -1, 0});
        row("correction at 3", {{1.0004, 0, 1.0006}}, false, false, 3, {1.001, 0, 1.001, 0.001, 0});
        row("sum of tenths", Items(10, LineTotals{0.1, 0, 0.1}), false, false, 2, {1, 0, 1, 0, 0});
        // No VAT: VAT 0 and gross the rounded net (150.5 -> 151), whatever the items carry.
        row("no VAT", {{100, 27, 127}, {50.5, 13.64, 64.14}}, false, true, 0, {151, 0, 151, 0, 0});
        row("no VAT, round to 5", {{100, 27, 127}, {53, 14.31, 67.31}}, true, true, 0,
            {155, 0, 155, 0, 2});

        // Cash rounding by the last digit of the whole gross; negative totals mirrored.
        const QList<std::pair<int, int>> steps = {{1000, 0},  {1001, -1},  {1002, -2},
                                                  {1003, 2},  {1004, 1},   {-1001, 1},
                                                  {-1002, 2}, {-1003, -2}, {-1004, -1}};
        for (const auto& [gross, step] : steps) {
            const double g = gross;
            row(qPrintable(QStringLiteral("round %1").arg(gross)), {{g - 200, 200, g}}, true, false,
                0, {g - 200 + step, 200, g + step, 0, double(step)});
        }
        row("no round 1003", {{803, 200, 1003}}, false, false, 0, {803, 200, 1003, 0, 0});
        // The step is chosen from the whole part and added to the gross as it is.
        row("round 12.9", {{10.2, 2.7, 12.9}}, true, false, 1, {8.2, 2.7, 10.9, 0, -2});

        // A credit line: net 666.67 -> 667, VAT 180, gross 846.67 -> 847, then 847 -> 845.
        row("mixed signs", {{1000, 270, 1270}, {-333.33, -90, -423.33}}, true, false, 0,
            {665, 180, 845, 0, -2});
        row("negative total", {{-1000, -270, -1270}, {-2.4, -0.65, -3.05}}, false, false, 0,
            {-1002, -271, -1273, 0, 0});
        row("large amounts", {{123456789.12, 33333333.06, 156790122.18}, {0.01, 0, 0.01}}, false,
            false, 2, {123456789.13, 33333333.06, 156790122.19, 0, 0});
    }

    void orderTotals()
    {
        auto [items, roundTo5, noVat, decimals, expected] =
            Fetch<QList<LineTotals>, bool, bool, int, Amounts>(
                {"items", "roundTo5", "noVat", "decimals", "expected"});
        const OrderTotals t = CalcOrderTotals(items, roundTo5, noVat, decimals);
        QCOMPARE((Amounts{t.net, t.vat, t.gross, t.correctionNet, t.roundingDifference}), expected);
        QCOMPARE((Amounts{t.correctionVat, t.correctionGross}), (Amounts{0, 0}));
    }
};

QTEST_GUILESS_MAIN(TestOrderCalc)
#include "tst_ordercalc.moc"
