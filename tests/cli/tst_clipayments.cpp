// tallynorth-cli pay and payments as a new user runs them on the demonstration company: 40 % of
// an invoice payable by transfer, seen among the unpaid ones with the rest, then the rest, and
// the invoice leaves them; bad input refused with nothing written.
#include "TestData.h"

#include "base/Database.h"

#include <QtTest>

class TestCliPayments : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void payFortyPercentThenTheRest();
    void badInput_data();
    void badInput();

private:
    ProcessRun cli(const QStringList& args) const
    {
        return RunProcess(TN_CLI,
                          QStringList{"--base", m_base->path(), "--lang", "en", "--db",
                                      m_base->path() + "/DB/demo.db"} +
                              args,
                          m_runtime.path());
    }
    QString stored(const QString& sql) const;

    std::optional<QTemporaryDir> m_base;
    QTemporaryDir m_runtime;
};

void TestCliPayments::init()
{
    QVERIFY(m_base.emplace().isValid());
    QCOMPARE(RunProcess(TN_CLI, {"--base", m_base->path(), "check"}, m_runtime.path()).exitCode, 0);
    QCOMPARE(cli({"template", "install", TN_TEMPLATE_DIR}).exitCode, 0);
    // The demonstration order: 3175 Ft by transfer, unpaid once issued.
    QCOMPARE(cli({"issue", "1", "--pdf", m_base->path() + "/1.pdf"}).exitCode, 0);
}

QString TestCliPayments::stored(const QString& sql) const
{
    if (!Database::open(m_base->path() + "/DB/demo.db"))
        return "<no database>";
    const QString text = QueryText(sql);
    Database::close();
    return text;
}

void TestCliPayments::payFortyPercentThenTheRest()
{
    QCOMPARE(cli({"payments", "000001"}).err.trimmed(),
             QString("There are no bank items to this invoice."));
    ProcessRun run = cli({"pay", "000001", "1270", "--date", "2024-05-02", "--record-no", "K/12"});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.out.trimmed(), QString("000001: unpaid 1905 Ft"));
    run = cli({"orders", "--kind", "6"});
    QVERIFY2(run.out.contains("000001") && run.out.contains("\t3175\t1905\t"), qPrintable(run.out));

    run = cli({"pay", "000001", "1905,00", "--date", "2024.05.09.", "--comment", "a maradék"});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.out.trimmed(), QString("000001: paid"));
    QVERIFY(!cli({"orders", "--kind", "6"}).out.contains("000001"));
    run = cli({"payments", "000001"});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.out.split('\n', Qt::SkipEmptyParts),
             (QStringList{"Record No\tTransfer Date\tPaid\tComment", "K/12\t2024-05-02\t1270\t",
                          "\t2024-05-09\t1905\ta maradék", "000001: paid"}));
    QCOMPARE(stored("select ORDERHEAD_PAID, ORDERHEAD_UNPAID_TOTAL from ORDERHEAD where "
                    "ORDERHEAD_INVOICE_NO = 1"),
             QString("1|0"));
}

void TestCliPayments::badInput_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("message");
    AddRow("no date", QStringList{"pay", "000001", "10"}, 2, QString("usage"));
    AddRow("date not a date", QStringList{"pay", "000001", "10", "--date", "soon"}, 2,
           QString("Not a date: soon"));
    AddRow("date left empty", QStringList{"pay", "000001", "10", "--date", ""}, 1,
           QString("Bankitem Transfer Date mustn't not be empty."));
    AddRow("no such invoice", QStringList{"pay", "000009", "10", "--date", "2024-05-02"}, 1,
           QString("There is no invoice"));
}

void TestCliPayments::badInput()
{
    QFETCH(QStringList, args);
    QFETCH(int, exitCode);
    QFETCH(QString, message);
    const ProcessRun run = cli(args);
    QCOMPARE(run.exitCode, exitCode);
    QVERIFY2(run.err.contains(message), qPrintable(run.err));
    QCOMPARE(stored("select count(*) from BANKITEM"), QString("0"));
    QCOMPARE(stored("select ORDERHEAD_PAID, ORDERHEAD_UNPAID_TOTAL from ORDERHEAD where "
                    "ORDERHEAD_INVOICE_NO = 1"),
             QString("0|3175"));
}

QTEST_GUILESS_MAIN(TestCliPayments)
#include "tst_clipayments.moc"
