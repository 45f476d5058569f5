// tallynorth-cli issue, print, cancel and sample as a new user runs them on the demonstration
// company: numbers 1 and 2, the list's kinds afterwards, bad usage and refusals with exit 1.
#include "TestData.h"

#include "base/Database.h"

#include <QtTest>

class TestCliInvoices : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void issuePrintCancel();
    void badInput_data();
    void badInput();

private:
    ProcessRun cli(const QStringList& args) const
    {
        return RunProcess(TN_CLI, QStringList{"--base", m_base->path(), "--lang", "en"} + args,
                          m_runtime.path());
    }
    QString stored(const QString& sql) const;
    QString pdf(const QString& name) const { return m_base->path() + "/" + name; }

    std::optional<QTemporaryDir> m_base;
    QTemporaryDir m_runtime;
};

void TestCliInvoices::init()
{
    QVERIFY(m_base.emplace().isValid());
    QCOMPARE(cli({"check"}).exitCode, 0);
    QCOMPARE(cli({"--db", m_base->path() + "/DB/demo.db", "template", "install", TN_TEMPLATE_DIR})
                 .exitCode,
             0);
}

QString TestCliInvoices::stored(const QString& sql) const
{
    if (!Database::open(m_base->path() + "/DB/demo.db"))
        return "<no database>";
    const QString text = QueryText(sql);
    Database::close();
    return text;
}

void TestCliInvoices::issuePrintCancel()
{
    ProcessRun run = cli({"issue", "1", "--pdf", pdf("1.pdf"), "--copies", "2"});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.out.trimmed(), QString("000001"));
    QVERIFY(QFileInfo(pdf("1.pdf")).size() > 1000);
    run = cli({"print", "000001", "--pdf", pdf("1b.pdf")});
    QCOMPARE(run.exitCode, 0);
    run = cli({"cancel", "000001", "--pdf", pdf("2.pdf"), "--shipped", "2024.03.05."});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.out.trimmed(), QString("000002"));
    QCOMPARE(stored("select ORDERHEAD_INVOICE_NO, ORDERHEAD_TYPE, ORDERHEAD_CANCELLING_INVOICE_NO, "
                    "ORDERHEAD_CANCELLED_INVOICE_NO, ORDERHEAD_PRINTED_COPIES from ORDERHEAD "
                    "order by 1"),
             QString("1|0|2||4; 2|1||1|2"));
    run = cli({"orders"});
    QVERIFY(run.out.contains("Cancelled Invoice") && run.out.contains("Cancel Invoice"));
    QCOMPARE(cli({"sample", "--pdf", pdf("sample.pdf")}).exitCode, 0);
}

void TestCliInvoices::badInput_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("message");
    AddRow("issue without id", QStringList{"issue"}, 2, QString("usage"));
    AddRow("issue of no order", QStringList{"issue", "99"}, 1, QString("deleted by an other user"));
    AddRow("copies not a number", QStringList{"issue", "1", "--copies", "x"}, 2, QString("usage"));
    AddRow("print without pdf", QStringList{"print", "000001"}, 2, QString("usage"));
    AddRow("print of no invoice", QStringList{"print", "X", "--pdf", "x.pdf"}, 1,
           QString("There is no invoice with No. X."));
    AddRow("cancel of no invoice", QStringList{"cancel", "000009"}, 1,
           QString("There is no invoice"));
    AddRow("cancel with a bad date", QStringList{"cancel", "000001", "--due", "soon"}, 2,
           QString("usage"));
    AddRow("pdf in a missing folder", QStringList{"issue", "1", "--pdf", "/nonexistent/x.pdf"}, 1,
           QString("Can't print invoice"));
}

void TestCliInvoices::badInput()
{
    QFETCH(QStringList, args);
    QFETCH(int, exitCode);
    QFETCH(QString, message);
    const ProcessRun run = cli(QStringList{"--db", m_base->path() + "/DB/demo.db"} + args);
    QCOMPARE(run.exitCode, exitCode);
    QVERIFY2(run.err.contains(message), qPrintable(run.err));
}

QTEST_GUILESS_MAIN(TestCliInvoices)
#include "tst_cliinvoices.moc"
