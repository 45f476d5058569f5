// tallynorth-cli backup FILE and restore FILE: the company chosen as at start-up when --db is not
// given, the messages and exit statuses a script sees, and an older backup upgraded on restore.
#include "OldCompanyFile.h"
#include "TestData.h"

#include "base/Database.h"
#include "base/SqlStatement.h"

#include <QProcess>
#include <QtTest>

class TestCliBackup : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void backupAndRestoreTheOnlyCompany();
    void severalCompaniesNeedDb_data();
    void severalCompaniesNeedDb();
    void restoreUpgradesOlderBackup();

private:
    struct Run
    {
        int exitCode = -1;
        QString out, err;
    };
    Run cli(const QStringList& args) const;
    QString db(const QString& name) const { return m_base->path() + "/DB/" + name; }
    QString backup(const QString& name) const
    {
        return m_base->path() + "/BiztonsagiMasolatok/" + name;
    }

    std::optional<QTemporaryDir> m_base;
    QTemporaryDir m_runtime;
};

namespace {

// The markers of the company file, to tell which content is in use; with name, one is added.
QString Markers(const QString& path, const QString& name = {})
{
    QString markers = "<failed>";
    if (Database::open(path) &&
        (name.isEmpty() || ExecSql("insert into STATNO (STATNO_NAME) values (?)", {name})))
        markers = QueryText("select STATNO_NAME from STATNO");
    Database::close();
    return markers;
}

} // namespace

void TestCliBackup::init()
{
    QVERIFY(m_base.emplace().isValid());
    QVERIFY(QDir(m_base->path()).mkpath("BiztonsagiMasolatok"));
}

TestCliBackup::Run TestCliBackup::cli(const QStringList& args) const
{
    QProcess process;
    // Only the program's own messages on standard error, not Qt's note about a missing runtime
    // folder.
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("XDG_RUNTIME_DIR", m_runtime.path());
    process.setProcessEnvironment(env);
    process.start(TN_CLI, QStringList{"--base", m_base->path()} + args);
    Run run;
    if (process.waitForFinished(120000))
        run = {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
               QString::fromUtf8(process.readAllStandardError())};
    return run;
}

void TestCliBackup::backupAndRestoreTheOnlyCompany()
{
    QCOMPARE(cli({"check"}).exitCode, 0);
    const QString demo = db("demo.db");
    QCOMPARE(Markers(demo, "saved"), "saved");
    const QString file = backup("demo.dbk");

    Run run = cli({"backup", file});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.err.trimmed(), "Backup file saved successfully.");
    QCOMPARE(Markers(file), "saved");

    QCOMPARE(Markers(demo, "later"), "saved; later");
    run = cli({"restore", file});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.err.trimmed(), "Backup file restored successfully.");
    QCOMPARE(Markers(demo), "saved");
}

void TestCliBackup::severalCompaniesNeedDb_data()
{
    QTest::addColumn<QString>("verb");
    AddRow("backup", "backup");
    AddRow("restore", "restore");
}

// A script cannot answer the selection dialog: it is told the companies and left to choose.
void TestCliBackup::severalCompaniesNeedDb()
{
    QFETCH(QString, verb);
    QCOMPARE(cli({"create", "Kovács Bt.", "--tax-no", "11111111-2-41"}).exitCode, 0);
    QCOMPARE(cli({"create", "Szabó Kft.", "--tax-no", "22222222-2-42"}).exitCode, 0);
    const QString file = backup("kovacs_bt.dbk");
    QVERIFY(QFile::copy(db("kovacs_bt.db"), file));
    const QByteArray before = FileBytes(db("kovacs_bt.db"));

    Run run = cli({verb, file});
    QCOMPARE(run.exitCode, 1);
    for (const char* expected : {"kovacs_bt.db: Kovács Bt.", "szabo_kft.db: Szabó Kft.", "--db"})
        QVERIFY2(run.err.contains(QString(expected)), qPrintable(run.err));

    QCOMPARE(cli({"--db", db("kovacs_bt.db"), verb, file}).exitCode, 0);
    QCOMPARE(FileBytes(db("kovacs_bt.db")), before);
}

void TestCliBackup::restoreUpgradesOlderBackup()
{
    QCOMPARE(cli({"create", "Régi Kereskedő Kft.", "--tax-no", "11111111-2-41", "--file", "ceg.db"})
                 .exitCode,
             0);
    const QString file = backup("ceg.dbk");
    QVERIFY(OldCompanyFile{3}.build(file));

    Run run = cli({"restore", file});
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.err.endsWith("Backup file restored successfully.\n"), qPrintable(run.err));
    run = cli({"check"});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.out, db("ceg.db") + "\t302\n");
    QVERIFY(Database::open(db("ceg.db")));
    QCOMPARE(SelectValue("select count(*) from ORDERHEAD").toInt(), 6);
    Database::close();
}

QTEST_GUILESS_MAIN(TestCliBackup)
#include "tst_clibackup.moc"
