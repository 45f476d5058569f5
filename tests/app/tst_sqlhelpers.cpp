// The statement helpers every store relies on (flags, numbers, scripts, transactions) and the
// settings record: awkward template texts, an unset row, and the one-row rule.
#include "CompanyTestCase.h"
#include "TestData.h"

#include "Columns.h"
#include "app/SqlScript.h"
#include "base/Setup.h"
#include "base/SqlStatement.h"
#include "base/SqlValue.h"

#include <QtTest>

namespace {

QVariant Stored(const char* column)
{
    return SelectValue(QStringLiteral("select %1 from SETUP").arg(QLatin1String(column)));
}

} // namespace

class TestSqlHelpers : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:
    // How stored values read as flags and numbers, whatever type the column gave them.
    void conversions_data()
    {
        AddColumns<QVariant, bool, double>({"value", "flag", "number"});
        AddRow("text 1", QVariant("1"), true, 1.0);
        AddRow("number 1", QVariant(1), true, 1.0);
        AddRow("null", QVariant(), false, 0.0);
        AddRow("text 10", QVariant("10"), false, 10.0);
        AddRow("decimal comma", QVariant("2,5"), false, 2.5);
        AddRow("garbage", QVariant("abc"), false, 0.0);
    }

    void conversions()
    {
        auto [value, flag, number] = Fetch<QVariant, bool, double>({"value", "flag", "number"});
        QCOMPARE(IsFlagSet(value), flag);
        QCOMPARE(ToNumber(value), number);
    }

    void splitKeepsQuotedSemicolons()
    {
        const QStringList parts = SplitSqlScript(QStringLiteral(
            "-- comment; with a semicolon\ninsert into T values ('a;b', \"c;\nd\");\n\nselect 1;"));
        QCOMPARE(parts.size(), 2);
        QCOMPARE(parts.at(0), "insert into T values ('a;b', \"c;\nd\")");
        QCOMPARE(parts.at(1), "select 1");
    }

    void templateTextsRoundTrip_data()
    {
        QTest::addColumn<QString>("text");
        AddRow("quotes, accents, sql",
               "it's 'own' [* \"Számla\"] ÁŐŰ € \t'); drop table x; -- ?1 ");
        AddRow("line breaks of every kind", "a\nb\r\nc\rd\n\n");
        AddRow("empty", QString(QLatin1String("")));
    }

    // Templates are written by the installer through write() and by the setup window through
    // set()/save(); both must keep every byte, and a fresh load() must see the same text.
    void templateTextsRoundTrip()
    {
        QFETCH(QString, text);
        const QString other = text + "\n[footer]";
        QVERIFY(
            Setup::write({{Col::SETUP_INVOICE_BODY_QTF, text}, {Col::SETUP_CHEQUE_QTF, other}}));
        QCOMPARE(Stored(Col::SETUP_INVOICE_BODY_QTF).toString(), text);
        QCOMPARE(Setup::current().text(Col::SETUP_INVOICE_BODY_QTF), text);

        Setup setup;
        QVERIFY(setup.load());
        QCOMPARE(setup.text(Col::SETUP_CHEQUE_QTF), other);
        setup.set(Col::SETUP_INVOICE_FOOTER_QTF, text);
        QVERIFY(setup.save());

        Setup reread;
        QVERIFY(reread.load());
        QCOMPARE(reread.text(Col::SETUP_INVOICE_FOOTER_QTF).toUtf8(), text.toUtf8());
        QCOMPARE(reread.text(Col::SETUP_INVOICE_BODY_QTF).toUtf8(), text.toUtf8());
        QCOMPARE(QueryText("select count(*) from SETUP"), "1");
    }

    void unsetRow_data()
    {
        QTest::addColumn<bool>("rowExists");
        AddRow("all values NULL", true);
        AddRow("no row at all", false);
    }

    // A company whose settings were never written reads every value as unset, and writing them
    // makes exactly one row.
    void unsetRow()
    {
        QFETCH(bool, rowExists);
        QVERIFY(ExecSql("delete from SETUP"));
        QVERIFY(!rowExists || ExecSql("insert into SETUP (SETUP_NAME) values (NULL)"));

        Setup setup;
        QVERIFY(setup.load());
        QCOMPARE(QVariantList({setup.flag(Col::SETUP_ENTER_LIKE_TAB), setup.text(Col::SETUP_NAME),
                               setup.integer(Col::SETUP_RECORD_LIMIT, 500),
                               setup.number(Col::SETUP_INVOICE_LOGO_SIZE_PERCENT)}),
                 QVariantList({false, QString(), qint64(500), 0.0}));

        // A flag written back from an unset one is stored as the text "0".
        setup.setFlag(Col::SETUP_ENTER_LIKE_TAB, setup.flag(Col::SETUP_ENTER_LIKE_TAB));
        setup.set(Col::SETUP_TAX_NO, "12345678-2-41");
        QVERIFY(setup.save());
        QVERIFY(Setup::write({{Col::SETUP_ZIP, "1111"}}));
        QCOMPARE(QueryText("select count(*), typeof(SETUP_ENTER_LIKE_TAB), SETUP_ENTER_LIKE_TAB, "
                           "SETUP_TAX_NO, SETUP_ZIP from SETUP"),
                 "1|text|0|12345678-2-41|1111");
    }

    void failedWriteLeavesRowUnchanged_data()
    {
        QTest::addColumn<QString>("badColumn");
        // Names are pasted into the statement: anything but a plain column name must not get there.
        AddRow("pasted assignment", "SETUP_NAME = 'x', SETUP_ZIP");
        // One statement: a column that does not exist fails the whole write.
        AddRow("unknown column", "SETUP_NO_SUCH_COLUMN");
    }

    void failedWriteLeavesRowUnchanged()
    {
        QFETCH(QString, badColumn);
        QVERIFY(Setup::current().load());
        const QString before = Stored(Col::SETUP_NAME).toString();
        const Result r = Setup::write({{Col::SETUP_NAME, "Changed"}, {badColumn, 1}});
        QVERIFY(!r);
        QCOMPARE(r.message(), "Unable to update SETUP record.");
        QCOMPARE(Stored(Col::SETUP_NAME).toString(), before);
        QCOMPARE(Setup::current().text(Col::SETUP_NAME), before);
        QCOMPARE(QueryText("select count(*) from SETUP"), "1");
    }
};

QTEST_GUILESS_MAIN(TestSqlHelpers)
#include "tst_sqlhelpers.moc"
