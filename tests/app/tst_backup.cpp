// Backup and restore of the company file: names, the belonging rule, and that every failure
// leaves the company's own file in place and usable.
#include "OldCompanyFile.h"
#include "ScriptedInteraction.h"
#include "TestCompany.h"

#include "Columns.h"
#include "app/Backup.h"
#include "app/Database.h"
#include "app/DatabasePrepare.h"
#include "app/Setup.h"
#include "app/SqlStatement.h"
#include "documents/LabelTranslations.h"

#include <QtTest>

namespace {

const char kRestored[] = "Backup file restored successfully.";
const char kUnableToOpen[] = "Unable to open restored database file.";

void AddMarker(const QString& name)
{
    QVERIFY(ExecSql("insert into STATNO (STATNO_NAME) values (?)", {name}));
}

// The markers of the open company, to tell which file's content is in use.
QStringList Markers()
{
    SqlStatement st("select STATNO_NAME from STATNO order by STATNO_ID");
    QStringList names;
    if (!st.exec())
        return {"<query failed: " + st.errorText() + '>'};
    while (st.next())
        names << st.value(0).toString();
    return names;
}

bool WriteFile(const QString& path, const QByteArray& data)
{
    QFile f(path);
    return f.open(QIODevice::WriteOnly) && f.write(data) == data.size();
}

} // namespace

class TestBackup : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { m_company.reset(); }
    void backupName_data();
    void backupName();
    void belonging_data();
    void belonging();
    void backupCopiesAndReopens();
    void backupFailureStillReopens_data();
    void backupFailureStillReopens();
    void restoreRefusesAnotherCompanysBackup();
    void restoreReplacesTheFile();
    void restoreFailureKeepsOwnFile_data();
    void restoreFailureKeepsOwnFile();
    void restoreWithoutOpenDatabaseAsks();
    void restoreUpgradesOlderBackup_data();
    void restoreUpgradesOlderBackup();

private:
    QString path() const { return m_company->path(); }
    // The company's own file is open, with one marker row "own".
    void checkOwnFileInUse(const QByteArray& before);

    std::optional<TestCompany> m_company;
    std::optional<QTemporaryDir> m_folder;
    QString m_backup;
    ScriptedInteraction m_ui;
};

void TestBackup::init()
{
    m_company.emplace();
    QVERIFY(m_company->isValid());
    AddMarker("own");
    m_folder.emplace();
    m_backup = m_folder->filePath("company.dbk");
    m_ui = {};
}

void TestBackup::checkOwnFileInUse(const QByteArray& before)
{
    QVERIFY(Database::isOpen());
    QCOMPARE(Database::path(), path());
    QCOMPARE(FileBytes(path()), before);
    QCOMPARE(Markers(), QStringList{"own"});
}

void TestBackup::backupName_data()
{
    QTest::addColumn<QString>("database");
    QTest::addColumn<QString>("backup");
    QTest::newRow("plain") << "/base/DB/ceg.db"
                           << "ceg.dbk";
    QTest::newRow("dots in name") << "DB/minta.kft.db"
                                  << "minta.kft.dbk";
}

void TestBackup::backupName()
{
    QFETCH(QString, database);
    QFETCH(QString, backup);
    QCOMPARE(BackupFileName(database), backup);
}

void TestBackup::belonging_data()
{
    QTest::addColumn<QString>("backup");
    QTest::addColumn<bool>("belongs");
    QTest::newRow("same name") << "/b/BiztonsagiMasolatok/ceg.dbk" << true;
    QTest::newRow("any folder") << "/media/usb/ceg.dbk" << true;
    QTest::newRow("other company") << "/b/BiztonsagiMasolatok/masik.dbk" << false;
    QTest::newRow("longer name") << "ceg.2024.dbk" << false;
    QTest::newRow("other case") << "CEG.dbk" << false;
    QTest::newRow("aside copy") << "/b/DB/ceg.db.dbk" << false;
}

void TestBackup::belonging()
{
    QFETCH(QString, backup);
    QFETCH(bool, belongs);
    QCOMPARE(BackupBelongsTo(backup, "/b/DB/ceg.db"), belongs);
}

void TestBackup::backupCopiesAndReopens()
{
    QVERIFY(WriteFile(m_backup, "an older backup"));
    QVERIFY(DoBackup(path(), m_backup, m_ui));
    QCOMPARE(m_ui.lastMessage(), "Backup file saved successfully.");
    QCOMPARE(FileBytes(m_backup), FileBytes(path()));
    checkOwnFileInUse(FileBytes(path()));
    QVERIFY(!QFile::exists(m_backup + ".part"));
}

void TestBackup::backupFailureStillReopens_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("missing folder") << "no/such/folder/company.dbk";
    QTest::newRow("the database itself") << "company.db";
    QTest::newRow("a folder") << "";
}

void TestBackup::backupFailureStillReopens()
{
    QFETCH(QString, target);
    const QByteArray before = FileBytes(path());
    QVERIFY(!DoBackup(path(), m_company->dir() + '/' + target, m_ui));
    QCOMPARE(m_ui.lastMessage(), "Error backing up database file.");
    checkOwnFileInUse(before);
}

