// The money rules of orders, with expectations worked out by hand from the written rules and
// from what IEEE doubles hold for the decimal amounts involved.
#include "ExactMoney.h"

#include "orders/OrderCalc.h"

#include <QtTest>

#include <cmath>

Q_DECLARE_METATYPE(LineTotals)

class TestOrderCalc : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void roundDecimals_data();
    void roundDecimals();
    void roundingNeverGivesNegativeZero();
    void decimalCount_data();
    void decimalCount();
    void netToGross_data();
    void netToGross();
    void grossToNet_data();
    void grossToNet();
    void discountedPrice_data();
    void discountedPrice();
    void enteredPriceIsNeverRecomputed();
    void lineTotals_data();
    void lineTotals();
    void orderTotals_data();
    void orderTotals();
    void orderTotalsColumnsFollowMembers();
    void vatDetailGroupsByKeyInFirstSeenOrder();
};

void TestOrderCalc::roundDecimals_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("expected");

    // Half away from zero.
    QTest::newRow("2.5 up") << 2.5 << 0 << 3.0;
    QTest::newRow("-2.5 down") << -2.5 << 0 << -3.0;
    QTest::newRow("0.5 up") << 0.5 << 0 << 1.0;
    QTest::newRow("-0.5 down") << -0.5 << 0 << -1.0;
    QTest::newRow("exact half at 2") << 0.125 << 2 << 0.13;
    QTest::newRow("negative exact half at 2") << -0.125 << 2 << -0.13;
    QTest::newRow("half at 3") << 0.0005 << 3 << 0.001;
    QTest::newRow("ordinary") << 1234.5678 << 2 << 1234.57;
    QTest::newRow("ordinary negative") << -1234.5678 << 2 << -1234.57;
    QTest::newRow("already whole") << 849.0 << 0 << 849.0;

    // Just below one half: must go down, at several positions and signs.
    QTest::newRow("below half at 0") << 2.4999999999999996 << 0 << 2.0;
    QTest::newRow("negative below half at 0") << -2.4999999999999996 << 0 << -2.0;
    QTest::newRow("below half at 2") << 0.12499999999999999 << 2 << 0.12;
    QTest::newRow("negative below half at 2") << -0.12499999999999999 << 2 << -0.12;
    // 1.005 is stored as 1.00499999999999989..., and 100 times it is below 100.5.
    QTest::newRow("1.005 at 2") << 1.005 << 2 << 1.0;
    // 1.45 is stored below 1.45, but 10 times it rounds to exactly 14.5.
    QTest::newRow("1.45 at 1") << 1.45 << 1 << 1.5;
    // Adding 0.5 to this one would round the sum up to 1.0.
    QTest::newRow("largest double below half") << 0.49999999999999994 << 0 << 0.0;

    // The 1e-15 rule.
    QTest::newRow("tiny") << 1e-16 << 2 << 0.0;
    QTest::newRow("tiny negative") << -1e-16 << 2 << 0.0;
    QTest::newRow("below limit would round up") << 9.99e-16 << 15 << 0.0;
    QTest::newRow("at limit kept") << 1e-15 << 15 << 1e-15;
    QTest::newRow("zero") << 0.0 << 2 << 0.0;

    // Large amounts.
    QTest::newRow("large at 2") << 123456789012.345 << 2 << 123456789012.35;
    // Above 2^52 every double is whole; adding 0.5 would land on the next even number.
    QTest::newRow("odd whole above 2^52") << 4503599627370497.0 << 0 << 4503599627370497.0;
    // Stored as ...840.3046875; to 2 decimals ...840.30, whose nearest double is ...840.296875.
    QTest::newRow("scaled above 2^52") << 67348409009840.305 << 2 << 67348409009840.3;
    QTest::newRow("huge") << 1e300 << 2 << 1e300;
    QTest::newRow("beyond range when scaled") << 1e300 << 10 << 1e300;

    // Negative decimal counts round to tens, hundreds...
    QTest::newRow("hundreds half") << 1250.0 << -2 << 1300.0;
    QTest::newRow("hundreds negative half") << -1250.0 << -2 << -1300.0;
    QTest::newRow("hundreds below half") << 1249.0 << -2 << 1200.0;
}

