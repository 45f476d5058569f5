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

const QString kSaved = QStringLiteral("Backup file saved successfully.");
const QString kBackupError = QStringLiteral("Error backing up database file.");
const QString kNotOurs =
    QStringLiteral("The selected file is not a backup of currently active database/company.");
const QString kRestoreError = QStringLiteral("Error restoring backup database file.");
const QString kUnableToOpen = QStringLiteral("Unable to open restored database file.");
const QString kRestored = QStringLiteral("Backup file restored successfully.");
const QString kOpenNow =
    QStringLiteral("Database restored successfully.&Do you want to open it now?");

void AddMarker(const QString& name)
{
    QVERIFY(ExecSql(QStringLiteral("insert into STATNO (STATNO_NAME) values (?)"), {name}));
}

QStringList Markers()
{
    SqlStatement st(QStringLiteral("select STATNO_NAME from STATNO order by STATNO_ID"));
    QStringList names;
    if (!st.exec())
        return {QStringLiteral("<query failed: %1>").arg(st.errorText())};
    while (st.next())
        names << st.value(0).toString();
    return names;
}

QByteArray Bytes(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
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
};

void TestBackup::backupName_data()
{
    QTest::addColumn<QString>("database");
    QTest::addColumn<QString>("backup");
    QTest::newRow("plain") << QStringLiteral("/base/DB/ceg.db") << QStringLiteral("ceg.dbk");
    QTest::newRow("dots in name") << QStringLiteral("DB/minta.kft.db")
                                  << QStringLiteral("minta.kft.dbk");
    QTest::newRow("accented") << QStringLiteral("/b/DB/Kovács és társa.db")
                              << QStringLiteral("Kovács és társa.dbk");
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
    QTest::newRow("same name") << QStringLiteral("/b/BiztonsagiMasolatok/ceg.dbk") << true;
    QTest::newRow("any folder") << QStringLiteral("/media/usb/ceg.dbk") << true;
    QTest::newRow("other company") << QStringLiteral("/b/BiztonsagiMasolatok/masik.dbk") << false;
    QTest::newRow("longer name") << QStringLiteral("ceg.2024.dbk") << false;
    QTest::newRow("other case") << QStringLiteral("CEG.dbk") << false;
    QTest::newRow("aside copy") << QStringLiteral("/b/DB/ceg.db.dbk") << false;
}

void TestBackup::belonging()
{
    QFETCH(QString, backup);
    QFETCH(bool, belongs);
    QCOMPARE(BackupBelongsTo(backup, QStringLiteral("/b/DB/ceg.db")), belongs);
}

void TestBackup::backupCopiesAndReopens()
{
    TestCompany company;
    QVERIFY(company.isValid());
    AddMarker(QStringLiteral("kept"));
    QTemporaryDir folder;
    const QString target = folder.filePath(QStringLiteral("company.dbk"));
    QVERIFY(WriteFile(target, "an older backup"));

    ScriptedInteraction ui;
    QVERIFY(DoBackup(company.path(), target, ui));
    QCOMPARE(ui.lastMessage(), kSaved);
    QVERIFY(Database::isOpen());
    QCOMPARE(Bytes(target), Bytes(company.path()));
    QCOMPARE(Markers(), QStringList{QStringLiteral("kept")});
    QVERIFY(!QFile::exists(target + QLatin1String(".part")));
}

void TestBackup::backupFailureStillReopens_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("missing folder") << QStringLiteral("no/such/folder/company.dbk");
    QTest::newRow("the database itself") << QStringLiteral("company.db");
    QTest::newRow("a folder") << QString();
}

void TestBackup::backupFailureStillReopens()
{
    QFETCH(QString, target);
    TestCompany company;
    QVERIFY(company.isValid());
    AddMarker(QStringLiteral("kept"));
    const QByteArray before = Bytes(company.path());

    ScriptedInteraction ui;
    QVERIFY(!DoBackup(company.path(), company.dir() + u'/' + target, ui));
    QCOMPARE(ui.lastMessage(), kBackupError);
    QVERIFY(Database::isOpen());
    QCOMPARE(Database::path(), company.path());
    QCOMPARE(Bytes(company.path()), before);
    QCOMPARE(Markers(), QStringList{QStringLiteral("kept")});
}

void TestBackup::restoreRefusesAnotherCompanysBackup()
{
    TestCompany company;
    QVERIFY(company.isValid());
    AddMarker(QStringLiteral("current"));
    QTemporaryDir folder;
    const QString other = folder.filePath(QStringLiteral("masik.dbk"));
    QVERIFY(QFile::copy(company.path(), other));
    const QByteArray before = Bytes(company.path());

    ScriptedInteraction ui;
    QVERIFY(!RestoreBackup(company.path(), other, ui));
    QCOMPARE(ui.lastMessage(), kNotOurs);
    QVERIFY(ui.questions.isEmpty());
    QVERIFY(Database::isOpen());
    QCOMPARE(Bytes(company.path()), before);
    QVERIFY(!QFile::exists(RestoreAsidePath(company.path())));
}

