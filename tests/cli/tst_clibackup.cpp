// tallynorth-cli backup FILE and restore FILE: the messages and exit statuses a script sees, and
// that a killed upgrade, backup or restore leaves a usable company file.
#include "../app/OldCompanyFile.h"
#include "OrdersTestData.h"

#include "base/Database.h"
#include "base/SqlStatement.h"

#include <QProcess>
#include <QtTest>

namespace {

// The file passes SQLite's full check (a journal left by a killed process is rolled back first).
QString CheckedVersion(const QString& path)
{
    QString result = "<failed>";
    if (Database::open(path)) {
        const QString check = SelectValue("pragma integrity_check").toString();
        result = check == "ok" ? SelectValue("select VERSION from DBVERSION").toString() : check;
    }
    Database::close();
    return result;
}

} // namespace

class TestCliBackup : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        QVERIFY(m_cli.emplace().isValid());
        QVERIFY(QDir(m_cli->base()).mkpath("BiztonsagiMasolatok"));
    }

    void severalCompaniesNeedDb_data()
    {
        AddColumns<QString, QString>({"verb", "said"});
        AddRow("backup", "backup", "Backup file saved successfully.");
        AddRow("restore", "restore", "Backup file restored successfully.");
    }

    // A script cannot answer the selection dialog: it is told the companies and left to choose.
    // The work itself is checked by tst_backup.
    void severalCompaniesNeedDb()
    {
        auto [verb, said] = Fetch<QString, QString>({"verb", "said"});
        QCOMPARE(cli({"create", "Kovács Bt.", "--tax-no", "11111111-2-41"}).exitCode, 0);
        QCOMPARE(cli({"create", "Szabó Kft.", "--tax-no", "22222222-2-42"}).exitCode, 0);
        const QString file = backup("kovacs_bt.dbk");
        QVERIFY(QFile::copy(db("kovacs_bt.db"), file));
        const QByteArray before = FileBytes(db("kovacs_bt.db"));

        ProcessRun run = cli({verb, file});
        QCOMPARE(run.exitCode, 1);
        for (const char* expected :
             {"kovacs_bt.db: Kovács Bt.", "szabo_kft.db: Szabó Kft.", "--db"})
            QVERIFY2(run.err.contains(QString(expected)), qPrintable(run.err));

        run = cli({"--db", db("kovacs_bt.db"), verb, file});
        QCOMPARE(QString::number(run.exitCode) + run.err.trimmed(), "0" + said);
        QCOMPARE(FileBytes(db("kovacs_bt.db")), before);
    }

    void usageErrorsSayWhatWasWrong_data()
    {
        AddColumns<QStringList, QString>({"args", "said"});
        AddRow("empty base folder", QStringList{"--base", "", "check"}, "--base needs a value");
        AddRow("unknown language", QStringList{"--lang", "xx", "check"}, "unknown language xx");
        AddRow("unknown option", QStringList{"--frob", "1", "check"}, "unknown option --frob");
        AddRow("unknown command", QStringList{"nosuch"}, "unknown command nosuch");
        AddRow("no command", QStringList{}, "no command given");
        AddRow("verb option", QStringList{"check", "--bad", "x"}, "unknown option --bad");
        AddRow("missing tax number", QStringList{"create", "X Kft"}, "--tax-no is missing");
        AddRow("backup without file", QStringList{"backup"}, "give exactly one backup file");
    }

    void usageErrorsSayWhatWasWrong()
    {
        auto [args, said] = Fetch<QStringList, QString>({"args", "said"});
        const ProcessRun run = cli(args);
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.err.contains(said), qPrintable(run.err));
        QVERIFY2(run.err.contains("usage: tallynorth-cli"), qPrintable(run.err));
        QVERIFY(!QFile::exists(db("demo.db")));
    }

    // Two processes upgrading one file once shared one safety copy and lost the file.
    void twoProcessesOnOneOldFile()
    {
        QVERIFY(QDir(m_cli->base()).mkpath("DB"));
        const QString file = db("ceg.db");
        QVERIFY(OldCompanyFile{3}.build(file));
        auto first = start({"--db", file, "check"});
        auto second = start({"--db", file, "check"});
        QVERIFY(first->waitForFinished(120000) && second->waitForFinished(120000));
        for (QProcess* p : {first.get(), second.get()}) {
            const QString err = QString::fromUtf8(p->readAllStandardError());
            QVERIFY2(p->exitCode() == 0 || err.contains("another program"), qPrintable(err));
        }
        QCOMPARE(CheckedVersion(file), "302");
        QVERIFY(Database::open(file));
        QCOMPARE(SelectValue("select count(*) from ORDERHEAD").toInt(), 6);
        Database::close();
    }

    void killedWorkLeavesOldOrNew_data()
    {
        AddColumns<QString, int>({"verb", "delayMs"});
        for (int delay : {5, 40, 120, 300}) {
            for (const char* verb : {"check", "restore", "backup"})
                QTest::addRow("%s killed after %d ms", verb, delay) << QString(verb) << delay;
        }
    }

    // kill -9 at some point of an upgrade, a restore or a backup: the company file passes the full
    // check and is the old or the new one, and the next start works on it.
    void killedWorkLeavesOldOrNew()
    {
        auto [verb, delayMs] = Fetch<QString, int>({"verb", "delayMs"});
        QVERIFY(QDir(m_cli->base()).mkpath("DB"));
        const QString file = db("ceg.db");
        const QString saved = backup("ceg.dbk");
        QVERIFY(OldCompanyFile{3}.build(verb == "check" ? file : saved));
        if (verb != "check")
            QCOMPARE(cli({"create", "Új Kft.", "--tax-no", "11111111-2-41", "--file", "ceg.db"})
                         .exitCode,
                     0);
        const QStringList args = verb == "check" ? QStringList{"--db", file, "check"}
                                                 : QStringList{"--db", file, verb, saved};
        auto process = start(args);
        QVERIFY(process->waitForStarted());
        QTest::qWait(delayMs);
        process->kill();
        process->waitForFinished();

        const QString version = CheckedVersion(file);
        const QStringList expected =
            verb == "backup" ? QStringList{"302"} : QStringList{"3", "302"};
        QVERIFY2(expected.contains(version), qPrintable(version));
        // The backup file is the earlier one or the new snapshot, never a half-written file.
        if (verb == "backup")
            QVERIFY(QStringList({"3", "302"}).contains(CheckedVersion(saved)));
        const ProcessRun next = cli({"--db", file, "check"});
        QVERIFY2(next.exitCode == 0, qPrintable(next.err));
        QCOMPARE(next.out, file + "\t302\n");
    }

private:
    ProcessRun cli(const QStringList& args) const { return m_cli->run(args); }
    std::unique_ptr<QProcess> start(const QStringList& args) const { return m_cli->start(args); }
    QString db(const QString& name) const { return m_cli->db(name); }
    QString backup(const QString& name) const { return m_cli->file("BiztonsagiMasolatok/" + name); }

    std::optional<OrdersCli> m_cli;
};

QTEST_GUILESS_MAIN(TestCliBackup)
#include "tst_clibackup.moc"
