// Backup and restore of the company file: names, the belonging rule, and that every failure
// leaves the company's own file in place and usable.
#include "CompanyTestCase.h"
#include "ScriptedInteraction.h"
#include "TestData.h"

#include "Columns.h"
#include "app/Backup.h"
#include "base/Database.h"
#include "base/Setup.h"
#include "base/SqlStatement.h"
#include "documents/LabelTranslations.h"

#include <QtTest>

namespace {

const char kSaved[] = "Backup file saved successfully.";
const char kBackupError[] = "Error backing up database file.";
const char kRestored[] = "Backup file restored successfully.";

void AddMarker(const QString& name)
{
    QVERIFY(ExecSql("insert into STATNO (STATNO_NAME) values (?)", {name}));
}

// The markers of the open company, to tell which file's content is in use.
QString Markers()
{
    return QueryText("select STATNO_NAME from STATNO");
}

} // namespace

class TestBackup : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        InstallLabelLoading();
        CompanyTestCase::init();
        AddMarker("own");
        m_folder.emplace();
        m_backup = m_folder->filePath("company.dbk");
        m_ui = {};
    }
    void names_data()
    {
        AddColumns<QString, QString, bool>({"database", "backup", "belongs"});
        AddRow("dots in name", "DB/minta.kft.db", "minta.kft.dbk", true);
        AddRow("longer name", "/b/DB/ceg.db", "ceg.2024.dbk", false);
        AddRow("other case", "/b/DB/ceg.db", "CEG.dbk", false);
        AddRow("aside copy", "/b/DB/ceg.db", "/b/DB/ceg.db.dbk", false);
    }

    // A backup is proposed under the company's name and belongs to it only under that name.
    void names()
    {
        auto [database, backup, belongs] =
            Fetch<QString, QString, bool>({"database", "backup", "belongs"});
        QCOMPARE(BackupBelongsTo(backup, database), belongs);
        QCOMPARE(BackupFileName(database) == QFileInfo(backup).fileName(), belongs);
    }

    void backup_data()
    {
        AddColumns<QString, QString>({"target", "message"});
        AddRow("over an older backup", "company.dbk", kSaved);
        AddRow("missing folder", "no/such/folder/company.dbk", kBackupError);
        AddRow("the database itself", "company.db", kBackupError);
        AddRow("a folder", "", kBackupError);
    }

    // Whatever happens, the company's own file is open again afterwards.
    void backup()
    {
        auto [target, message] = Fetch<QString, QString>({"target", "message"});
        const bool saved = message == kSaved;
        const QString file = m_company->dir() + '/' + target;
        QVERIFY(!saved || WriteFile(file, "an older backup"));
        const QByteArray before = FileBytes(path());
        QCOMPARE(DoBackup(path(), file, m_ui), saved);
        QCOMPARE(m_ui.lastMessage(), message);
        QVERIFY(Database::isOpen());
        QCOMPARE(Database::path(), path());
        QCOMPARE(FileBytes(path()), before);
        QCOMPARE(Markers(), "own");
        if (saved)
            QCOMPARE(MarkersOf(file), "own");
        // No temporary file is left beside the target.
        QCOMPARE(QDir(QFileInfo(file).absolutePath()).entryList({"*.tmp"}, QDir::Files), {});
    }

    void restoreReplacesTheFile()
    {
        QVERIFY(Setup::write({{Col::SETUP_NAME, "Régi Kft"}}));
        QVERIFY(DoBackup(path(), m_backup, m_ui));
        AddMarker("after backup");
        QVERIFY(Setup::write({{Col::SETUP_NAME, "Új Kft"}}));
        QVERIFY(RestoreBackup(path(), m_backup, m_ui));
        QCOMPARE(m_ui.lastMessage(), kRestored);
        QVERIFY(Database::isOpen());
        QCOMPARE(Markers(), "own");
        // The settings of the restored file are the ones in use.
        QCOMPARE(Setup::current().text(Col::SETUP_NAME), "Régi Kft");
        // The replaced file stays aside, with the work done after the backup.
        QVERIFY(Database::open(RestoreAsidePath(path())));
        QCOMPARE(Markers(), "own; after backup");
    }

    // After a failed opening no database is open; the restore then asks before opening the file.
    void restoreWithoutOpenDatabaseAsks()
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
        QCOMPARE(Markers(), "own");
    }

private:
    QString path() const { return m_company->path(); }

    std::optional<QTemporaryDir> m_folder;
    QString m_backup;
    ScriptedInteraction m_ui;
};

QTEST_GUILESS_MAIN(TestBackup)
#include "tst_backup.moc"
