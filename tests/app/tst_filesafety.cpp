// A company file is never lost or silently corrupted: transactions whose commit fails, files that
// are not what they claim to be, and what an interrupted restore or upgrade leaves behind.
#include "CompanyTestCase.h"
#include "OldCompanyFile.h"
#include "ScriptedInteraction.h"
#include "TestData.h"

#include "app/Backup.h"
#include "app/CompanyChoice.h"
#include "app/CompanyFile.h"
#include "app/CompanyLock.h"
#include "app/DatabasePrepare.h"
#include "app/ScopedConnection.h"
#include "base/Database.h"
#include "base/SqlStatement.h"
#include "base/SqlTransaction.h"

#include <QSqlQuery>
#include <QtTest>

namespace {

// Kinds of files found where a company file was expected.
bool MakeFile(const QString& kind, const QString& path, const QString& company)
{
    if (kind == "text")
        return WriteFile(path, "CREATE TABLE is not what this file holds\n");
    // SQLite would take an empty file for a new database and make an empty company of it.
    if (kind == "empty")
        return WriteFile(path, {});
    if (kind == "folder")
        return QDir().mkpath(path);
    if (kind == "truncated")
        return WriteFile(path, FileBytes(company).left(FileBytes(company).size() / 2));
    if (kind == "newer" || kind == "company" || kind == "other company") {
        if (!QFile::copy(company, path))
            return false;
        if (kind != "newer")
            return true;
        ScopedConnection c(path, ScopedConnection::Mode::ReadWrite);
        return QSqlQuery(c.db()).exec("update DBVERSION set VERSION = 303");
    }
    ScopedConnection c(path, ScopedConnection::Mode::ReadWrite);
    if (kind == "sqlite without tables")
        return QSqlQuery(c.db()).exec("pragma user_version = 7");
    return QSqlQuery(c.db()).exec("create table NOTES (ID integer, TEXT text)"); // "foreign"
}

} // namespace

