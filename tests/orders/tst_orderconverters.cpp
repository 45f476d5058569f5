// The status text of an order and the text form of invoice numbers.
#include "DataTable.h"
#include "TestCompany.h"

#include "base/Setup.h"
#include "orders/ConvertOrderType.h"
#include "orders/FormatInvoiceNo.h"

#include <QtTest>

class TestOrderConverters : public QObject
{
    Q_OBJECT
private Q_SLOTS:
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

    void invoiceNo_data()
    {
        AddColumns<qint64, QString, int, QString>({"number", "prefix", "width", "text"});
        QTest::newRow("prefix and padding") << qint64(42) << "A-" << 6 << "A-000042";
        QTest::newRow("wider than padding") << qint64(1234567) << "A-" << 6 << "A-1234567";
        // printf would left-justify with blanks for a negative width.
        QTest::newRow("negative width") << qint64(42) << "" << -3 << "42";
    }

    void invoiceNo()
    {
        auto [number, prefix, width, text] =
            Fetch<qint64, QString, int, QString>({"number", "prefix", "width", "text"});
        QCOMPARE(FormatInvoiceNo(number, prefix, width), text);
    }

    // The padding is a text column: what is not a number pads nothing. (Prefix and padding from
    // the settings are met on every issued number.)
    void paddingThatIsNoNumber()
    {
        TestCompany company;
        QVERIFY(company.isValid());
        QVERIFY(Setup::write({{"SETUP_INVOICE_NO_PADDING_ZEROS", "six"}}));
        QVERIFY(Setup::current().load());
        QCOMPARE(FormatInvoiceNo(42), QStringLiteral("42"));
    }
};

QTEST_GUILESS_MAIN(TestOrderConverters)
#include "tst_orderconverters.moc"
