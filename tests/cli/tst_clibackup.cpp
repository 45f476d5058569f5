// tallynorth-cli backup FILE and restore FILE: the company chosen as at start-up when --db is not
// given, the messages and exit statuses a script sees, and an older backup upgraded on restore.
#include "OldCompanyFile.h"

#include "app/Database.h"
#include "app/SqlStatement.h"

#include <QProcess>
#include <QtTest>

namespace {

struct Run
{
    int exitCode = -1;
    QString out;
    QString err;
};

QStringList Markers(const QString& path)
{
    QStringList names;
    if (!Database::open(path))
        return {QStringLiteral("<cannot open>")};
    SqlStatement st(QStringLiteral("select STATNO_NAME from STATNO order by STATNO_ID"));
    if (st.exec()) {
        while (st.next())
            names << st.value(0).toString();
    }
    Database::close();
    return names;
}

bool AddMarker(const QString& path, const QString& name)
{
    const bool done =
        Database::open(path) &&
        ExecSql(QStringLiteral("insert into STATNO (STATNO_NAME) values (?)"), {name});
    Database::close();
    return done;
}

} // namespace

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
    Run cli(const QStringList& args) const;
    QString db(const QString& name) const { return m_base->path() + QLatin1String("/DB/") + name; }
    QString backup(const QString& name) const
    {
        return m_base->path() + QLatin1String("/BiztonsagiMasolatok/") + name;
    }

    std::unique_ptr<QTemporaryDir> m_base;
    QTemporaryDir m_runtime;
};

void TestCliBackup::init()
{
    m_base = std::make_unique<QTemporaryDir>();
    QVERIFY(m_base->isValid());
}

Run TestCliBackup::cli(const QStringList& args) const
{
    QProcess process;
    // Only the program's own messages on standard error, not Qt's note about a missing runtime
    // folder.
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_runtime.path());
    process.setProcessEnvironment(env);
    process.start(QStringLiteral(TN_CLI),
                  QStringList{QStringLiteral("--base"), m_base->path()} + args);
    Run run;
    if (!process.waitForFinished(120000))
        return run;
    run.exitCode = process.exitCode();
    run.out = QString::fromUtf8(process.readAllStandardOutput());
    run.err = QString::fromUtf8(process.readAllStandardError());
    return run;
}

void TestCliBackup::backupAndRestoreTheOnlyCompany()
{
    QCOMPARE(cli({QStringLiteral("check")}).exitCode, 0);
    const QString demo = db(QStringLiteral("demo.db"));
    QVERIFY(AddMarker(demo, QStringLiteral("saved")));
    const QString file = backup(QStringLiteral("demo.dbk"));

    Run run = cli({QStringLiteral("backup"), file});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.err.trimmed(), QStringLiteral("Backup file saved successfully."));
    QCOMPARE(FileBytes(file), FileBytes(demo));

    QVERIFY(AddMarker(demo, QStringLiteral("later")));
    run = cli({QStringLiteral("restore"), file});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.err.trimmed(), QStringLiteral("Backup file restored successfully."));
    QCOMPARE(Markers(demo), QStringList{QStringLiteral("saved")});
}

void TestCliBackup::severalCompaniesNeedDb_data()
{
    QTest::addColumn<QString>("verb");
    QTest::newRow("backup") << QStringLiteral("backup");
    QTest::newRow("restore") << QStringLiteral("restore");
}

// A script cannot answer the selection dialog: it is told the companies and left to choose.
void TestCliBackup::severalCompaniesNeedDb()
{
    QFETCH(QString, verb);
    QCOMPARE(cli({QStringLiteral("create"), QStringLiteral("Kovács Bt."),
                  QStringLiteral("--tax-no"), QStringLiteral("11111111-2-41")})
                 .exitCode,
             0);
    QCOMPARE(cli({QStringLiteral("create"), QStringLiteral("Szabó Kft."),
                  QStringLiteral("--tax-no"), QStringLiteral("22222222-2-42")})
                 .exitCode,
             0);
    const QString file = backup(QStringLiteral("kovacs_bt.dbk"));
    QVERIFY(QDir().mkpath(QFileInfo(file).path()));
    QVERIFY(QFile::copy(db(QStringLiteral("kovacs_bt.db")), file));
    const QByteArray before = FileBytes(db(QStringLiteral("kovacs_bt.db")));

    Run run = cli({verb, file});
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.err.contains(QStringLiteral("kovacs_bt.db: Kovács Bt.")), qPrintable(run.err));
    QVERIFY2(run.err.contains(QStringLiteral("szabo_kft.db: Szabó Kft.")), qPrintable(run.err));
    QVERIFY2(run.err.contains(QLatin1String("--db")), qPrintable(run.err));

    run = cli({QStringLiteral("--db"), db(QStringLiteral("kovacs_bt.db")), verb, file});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(FileBytes(db(QStringLiteral("kovacs_bt.db"))), before);
}

void TestCliBackup::restoreUpgradesOlderBackup()
{
    QCOMPARE(cli({QStringLiteral("create"), QStringLiteral("Régi Kereskedő Kft."),
                  QStringLiteral("--tax-no"), QStringLiteral("11111111-2-41"),
                  QStringLiteral("--file"), QStringLiteral("ceg.db")})
                 .exitCode,
             0);
    const QString file = backup(QStringLiteral("ceg.dbk"));
    QVERIFY(QDir().mkpath(QFileInfo(file).path()));
    OldCompanyFile old;
    old.version = 3;
    QVERIFY(old.build(file));

    Run run = cli({QStringLiteral("restore"), file});
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(run.err.endsWith(QLatin1String("Backup file restored successfully.\n")),
             qPrintable(run.err));
    run = cli({QStringLiteral("check")});
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.out, db(QStringLiteral("ceg.db")) + QLatin1String("\t302\n"));
    QVERIFY(Database::open(db(QStringLiteral("ceg.db"))));
    QCOMPARE(SelectValue(QStringLiteral("select count(*) from ORDERHEAD")).toInt(), 6);
    Database::close();
}

QTEST_GUILESS_MAIN(TestCliBackup)
#include "tst_clibackup.moc"