void TestOrderCalc::roundDecimals()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    QFETCH(double, expected);
    QCOMPARE_MONEY(RoundDecimals(value, decimals), expected);
}

void TestOrderCalc::roundingNeverGivesNegativeZero()
{
    // A "-0" on an invoice would be read as a sign error.
    QVERIFY(!std::signbit(RoundDecimals(-0.4, 0)));
    QVERIFY(!std::signbit(RoundDecimals(-0.004, 2)));
    QVERIFY(!std::signbit(RoundDecimals(-1e-16, 2)));
    const OrderTotals t = CalcOrderTotals({{-0.4, 0.0, -0.4}}, true, false, 0);
    QVERIFY(!std::signbit(t.net));
    QVERIFY(!std::signbit(t.gross));
}

void TestOrderCalc::decimalCount_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("count");
    QTest::newRow("zero") << 0.0 << 0;
    QTest::newRow("whole") << 127.0 << 0;
    QTest::newRow("one decimal") << 100.5 << 1;
    QTest::newRow("tenth") << 0.1 << 1;
    QTest::newRow("three, stored inexactly") << 1.005 << 3;
    QTest::newRow("negative") << -2.25 << 2;
    QTest::newRow("small, no exponent") << 1e-7 << 7;
    QTest::newRow("sum of tenths") << 0.1 + 0.2 << 17; // 0.30000000000000004
    QTest::newRow("large whole") << 1e22 << 0;
    QTest::newRow("huge whole") << 1e300 << 0;
    QTest::newRow("smallest double") << 5e-324 << 324;
}

void TestOrderCalc::decimalCount()
{
    QFETCH(double, value);
    QFETCH(int, count);
    QCOMPARE(DecimalCount(value), count);
}

void TestOrderCalc::netToGross_data()
{
    QTest::addColumn<double>("net");
    QTest::addColumn<double>("vat");
    QTest::addColumn<double>("gross");
    // A whole net price may take two decimals; a net price with decimals keeps as many.
    QTest::newRow("whole, none needed") << 100.0 << 27.0 << 127.0;
    QTest::newRow("whole, two kept") << 1.0 << 5.0 << 1.05;
    QTest::newRow("one decimal") << 100.5 << 27.0 << 127.6;       // 127.635
    QTest::newRow("two decimals") << 33.33 << 27.0 << 42.33;      // 42.3291
    QTest::newRow("one decimal drops two") << 0.1 << 27.0 << 0.1; // 0.127
    QTest::newRow("no VAT") << 10.0 << 0.0 << 10.0;
    QTest::newRow("negative") << -100.0 << 27.0 << -127.0;
    QTest::newRow("zero") << 0.0 << 27.0 << 0.0;
}

void TestOrderCalc::netToGross()
{
    QFETCH(double, net);
    QFETCH(double, vat);
    QFETCH(double, gross);
    QCOMPARE_MONEY(NetToGross(net, vat), gross);
}

void TestOrderCalc::grossToNet_data()
{
    QTest::addColumn<double>("gross");
    QTest::addColumn<double>("vat");
    QTest::addColumn<double>("net");
    // Two more decimals than the gross price shows.
    QTest::newRow("whole to 2") << 127.0 << 27.0 << 100.0;
    QTest::newRow("whole to 2, cut") << 1000.0 << 27.0 << 787.4; // 787.4015...
    QTest::newRow("one decimal to 3") << 12.7 << 27.0 << 10.0;
    QTest::newRow("two decimals to 4") << 99.99 << 27.0 << 78.7323; // 78.73228...
    QTest::newRow("five percent") << 5.0 << 5.0 << 4.76;            // 4.7619...
    QTest::newRow("negative") << -127.0 << 27.0 << -100.0;
    QTest::newRow("zero") << 0.0 << 27.0 << 0.0;
}

void TestOrderCalc::grossToNet()
{
    QFETCH(double, gross);
    QFETCH(double, vat);
    QFETCH(double, net);
    QCOMPARE_MONEY(GrossToNet(gross, vat), net);
}