void TestBackup::restoreRefusesAnotherCompanysBackup()
{
    const QString other = m_folder->filePath("masik.dbk");
    QVERIFY(QFile::copy(path(), other));
    const QByteArray before = FileBytes(path());
    QVERIFY(!RestoreBackup(path(), other, m_ui));
    QCOMPARE(m_ui.lastMessage(),
             "The selected file is not a backup of currently active database/company.");
    QVERIFY(m_ui.questions.isEmpty());
    checkOwnFileInUse(before);
    QVERIFY(!QFile::exists(RestoreAsidePath(path())));
}

void TestBackup::restoreReplacesTheFile()
{
    QVERIFY(Setup::write({{Col::SETUP_NAME, "Régi Kft"}}));
    QVERIFY(DoBackup(path(), m_backup, m_ui));
    AddMarker("after backup");
    QVERIFY(Setup::write({{Col::SETUP_NAME, "Új Kft"}}));
    QVERIFY(RestoreBackup(path(), m_backup, m_ui));
    QCOMPARE(m_ui.lastMessage(), kRestored);
    QVERIFY(Database::isOpen());
    QCOMPARE(Markers(), QStringList{"own"});
    // The settings of the restored file are the ones in use.
    QCOMPARE(Setup::current().text(Col::SETUP_NAME), "Régi Kft");
    // The replaced file stays aside, with the work done after the backup.
    QVERIFY(Database::open(RestoreAsidePath(path())));
    QCOMPARE(Markers(), QStringList({"own", "after backup"}));
}

void TestBackup::restoreFailureKeepsOwnFile_data()
{
    QTest::addColumn<QByteArray>("backupContent");
    QTest::addColumn<bool>("backupIsFolder");
    QTest::addColumn<QString>("message");
    QTest::newRow("backup cannot be read")
        << QByteArray() << true << "Error restoring backup database file.";
    QTest::newRow("backup is not a database")
        << QByteArray("this is not an SQLite file, only text") << false << kUnableToOpen;
    // SQLite would take an empty file for a new database and make an empty company of it.
    QTest::newRow("backup is empty") << QByteArray() << false << kUnableToOpen;
}

void TestBackup::restoreFailureKeepsOwnFile()
{
    QFETCH(QByteArray, backupContent);
    QFETCH(bool, backupIsFolder);
    QFETCH(QString, message);
    QVERIFY(backupIsFolder ? QDir().mkpath(m_backup) : WriteFile(m_backup, backupContent));
    const QByteArray before = FileBytes(path());
    QVERIFY(!RestoreBackup(path(), m_backup, m_ui));
    QCOMPARE(m_ui.lastMessage(), message);
    checkOwnFileInUse(before);
}

// After a failed opening no database is open; the restore then asks before opening the file.
void TestBackup::restoreWithoutOpenDatabaseAsks()
{
    QVERIFY(DoBackup(path(), m_backup, m_ui));
    AddMarker("later");
    Database::close();
    m_ui.yesNoAnswers << false << true;
    QVERIFY(RestoreBackup(path(), m_backup, m_ui));
    QCOMPARE(m_ui.questions,
             QStringList{"Database restored successfully.&Do you want to open it now?"});
    QVERIFY(!Database::isOpen());
    QCOMPARE(FileBytes(path()), FileBytes(m_backup));

    QVERIFY(RestoreBackup(path(), m_backup, m_ui));
    QCOMPARE(m_ui.questions.size(), 2);
    QVERIFY(Database::isOpen());
    QCOMPARE(Markers(), QStringList{"own"});
}

void TestBackup::restoreUpgradesOlderBackup_data()
{
    QTest::addColumn<int>("version");
    QTest::newRow("without version table") << -1;
    QTest::newRow("301") << 301;
}

// A backup made by an older version of the program comes back upgraded, with its own data and
// invoice labels in use, and the file's replaced content kept aside.
void TestBackup::restoreUpgradesOlderBackup()
{
    QFETCH(int, version);
    QVERIFY(OldCompanyFile{version}.build(m_backup));
    QVERIFY(Database::open(path()));
    m_ui.checkAnswers.enqueue(QList<bool>{false, false, true});
    QVERIFY(RestoreBackup(path(), m_backup, m_ui));
    QCOMPARE(m_ui.lastMessage(), kRestored);
    QVERIFY(m_ui.progressTexts.contains("Upgrading database."));
    QVERIFY(Database::isOpen());
    QCOMPARE(Database::path(), path());
    QCOMPARE(ReadDbVersion(), 302);
    QCOMPARE(Setup::current().text(Col::SETUP_NAME), "Régi Kereskedő Kft.");
    QCOMPARE(SelectValue("select count(*) from ORDERHEAD").toInt(), 6);
    QCOMPARE(Markers(), QStringList{});
    QCOMPARE(LabelTranslations::current().Get("TR_PAYMENT_METHOD", 0), "Fizetési mód");

    QVERIFY(Database::open(RestoreAsidePath(path())));
    QCOMPARE(Markers(), QStringList{"own"});
}

QTEST_GUILESS_MAIN(TestBackup)
#include "tst_backup.moc"
