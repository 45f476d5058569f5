// The statement helpers every store relies on: bound values, flags, scripts, transactions.
#include "TestCompany.h"
#include "TestData.h"

#include "app/SqlScript.h"
#include "app/SqlStatement.h"
#include "app/SqlTransaction.h"
#include "app/SqlValue.h"

#include <QtTest>

class TestSqlHelpers : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void flags_data();
    void flags();
    void numbers_data();
    void numbers();
    void splitKeepsQuotedSemicolons();
    void boundTextRoundTrips();
    void transactionRollsBackUnlessCommitted();
};

void TestSqlHelpers::flags_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("set");
    AddRow("text 1", QVariant("1"), true);
    AddRow("number 1", QVariant(1), true);
    AddRow("text 0", QVariant("0"), false);
    AddRow("number 0", QVariant(0), false);
    AddRow("null", QVariant(), false);
    AddRow("text 10", QVariant("10"), false);
    AddRow("empty", QVariant(QString()), false);
}

void TestSqlHelpers::flags()
{
    QFETCH(QVariant, value);
    QFETCH(bool, set);
    QCOMPARE(IsFlagSet(value), set);
}

void TestSqlHelpers::numbers_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<double>("number");
    AddRow("text", QVariant("10"), 10.0);
    AddRow("decimal comma", QVariant("2,5"), 2.5);
    AddRow("real", QVariant(12.25), 12.25);
    AddRow("null", QVariant(), 0.0);
    AddRow("garbage", QVariant("abc"), 0.0);
}

void TestSqlHelpers::numbers()
{
    QFETCH(QVariant, value);
    QFETCH(double, number);
    QCOMPARE(ToNumber(value), number);
}

void TestSqlHelpers::splitKeepsQuotedSemicolons()
{
    const QStringList parts = SplitSqlScript(QStringLiteral(
        "-- comment; with a semicolon\ninsert into T values ('a;b', \"c;\nd\");\n\nselect 1;"));
    QCOMPARE(parts.size(), 2);
    QCOMPARE(parts.at(0), "insert into T values ('a;b', \"c;\nd\")");
    QCOMPARE(parts.at(1), "select 1");
}

void TestSqlHelpers::boundTextRoundTrips()
{
    TestCompany company;
    QVERIFY(company.isValid());
    const QString awkward = "it's \"quoted\"; [* bold]\r\n'); drop table SETUP; --";
    QVERIFY(
        ExecSql("insert into STATNO (STATNO_STAT_NO, STATNO_NAME) values (?, ?)", {"x", awkward}));
    QCOMPARE(
        SelectValue("select STATNO_NAME from STATNO where STATNO_STAT_NO = ?", {"x"}).toString(),
        awkward);
}

void TestSqlHelpers::transactionRollsBackUnlessCommitted()
{
    TestCompany company;
    QVERIFY(company.isValid());
    const QString count = "select count(*) from STATNO";
    {
        SqlTransaction t;
        QVERIFY(t.active());
        QVERIFY(ExecSql("insert into STATNO (STATNO_NAME) values ('gone')"));
    }
    QCOMPARE(SelectValue(count).toInt(), 0);
    {
        SqlTransaction t;
        QVERIFY(ExecSql("insert into STATNO (STATNO_NAME) values ('kept')"));
        QVERIFY(t.commit());
    }
    QCOMPARE(SelectValue(count).toInt(), 1);
}

QTEST_GUILESS_MAIN(TestSqlHelpers)
#include "tst_sqlhelpers.moc"