void TestOrderCalc::discountedPrice_data()
{
    QTest::addColumn<double>("listPrice");
    QTest::addColumn<double>("percent");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("price");
    QTest::newRow("percent, whole") << 999.0 << 15.0 << 1 << 0 << 849.0;       // 849.15
    QTest::newRow("percent, half up") << 10.0 << 25.0 << 1 << 0 << 8.0;        // 7.5
    QTest::newRow("percent, two decimals") << 10.99 << 33.3 << 1 << 2 << 7.33; // 7.33033
    QTest::newRow("percent, negative list price") << -999.0 << 15.0 << 1 << 0 << -849.0;
    QTest::newRow("percent, none") << 100.0 << 0.0 << 1 << 2 << 100.0;
    // Type 0 keeps the price unrounded, percent included: 999 - 149.85 as doubles.
    QTest::newRow("no discount type, unrounded") << 999.0 << 15.0 << 0 << 0 << 849.15;
    QTest::newRow("no discount type, list price") << 12.345 << 0.0 << 0 << 0 << 12.345;
}

void TestOrderCalc::discountedPrice()
{
    QFETCH(double, listPrice);
    QFETCH(double, percent);
    QFETCH(int, type);
    QFETCH(int, decimals);
    QFETCH(double, price);
    const std::optional<double> result = CalcDiscountedPrice(listPrice, percent, type, decimals);
    QVERIFY(result.has_value());
    QCOMPARE_MONEY(*result, price);
}

void TestOrderCalc::enteredPriceIsNeverRecomputed()
{
    QVERIFY(!CalcDiscountedPrice(999.0, 15.0, int(DiscountType::EnteredPrice), 0).has_value());
    QVERIFY(!CalcDiscountedPrice(999.0, 0.0, int(DiscountType::EnteredPrice), 2).has_value());
}

void TestOrderCalc::lineTotals_data()
{
    QTest::addColumn<double>("price");
    QTest::addColumn<double>("qty");
    QTest::addColumn<double>("vat");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<LineTotals>("expected");
    // VAT from the rounded net (2547 * 27% = 687.69), gross their sum.
    QTest::newRow("forint") << 849.0 << 3.0 << 27.0 << 0 << LineTotals{2547, 688, 3235};
    QTest::newRow("two decimals") << 10.99 << 3.0 << 27.0 << 2
                                  << LineTotals{32.97, 8.9, 32.97 + 8.9}; // VAT 8.9019
    // 33.33 * 1.5 is stored below 49.995, but 100 times it rounds to exactly 4999.5.
    QTest::newRow("product lands on half")
        << 33.33 << 1.5 << 27.0 << 2 << LineTotals{50.0, 13.5, 63.5};
    QTest::newRow("stored below half") << 1.005 << 1.0 << 0.0 << 2 << LineTotals{1.0, 0.0, 1.0};
    // VAT of the rounded net 2 (0.54 -> 1), not of the unrounded 1.6 (0.432 -> 0).
    QTest::newRow("VAT of rounded net") << 1.6 << 1.0 << 27.0 << 0 << LineTotals{2.0, 1.0, 3.0};
    QTest::newRow("returned goods")
        << 849.0 << -1.0 << 27.0 << 0 << LineTotals{-849, -229, -1078}; // -229.23
    QTest::newRow("no VAT") << 100.0 << 2.0 << 0.0 << 2 << LineTotals{200, 0, 200};
    QTest::newRow("empty") << 0.0 << 0.0 << 0.0 << 2 << LineTotals{0, 0, 0};
}

void TestOrderCalc::lineTotals()
{
    QFETCH(double, price);
    QFETCH(double, qty);
    QFETCH(double, vat);
    QFETCH(int, decimals);
    QFETCH(LineTotals, expected);
    const LineTotals t = CalcLineTotals(price, qty, vat, decimals);
    QCOMPARE_MONEY(t.net, expected.net);
    QCOMPARE_MONEY(t.vat, expected.vat);
    QCOMPARE_MONEY(t.gross, expected.gross);
}