void TestBackup::restoreReplacesTheFile()
{
    TestCompany company;
    QVERIFY(company.isValid());
    AddMarker(QStringLiteral("in backup"));
    QVERIFY(Setup::write({{QString::fromLatin1(Col::SETUP_NAME), QStringLiteral("Régi Kft")}}));
    QTemporaryDir folder;
    const QString backup = folder.filePath(BackupFileName(company.path()));
    ScriptedInteraction ui;
    QVERIFY(DoBackup(company.path(), backup, ui));

    AddMarker(QStringLiteral("after backup"));
    QVERIFY(Setup::write({{QString::fromLatin1(Col::SETUP_NAME), QStringLiteral("Új Kft")}}));
    QVERIFY(RestoreBackup(company.path(), backup, ui));
    QCOMPARE(ui.lastMessage(), kRestored);
    QVERIFY(Database::isOpen());
    QCOMPARE(Markers(), QStringList{QStringLiteral("in backup")});
    // The settings of the restored file are the ones in use.
    QCOMPARE(Setup::current().text(Col::SETUP_NAME), QStringLiteral("Régi Kft"));
    // The replaced file stays aside, with the work done after the backup.
    QVERIFY(QFile::exists(RestoreAsidePath(company.path())));
    QVERIFY(Bytes(RestoreAsidePath(company.path())).size() > 0);
}

void TestBackup::restoreFailureKeepsOwnFile_data()
{
    QTest::addColumn<QByteArray>("backupContent");
    QTest::addColumn<bool>("backupIsFolder");
    QTest::addColumn<QString>("message");
    QTest::newRow("backup cannot be read") << QByteArray() << true << kRestoreError;
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
    TestCompany company;
    QVERIFY(company.isValid());
    AddMarker(QStringLiteral("own"));
    QTemporaryDir folder;
    const QString backup = folder.filePath(QStringLiteral("company.dbk"));
    QVERIFY(backupIsFolder ? QDir().mkpath(backup) : WriteFile(backup, backupContent));
    const QByteArray before = Bytes(company.path());

    ScriptedInteraction ui;
    QVERIFY(!RestoreBackup(company.path(), backup, ui));
    QCOMPARE(ui.lastMessage(), message);
    QVERIFY(Database::isOpen());
    QCOMPARE(Database::path(), company.path());
    QCOMPARE(Bytes(company.path()), before);
    QCOMPARE(Markers(), QStringList{QStringLiteral("own")});
}

// After a failed opening no database is open; the restore then asks before opening the file.
void TestBackup::restoreWithoutOpenDatabaseAsks()
{
    TestCompany company;
    QVERIFY(company.isValid());
    AddMarker(QStringLiteral("in backup"));
    QTemporaryDir folder;
    const QString backup = folder.filePath(QStringLiteral("company.dbk"));
    ScriptedInteraction ui;
    QVERIFY(DoBackup(company.path(), backup, ui));
    AddMarker(QStringLiteral("later"));

    Database::close();
    ui.yesNoAnswers << false;
    QVERIFY(RestoreBackup(company.path(), backup, ui));
    QCOMPARE(ui.questions, QStringList{kOpenNow});
    QVERIFY(!Database::isOpen());
    QCOMPARE(Bytes(company.path()), Bytes(backup));

    ui.yesNoAnswers << true;
    QVERIFY(RestoreBackup(company.path(), backup, ui));
    QCOMPARE(ui.questions.size(), 2);
    QVERIFY(Database::isOpen());
    QCOMPARE(Markers(), QStringList{QStringLiteral("in backup")});
}

void TestBackup::restoreUpgradesOlderBackup_data()
{
    QTest::addColumn<int>("version");
    QTest::newRow("without version table") << -1;
    QTest::newRow("1") << 1;
    QTest::newRow("301") << 301;
}

// A backup made by an older version of the program comes back upgraded, with its own data and
// invoice labels in use, and the file's replaced content kept aside.
void TestBackup::restoreUpgradesOlderBackup()
{
    QFETCH(int, version);
    TestCompany company;
    QVERIFY(company.isValid());
    AddMarker(QStringLiteral("current"));
    QTemporaryDir folder;
    const QString backup = folder.filePath(QStringLiteral("company.dbk"));
    OldCompanyFile old;
    old.version = version;
    QVERIFY(old.build(backup));
    QVERIFY(Database::open(company.path()));

    ScriptedInteraction ui;
    ui.checkAnswers.enqueue(QList<bool>{false, false, true});
    QVERIFY(RestoreBackup(company.path(), backup, ui));
    QCOMPARE(ui.lastMessage(), kRestored);
    QVERIFY(ui.progressTexts.contains(QStringLiteral("Upgrading database.")));
    QVERIFY(Database::isOpen());
    QCOMPARE(Database::path(), company.path());
    QCOMPARE(ReadDbVersion(), 302);
    QCOMPARE(Setup::current().text(Col::SETUP_NAME), QStringLiteral("Régi Kereskedő Kft."));
    QCOMPARE(SelectValue(QStringLiteral("select count(*) from ORDERHEAD")).toInt(), 6);
    QCOMPARE(Markers(), QStringList{});
    QCOMPARE(LabelTranslations::current().Get(QStringLiteral("TR_PAYMENT_METHOD"), 0),
             QStringLiteral("Fizetési mód"));

    QVERIFY(Database::open(RestoreAsidePath(company.path())));
    QCOMPARE(Markers(), QStringList{QStringLiteral("current")});
}

QTEST_GUILESS_MAIN(TestBackup)
#include "tst_backup.moc"
