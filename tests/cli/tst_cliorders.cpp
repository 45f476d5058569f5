// tallynorth-cli order and orders, driven as a script drives them: the demonstration company,
// exit statuses, the questions answered yes or refused with --no, and what ends up stored.
#include "TestData.h"

#include "base/Database.h"
#include "base/SqlStatement.h"

#include <QtTest>

class TestCliOrders : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void addShowListCloneDelete();
    void badInput_data();
    void badInput();

private:
    ProcessRun cli(const QStringList& args) const
    {
        return RunProcess(TN_CLI, QStringList{"--base", m_base->path(), "--lang", "en"} + args,
                          m_runtime.path());
    }
    QString stored(const QString& sql) const;

    std::optional<QTemporaryDir> m_base;
    QTemporaryDir m_runtime;
};

void TestCliOrders::init()
{
    QVERIFY(m_base.emplace().isValid());
    QCOMPARE(cli({"check"}).exitCode, 0);
    // A euro price for the demo product, and a second product without any price.
    QCOMPARE(stored("insert into PRODUCTPRICE values (1, 1, 4.5)"), QString());
    QCOMPARE(stored("insert into PRODUCT (PRODUCT_NAME, PRODUCT_NAME_ASCII, PRODUCT_VAT_ID) "
                    "values ('Árvíztűrő tükörfúrógép', 'ARVIZTURO TUKORFUROGEP', 1)"),
             QString());
}

QString TestCliOrders::stored(const QString& sql) const
{
    if (!Database::open(m_base->path() + "/DB/demo.db"))
        return "<no database>";
    const QString text = QueryText(sql);
    Database::close();
    return text;
}

void TestCliOrders::addShowListCloneDelete()
{
    ProcessRun run = cli({"order", "add", "--partner", "teszt partner", "--currency", "1", "--item",
                          "1:2", "--item", "2:1:10.5", "--item", "1:-1", "--subject", "Próba"});
    QCOMPARE(run.exitCode, 0);
    const QString id = run.out.trimmed();
    // 2 x 4.5 + 10.5 - 4.5 = 15 EUR net, 27% VAT.
    QCOMPARE(stored("select ORDERHEAD_CURRENCY_ABBREVIATION, ORDERHEAD_TOTAL_NET, "
                    "ORDERHEAD_TOTAL_VAT, ORDERHEAD_TOTAL_GROSS, ORDERHEAD_SUBJECT from ORDERHEAD "
                    "where ORDERHEAD_ID = " +
                    id),
             QString("EUR|15|4.05|19.05|Próba"));
    QCOMPARE(stored("select ORDERITEM_NAME, ORDERITEM_PRICE, ORDERITEM_DISCOUNT_TYPE from "
                    "ORDERITEM where ORDERITEM_ORDERHEAD_ID = " +
                    id + " order by ORDERITEM_ID"),
             QString("Teszt termék|4.5|0; Árvíztűrő tükörfúrógép|10.5|2; Teszt termék|4.5|0"));

    run = cli({"order", "show", id});
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.out.contains("Teszt termék\t-1\tdb\t4.50\t-4.50\n"), qPrintable(run.out));
    QVERIFY(run.out.contains("Total Gross\t19.05\n"));
    QVERIFY(run.out.contains("Kind\tUnverified\n"));

    run = cli({"orders", "--partner", "TESZT", "--format", "csv"});
    QCOMPARE(run.exitCode, 0);
    const QStringList lines = run.out.trimmed().split('\n');
    QCOMPARE(lines.size(), 3); // header, the new order, the sample order
    QVERIFY2(lines[1].endsWith(",EUR,15.00,4.05,19.05,0.00,Átutalás,Unverified"),
             qPrintable(lines[1]));

    run = cli({"order", "clone", id});
    QCOMPARE(run.exitCode, 0);
    const QString copy = run.out.trimmed();
    QCOMPARE(stored("select count(*) from ORDERITEM where ORDERITEM_ORDERHEAD_ID = " + copy), "3");
    QCOMPARE(stored("update ORDERHEAD set ORDERHEAD_PRINTED_COPIES = 1 where ORDERHEAD_ID = " + id),
             QString());
    run = cli({"order", "delete", id, copy});
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.out.trimmed(), "1");
    QCOMPARE(run.err.trimmed(),
             "1 orders/invoices can not be deleted,\nbecause they are printed yet.");
    QCOMPARE(stored("select count(*) from ORDERHEAD where ORDERHEAD_ID = " + copy), "0");
}

void TestCliOrders::badInput_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("message");
    QTest::newRow("letters in the quantity")
        << QStringList{"--partner", "1", "--item", "1:x"} << 2 << "Invalid order item \"1:x\"";
    QTest::newRow("no price at all")
        << QStringList{"--partner", "1", "--item", "2:1"} << 1 << "Price field must have a value.";
    QTest::newRow("unknown partner")
        << QStringList{"--partner", "Senki", "--item", "1:1"} << 1 << "Partner not found: Senki";
    QTest::newRow("old shipping refused")
        << QStringList{"--partner", "1", "--item", "1:1", "--shipped", "2020-01-01", "--no"} << 1
        << "-> no";
}

void TestCliOrders::badInput()
{
    QFETCH(QStringList, args);
    QFETCH(int, exitCode);
    QFETCH(QString, message);
    const QString before =
        stored("select count(*) from ORDERHEAD") + "/" + stored("select count(*) from ORDERITEM");
    const ProcessRun run = cli(QStringList{"order", "add"} + args);
    QCOMPARE(run.exitCode, exitCode);
    QVERIFY2(run.err.contains(message), qPrintable(run.err));
    QCOMPARE(stored("select count(*) from ORDERHEAD") + "/" +
                 stored("select count(*) from ORDERITEM"),
             before);
}

QTEST_GUILESS_MAIN(TestCliOrders)
#include "tst_cliorders.moc"
