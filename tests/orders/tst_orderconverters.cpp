// The status text of an order and the text form of invoice numbers.
#include "TestCompany.h"

#include "app/Setup.h"
#include "orders/ConvertOrderType.h"
#include "orders/FormatInvoiceNo.h"

#include <QtTest>

class TestOrderConverters : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void orderType_data();
    void orderType();
    void invoiceNo_data();
    void invoiceNo();
    void invoiceNoFromSettings_data();
    void invoiceNoFromSettings();
};

void TestOrderConverters::orderType_data()
{
    QTest::addColumn<QVariant>("type");
    QTest::addColumn<QVariant>("verified");
    QTest::addColumn<QVariant>("number");
    QTest::addColumn<QVariant>("cancelledBy");
    QTest::addColumn<QVariant>("consolidated");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("ink");

    const QVariant null;
    const QVariant yes = QStringLiteral("1");
    const QVariant no = QStringLiteral("0");
    const QColor red(200, 0, 0), green(0, 200, 0), blue(0, 0, 180), purple(200, 0, 200);
    const QColor plain;

    // The first condition that holds decides, whatever the later columns say.
    QTest::newRow("unverified beats all")
        << QVariant(1) << no << QVariant(5) << QVariant(7) << yes << "Unverified" << red;
    QTest::newRow("verified NULL")
        << QVariant(0) << null << null << null << null << "Unverified" << red;
    QTest::newRow("verified other text")
        << QVariant(0) << QVariant("yes") << QVariant(5) << null << null << "Unverified" << red;
    QTest::newRow("unprinted beats cancelled")
        << QVariant(0) << yes << null << QVariant(7) << no << "Unprinted" << green;
    QTest::newRow("empty number text")
        << QVariant(0) << yes << QVariant(QString()) << null << null << "Unprinted" << green;
    QTest::newRow("cancelled beats kind")
        << QVariant(1) << yes << QVariant(5) << QVariant(7) << no << "Cancelled Invoice" << blue;
    QTest::newRow("cancelled consolidated")
        << QVariant(0) << yes << QVariant(5) << QVariant("A-0007") << yes
        << "Cancelled Invoice (consolidated)" << blue;
    QTest::newRow("invoice") << QVariant(0) << yes << QVariant(5) << null << no << "Invoice"
                             << plain;
    QTest::newRow("invoice, number as text") << QVariant(0) << yes << QVariant("A-000005")
                                             << QVariant(QString()) << null << "Invoice" << plain;
    QTest::newRow("consolidated invoice")
        << QVariant(0) << yes << QVariant(5) << null << yes << "Consolidated Invoice" << plain;
    QTest::newRow("cancel invoice")
        << QVariant(1) << yes << QVariant(6) << null << no << "Cancel Invoice" << purple;
    QTest::newRow("cancel invoice, kind as text")
        << QVariant("1") << yes << QVariant(6) << null << null << "Cancel Invoice" << purple;
    QTest::newRow("cancel consolidated") << QVariant(1) << yes << QVariant(6) << null << yes
                                         << "Cancel Invoice (consolidated)" << purple;
    QTest::newRow("verified as number")
        << QVariant(0) << QVariant(1) << QVariant(5) << null << null << "Invoice" << plain;
    QTest::newRow("other kind") << QVariant(2) << yes << QVariant(5) << null << null << QString()
                                << plain;
    QTest::newRow("kind NULL") << null << yes << QVariant(5) << null << null << QString() << plain;
}

void TestOrderConverters::orderType()
{
    QFETCH(QVariant, type);
    QFETCH(QVariant, verified);
    QFETCH(QVariant, number);
    QFETCH(QVariant, cancelledBy);
    QFETCH(QVariant, consolidated);
    QFETCH(QString, text);
    QFETCH(QColor, ink);
    const OrderTypeText result =
        ConvertOrderType(type, verified, number, cancelledBy, consolidated);
    QCOMPARE(result.text, text);
    QCOMPARE(result.ink, ink);
}

void TestOrderConverters::invoiceNo_data()
{
    QTest::addColumn<qint64>("number");
    QTest::addColumn<QString>("prefix");
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("text");
    QTest::newRow("prefix and padding") << qint64(42) << "A-" << 6 << "A-000042";
    QTest::newRow("plain") << qint64(42) << "" << 0 << "42";
    QTest::newRow("first invoice") << qint64(1) << "SZ/" << 4 << "SZ/0001";
    QTest::newRow("wider than padding") << qint64(1234567) << "A-" << 6 << "A-1234567";
    QTest::newRow("exactly the width") << qint64(123456) << "" << 6 << "123456";
    QTest::newRow("width 1") << qint64(7) << "" << 1 << "7";
    // printf would left-justify with blanks for a negative width.
    QTest::newRow("negative width") << qint64(42) << "" << -3 << "42";
    QTest::newRow("prefix with spaces kept") << qint64(3) << "2024 / " << 3 << "2024 / 003";
}

void TestOrderConverters::invoiceNo()
{
    QFETCH(qint64, number);
    QFETCH(QString, prefix);
    QFETCH(int, width);
    QFETCH(QString, text);
    QCOMPARE(FormatInvoiceNo(number, prefix, width), text);
}

void TestOrderConverters::invoiceNoFromSettings_data()
{
    QTest::addColumn<QVariant>("prefix");
    QTest::addColumn<QVariant>("padding");
    QTest::addColumn<QString>("text");
    QTest::newRow("prefix and padding") << QVariant("A-") << QVariant("6") << "A-000042";
    QTest::newRow("nothing set") << QVariant() << QVariant() << "42";
    QTest::newRow("padding as a number") << QVariant("") << QVariant(3) << "042";
    QTest::newRow("unreadable padding") << QVariant("B") << QVariant("six") << "B42";
}

void TestOrderConverters::invoiceNoFromSettings()
{
    QFETCH(QVariant, prefix);
    QFETCH(QVariant, padding);
    QFETCH(QString, text);
    TestCompany company;
    QVERIFY(company.isValid());
    QVERIFY(Setup::write({{QStringLiteral("SETUP_INVOICE_NO_PREFIX"), prefix},
                          {QStringLiteral("SETUP_INVOICE_NO_PADDING_ZEROS"), padding}}));
    QVERIFY(Setup::current().load());
    QCOMPARE(FormatInvoiceNo(42), text);
}

QTEST_GUILESS_MAIN(TestOrderConverters)
#include "tst_orderconverters.moc"