void TestOrderCalc::orderTotals_data()
{
    QTest::addColumn<QList<LineTotals>>("items");
    QTest::addColumn<bool>("roundTo5");
    QTest::addColumn<bool>("noVat");
    QTest::addColumn<int>("decimals");
    // net, VAT, gross, correction net, rounding difference (correction VAT and gross stay 0).
    QTest::addColumn<QList<double>>("expected");

    using Items = QList<LineTotals>;
    using Totals = QList<double>;
    QTest::newRow("no items") << Items{} << false << false << 2 << Totals{0, 0, 0, 0, 0};
    QTest::newRow("no items, round to 5") << Items{} << true << false << 0 << Totals{0, 0, 0, 0, 0};
    QTest::newRow("consistent") << Items{{1000, 270, 1270}, {100, 27, 127}} << false << false << 0
                                << Totals{1100, 297, 1397, 0, 0};

    // Items: net 100.00 + VAT 27.00, gross 127.01: the net carries the cent.
    QTest::newRow("correction up") << Items{{50, 13.5, 63.5}, {50, 13.5, 63.51}} << false << false
                                   << 2 << Totals{100.01, 27, 127.01, 0.01, 0};
    // Net 20.8 -> 21, VAT 5.62 -> 6, gross 26.42 -> 26: one forint taken back from the net.
    QTest::newRow("correction down") << Items{{10.4, 2.81, 13.21}, {10.4, 2.81, 13.21}} << false
                                     << false << 0 << Totals{20, 6, 26, -1, 0};
    // At three decimals the correction keeps its third decimal.
    QTest::newRow("correction at 3")
        << Items{{1.0004, 0, 1.0006}} << false << false << 3 << Totals{1.001, 0, 1.001, 0.001, 0};
    // Ten times 0.1 sums to 0.9999999999999999.
    QTest::newRow("sum of tenths")
        << Items(10, LineTotals{0.1, 0, 0.1}) << false << false << 2 << Totals{1, 0, 1, 0, 0};

    // No VAT: VAT 0 and gross the rounded net, whatever the items carry.
    QTest::newRow("no VAT") << Items{{100, 27, 127}, {50.5, 13.64, 64.14}} << false << true << 0
                            << Totals{151, 0, 151, 0, 0};
    QTest::newRow("no VAT, round to 5") << Items{{100, 27, 127}, {53, 14.31, 67.31}} << true << true
                                        << 0 << Totals{155, 0, 155, 0, 2};

    // Cash rounding by the last digit of the whole gross.
    const auto gross = [](double g) { return Items{{g - 200, 200, g}}; };
    QTest::newRow("round 1000") << gross(1000) << true << false << 0
                                << Totals{800, 200, 1000, 0, 0};
    QTest::newRow("round 1001") << gross(1001) << true << false << 0
                                << Totals{800, 200, 1000, 0, -1};
    QTest::newRow("round 1002") << gross(1002) << true << false << 0
                                << Totals{800, 200, 1000, 0, -2};
    QTest::newRow("round 1003") << gross(1003) << true << false << 0
                                << Totals{805, 200, 1005, 0, 2};
    QTest::newRow("round 1004") << gross(1004) << true << false << 0
                                << Totals{805, 200, 1005, 0, 1};
    QTest::newRow("round 1006") << gross(1006) << true << false << 0
                                << Totals{805, 200, 1005, 0, -1};
    QTest::newRow("round -1001") << gross(-1001) << true << false << 0
                                 << Totals{-1200, 200, -1000, 0, 1};
    QTest::newRow("round -1002") << gross(-1002) << true << false << 0
                                 << Totals{-1200, 200, -1000, 0, 2};
    QTest::newRow("round -1003") << gross(-1003) << true << false << 0
                                 << Totals{-1205, 200, -1005, 0, -2};
    QTest::newRow("round -1004") << gross(-1004) << true << false << 0
                                 << Totals{-1205, 200, -1005, 0, -1};
    QTest::newRow("no round 1003")
        << gross(1003) << false << false << 0 << Totals{803, 200, 1003, 0, 0};
    // The step is chosen from the whole part and added to the gross as it is.
    QTest::newRow("round 12.9") << Items{{10.2, 2.7, 12.9}} << true << false << 1
                                << Totals{8.2, 2.7, 10.9, 0, -2};

    // A credit line: net 666.67 -> 667, VAT 180, gross 846.67 -> 847, then 847 -> 845.
    QTest::newRow("mixed signs") << Items{{1000, 270, 1270}, {-333.33, -90, -423.33}} << true
                                 << false << 0 << Totals{665, 180, 845, 0, -2};
    QTest::newRow("negative total") << Items{{-1000, -270, -1270}, {-2.4, -0.65, -3.05}} << false
                                    << false << 0 << Totals{-1002, -271, -1273, 0, 0};
    QTest::newRow("large amounts")
        << Items{{123456789.12, 33333333.06, 156790122.18}, {0.01, 0, 0.01}} << false << false << 2
        << Totals{123456789.13, 33333333.06, 156790122.19, 0, 0};
}

