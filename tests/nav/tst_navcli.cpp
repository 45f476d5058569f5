// The command line's nav verbs on the demonstration company: the exported documents validate
// against the authority's schemas (one invoice to standard output or a file, a range to a
// folder), the queue lists what waits, and bad usage is told as such.
#include "NavTestOrders.h"
#include "TestData.h"

#include "base/Database.h"
#include "nav/XmlSchemaCheck.h"

#include <QDir>
#include <QtTest>

class TestNavCli : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_base.isValid());
        QCOMPARE(cli({"check"}).exitCode, 0);
        QVERIFY(Database::open(db()));
        QVERIFY(PrepareNavSeller());
        Database::close();
        const ProcessRun added = cli(
            {"--db", db(), "order", "add", "--partner", "1", "--item", "1:2", "--item", "1:1:500"});
        QCOMPARE(added.exitCode, 0);
        QCOMPARE(cli({"--db", db(), "issue", added.out.trimmed()}).out.trimmed(), "000001");
        QCOMPARE(cli({"--db", db(), "cancel", "000001"}).out.trimmed(), "000002");
    }

    void exports_data()
    {
        AddColumns<QStringList, QStringList>({"args", "files"});
        AddRow("to standard output", QStringList{"000001"}, QStringList{"-"});
        AddRow("to a file", QStringList{"000002", "--out", "@/one.xml"}, QStringList{"one.xml"});
        AddRow("a range",
               QStringList{"--from-no", "000002", "--to-no", "000001", "--out", "@/range"},
               QStringList{"range/000001.xml", "range/000002.xml"});
    }

    void exports()
    {
        auto [args, files] = Fetch<QStringList, QStringList>({"args", "files"});
        args.replaceInStrings("@", m_base.path());
        const ProcessRun run = cli(QStringList{"--db", db(), "nav", "export"} + args);
        QVERIFY2(run.exitCode == 0, qPrintable(run.err));
        for (const QString& file : files) {
            const QByteArray document =
                file == "-" ? run.out.toUtf8() : FileBytes(m_base.path() + "/" + file);
            QStringList errors;
            QVERIFY2(m_schema.validate(document, &errors), qPrintable(errors.join('\n')));
        }
    }

    void statusListsTheQueue()
    {
        const ProcessRun run = cli({"--db", db(), "nav", "status"});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.out, QString("000001\tWaiting\t\n000002\tWaiting\t\n"));
        QCOMPARE(cli({"--db", db(), "nav", "status", "000009"}).exitCode, 1);
        // Sending without a technical user is refused; the invoices keep waiting.
        const ProcessRun send = cli({"--db", db(), "nav", "send"});
        QCOMPARE(send.exitCode, 1);
        QVERIFY(send.err.contains("not set up"));
    }

    void badUsage_data()
    {
        AddColumns<QStringList, int>({"args", "exitCode"});
        AddRow("unknown sub-verb", QStringList{"fly"}, 2);
        AddRow("range without folder", QStringList{"export", "--from-no", "1", "--to-no", "2"}, 2);
        AddRow("unknown invoice", QStringList{"export", "000099"}, 1);
        AddRow("resend what was not rejected", QStringList{"resend", "000001"}, 1);
        AddRow("resend without number", QStringList{"resend"}, 2);
    }

    void badUsage()
    {
        auto [args, exitCode] = Fetch<QStringList, int>({"args", "exitCode"});
        QCOMPARE(cli(QStringList{"--db", db(), "nav"} + args).exitCode, exitCode);
    }

private:
    ProcessRun cli(const QStringList& args) const
    {
        return RunProcess(TN_CLI, QStringList{"--base", m_base.path(), "--lang", "en"} + args,
                          m_runtime.path());
    }
    QString db() const { return m_base.path() + "/DB/demo.db"; }

    QTemporaryDir m_base;
    QTemporaryDir m_runtime;
    XmlSchemaCheck m_schema{XmlSchemaCheck::invoiceDataSchema()};
};

QTEST_GUILESS_MAIN(TestNavCli)
#include "tst_navcli.moc"