class TestFileSafety : public CompanyTestCase
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        CompanyTestCase::init();
        QVERIFY(ExecSql("insert into STATNO (STATNO_NAME) values ('own')"));
        m_ui = {};
    }
    // A reader's lock outlasting the busy time-out makes COMMIT fail: the rows must not stay in an
    // open transaction that every later one takes for its outer one.
    void failedCommitIsRolledBack()
    {
        ScopedConnection reader(path(), ScopedConnection::Mode::ReadOnly);
        QSqlQuery read(reader.db());
        QVERIFY(read.exec("begin"));
        QVERIFY(read.exec("select count(*) from STATNO") && read.next());
        {
            SqlTransaction t;
            QVERIFY(t.active());
            QVERIFY(ExecSql("insert into STATNO (STATNO_NAME) values ('lost')"));
            QVERIFY(!t.commit());
            QVERIFY(!t.errorText().isEmpty());
        }
        QCOMPARE(SqlTransaction::depth(), 0);
        read.finish();
        QVERIFY(read.exec("commit"));
        {
            SqlTransaction t;
            QVERIFY(ExecSql("insert into STATNO (STATNO_NAME) values ('kept')"));
            QVERIFY(t.commit());
        }
        Database::close();
        QCOMPARE(MarkersOf(path()), "own; kept");
    }

    void savepointsNest()
    {
        SqlTransaction outer;
        QVERIFY(ExecSql("insert into STATNO (STATNO_NAME) values ('outer')"));
        {
            SqlTransaction inner;
            QVERIFY(inner.active() && inner.nested());
            QVERIFY(ExecSql("insert into STATNO (STATNO_NAME) values ('inner rolled back')"));
        }
        {
            SqlTransaction inner;
            QVERIFY(ExecSql("insert into STATNO (STATNO_NAME) values ('inner')"));
            QVERIFY(inner.commit());
        }
        QVERIFY(outer.commit());
        QCOMPARE(SqlTransaction::depth(), 0);
        QCOMPARE(QueryText("select STATNO_NAME from STATNO order by STATNO_ID"),
                 "own; outer; inner");
    }

    void refused_data()
    {
        // restore: or open
        AddColumns<bool, QString, QString>({"restore", "kind", "message"});
        const QString foreign = "The file is not a company database:&%1";
        const QString damaged = "The company database file is damaged:&%1";
        const QString newer = "The database version is newer, than the version of the billing "
                              "software.&Upgrade the software to a newer version.";
        AddRow("opening a foreign SQLite file", false, "foreign", foreign);
        AddRow("opening a truncated company", false, "truncated", damaged);
        AddRow("opening a newer version", false, "newer", newer);
        AddRow("restoring an SQLite file without tables", true, "sqlite without tables", foreign);
        AddRow("restoring a truncated backup", true, "truncated", damaged);
        AddRow("restoring a newer version", true, "newer", newer);
        AddRow("restoring an empty file", true, "empty", foreign);
        AddRow("restoring a folder", true, "folder", "Error restoring backup database file.");
        AddRow("restoring another company's backup", true, "other company",
               "The selected file is not a backup of currently active database/company.");
    }

    // Refused with a message naming the file, and nothing written to it; a refused restore leaves
    // the company's own file in place and in use.
    void refused()
    {
        auto [restore, kind, message] =
            Fetch<bool, QString, QString>({"restore", "kind", "message"});
        const QString file = m_company->dir() + (!restore                  ? "/other.db"
                                                 : kind == "other company" ? "/b/masik.dbk"
                                                                           : "/b/company.dbk");
        QVERIFY(QDir().mkpath(m_company->dir() + "/b"));
        QVERIFY(MakeFile(kind, file, path()));
        const QByteArray before = FileBytes(restore ? path() : file);
        if (restore) {
            QVERIFY(!RestoreBackup(path(), file, m_ui));
            QVERIFY(Database::isOpen());
            QCOMPARE(Database::path(), path());
            QCOMPARE(QueryText("select STATNO_NAME from STATNO"), "own");
            QVERIFY(!QFile::exists(RestoreAsidePath(path())));
            QCOMPARE(QDir(m_company->dir()).entryList({"*.tmp"}, QDir::Files), {});
        } else {
            Database::close();
            QVERIFY(!OpenCompany(file, m_ui));
            QVERIFY(!Database::isOpen());
            QVERIFY(!QFile::exists(DatabasePrepare::safetyCopyPath(file)));
        }
        QCOMPARE(m_ui.lastMessage(), message.arg(file));
        QVERIFY(m_ui.sqlErrors.isEmpty() && m_ui.questions.isEmpty());
        QCOMPARE(FileBytes(restore ? path() : file), before);
    }

    // A lock held by another connection was read as "no schema" and ended in a CREATE TABLE error.
    void lockedFileIsInUseNotNew()
    {
        Database::close();
        qputenv("TALLYNORTH_LOCK_WAIT_MS", "0");
        ScopedConnection other(path(), ScopedConnection::Mode::ReadWrite);
        QVERIFY(QSqlQuery(other.db()).exec("begin exclusive"));
        QVERIFY(!OpenCompany(path(), m_ui));
        QVERIFY2(m_ui.lastMessage().startsWith("The company database file is in use by another"),
                 qPrintable(m_ui.lastMessage()));
        QVERIFY(m_ui.sqlErrors.isEmpty());
        QVERIFY(QSqlQuery(other.db()).exec("rollback"));
        QVERIFY(OpenCompany(path(), m_ui));
        qunsetenv("TALLYNORTH_LOCK_WAIT_MS");
    }

    // A process killed before it wrote its owner into the lock file left it empty, and every
    // later start was refused.
    void emptyLeftoverLockIsTakenOver()
    {
        Database::close();
        qputenv("TALLYNORTH_LOCK_WAIT_MS", "0");
        QFile lock(CompanyLock::lockPath(path()));
        QVERIFY(lock.open(QIODevice::WriteOnly));
        lock.close();
        QVERIFY(!CompanyLock(path()).acquire()); // just made: its owner may be writing it now
        QVERIFY(lock.open(QIODevice::ReadWrite));
        QVERIFY(lock.setFileTime(QDateTime::currentDateTime().addSecs(-10),
                                 QFileDevice::FileModificationTime));
        lock.close();
        QVERIFY(OpenCompany(path(), m_ui));
        qunsetenv("TALLYNORTH_LOCK_WAIT_MS");
    }

    void readOnlyFileKeepsItsMode()
    {
        Database::close();
        const auto mode = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
        QVERIFY(QFile::setPermissions(path(), mode));
        QVERIFY(!OpenCompany(path(), m_ui));
        QCOMPARE(m_ui.lastMessage(), "The company file is read-only:&" + path());
        QCOMPARE(QFile::permissions(path()) & 0x7077, mode);
    }

    // Another connection's uncommitted write is not in the backup, and the backup passes its check.
    void backupIsASnapshot()
    {
        ScopedConnection writer(path(), ScopedConnection::Mode::ReadWrite);
        QSqlQuery write(writer.db());
        QVERIFY(write.exec("begin immediate"));
        QVERIFY(write.exec("insert into STATNO (STATNO_NAME) values ('uncommitted')"));
        QTemporaryDir folder;
        const QString backup = folder.filePath("company.dbk");
        QVERIFY(DoBackup(path(), backup, m_ui));
        QVERIFY(write.exec("commit"));
        QCOMPARE(MarkersOf(backup), "own");
        QVERIFY(CompanyFile::checkRestorable(backup));
    }

    // A restore that died after moving the file aside (an older program's way) left no company
    // file.
    void interruptedRestoreIsPutBack()
    {
        Database::close();
        const QString aside = RestoreAsidePath(path());
        QVERIFY(QFile::rename(path(), aside));
        const QString chosen = ChooseStartupDatabase(
            {}, m_company->dir(), m_ui, [](const auto&) { return std::optional<QString>(); });
        QCOMPARE(chosen, path());
        QVERIFY(m_ui.lastMessage().startsWith("A restore of the company file was interrupted."));
        QVERIFY(!QFile::exists(aside));
        QCOMPARE(MarkersOf(path()), "own");
    }

    void interruptedUpgradeKeepsItsOriginal_data()
    {
        QTest::addColumn<bool>("interrupted");
        AddRow("copy of an interrupted run is the original", true);
        AddRow("copy of an earlier finished upgrade is replaced", false);
    }

    // A killed upgrade must not let the next start take the file it finds for the original.
    void interruptedUpgradeKeepsItsOriginal()
    {
        QFETCH(bool, interrupted);
        Database::close();
        QVERIFY(QFile::remove(path()));
        QVERIFY(OldCompanyFile{3}.build(path()));
        const QString copy = DatabasePrepare::safetyCopyPath(path());
        QVERIFY(OldCompanyFile{-1}.build(copy));
        if (interrupted)
            QVERIFY(WriteFile(DatabasePrepare::upgradeMarkerPath(path()), "x"));
        const QByteArray original = FileBytes(interrupted ? copy : path());
        QVERIFY(Database::open(path()));
        DatabasePrepare prepare(m_ui);
        prepare.setFailingStep(5);
        m_ui.checkAnswers.enqueue(QList<bool>{false, false, false});
        QVERIFY(!prepare.run());
        QCOMPARE(FileBytes(path()), original);
        QVERIFY(!QFile::exists(DatabasePrepare::upgradeMarkerPath(path())));
    }

private:
    QString path() const { return m_company->path(); }
    ScriptedInteraction m_ui;
};

QTEST_GUILESS_MAIN(TestFileSafety)
#include "tst_filesafety.moc"