void TestOrderCalc::orderTotals()
{
    QFETCH(QList<LineTotals>, items);
    QFETCH(bool, roundTo5);
    QFETCH(bool, noVat);
    QFETCH(int, decimals);
    QFETCH(QList<double>, expected);
    const OrderTotals t = CalcOrderTotals(items, roundTo5, noVat, decimals);
    QCOMPARE_MONEY(t.net, expected[0]);
    QCOMPARE_MONEY(t.vat, expected[1]);
    QCOMPARE_MONEY(t.gross, expected[2]);
    QCOMPARE_MONEY(t.correctionNet, expected[3]);
    QCOMPARE_MONEY(t.correctionVat, 0.0);
    QCOMPARE_MONEY(t.correctionGross, 0.0);
    QCOMPARE_MONEY(t.roundingDifference, expected[4]);
    // Net + VAT = gross after the correction, up to the last bit of the additions.
    QCOMPARE(t.net + t.vat, t.gross);
}

void TestOrderCalc::orderTotalsColumnsFollowMembers()
{
    // The order editor stores values()[i] in columns()[i]; a swapped pair would file the VAT
    // under the correction.
    OrderTotals t;
    t.net = 1;
    t.vat = 2;
    t.gross = 3;
    t.correctionNet = 4;
    t.correctionVat = 5;
    t.correctionGross = 6;
    t.roundingDifference = 7;
    const QStringList expected = {"ORDERHEAD_TOTAL_NET",
                                  "ORDERHEAD_TOTAL_VAT",
                                  "ORDERHEAD_TOTAL_GROSS",
                                  "ORDERHEAD_TOTAL_CORRECTION_NET",
                                  "ORDERHEAD_TOTAL_CORRECTION_VAT",
                                  "ORDERHEAD_TOTAL_CORRECTION_GROSS",
                                  "ORDERHEAD_TOTAL_ROUNDING_DIFFERENCE"};
    for (int i = 0; i < OrderTotals::Count; ++i) {
        QCOMPARE(QString::fromLatin1(OrderTotals::columns()[i]), expected[i]);
        QCOMPARE(t.values()[i], double(i + 1));
    }
}

void TestOrderCalc::vatDetailGroupsByKeyInFirstSeenOrder()
{
    const QList<VatDetail> items = {
        {18, "18%", 18, "18", {100, 18, 118}},         {27, "27%", 27, "27", {10.1, 2.73, 12.83}},
        {18, "18% renamed", 18, "18", {-50, -9, -59}}, {std::nullopt, "AAM", 0, "", {5, 0, 5}},
        {27, "27%", 27, "27", {0.2, 0.05, 0.25}},      {std::nullopt, "AAM", 0, "", {1, 0, 1}},
    };
    const QList<VatDetail> groups = GroupVatDetail(items);
    QCOMPARE(groups.size(), 3);

    QCOMPARE(groups[0].vatId, std::optional<qint64>(18));
    QCOMPARE(groups[0].name, QStringLiteral("18%"));
    QCOMPARE_MONEY(groups[0].totals.net, 50.0);
    QCOMPARE_MONEY(groups[0].totals.vat, 9.0);
    QCOMPARE_MONEY(groups[0].totals.gross, 59.0);

    // Sums as they come, not rounded again: 10.1 + 0.2 is 10.299999999999999.
    QCOMPARE(groups[1].vatId, std::optional<qint64>(27));
    QCOMPARE(groups[1].percent, 27.0);
    QCOMPARE(groups[1].code, QStringLiteral("27"));
    QCOMPARE_MONEY(groups[1].totals.net, 10.1 + 0.2);
    QVERIFY(groups[1].totals.net != 10.3);
    QCOMPARE_MONEY(groups[1].totals.vat, 2.73 + 0.05);
    QCOMPARE_MONEY(groups[1].totals.gross, 12.83 + 0.25);

    QVERIFY(!groups[2].vatId.has_value());
    QCOMPARE_MONEY(groups[2].totals.gross, 6.0);
}

QTEST_GUILESS_MAIN(TestOrderCalc)
#include "tst_ordercalc.moc"
