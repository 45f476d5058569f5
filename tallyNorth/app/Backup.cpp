#include "Backup.h"

#include "CompanyChoice.h"
#include "CompanyFile.h"
#include "CompanyLock.h"
#include "FileReplace.h"
#include "ScopedConnection.h"
#include "base/Database.h"
#include "base/Interaction.h"
#include "base/MessageArgs.h"
#include "base/SqlStatement.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

// Puts the company's own file back after a failed restore. If even that fails, the user must
// learn where the file is.
bool PutBack(const QString& aside, const QString& databasePath, Interaction& interaction)
{
    if (!QFile::exists(aside))
        return true;
    if (CompanyFile::replace(aside, databasePath))
        return true;
    interaction.error(FillArgs(
        QCoreApplication::translate("Backup", "The previous database file is kept here:&%s"),
        {aside}));
    return false;
}

// A consistent snapshot of the company, taken by SQLite while it holds a read lock, checked and
// flushed before it takes the target's name.
Result Snapshot(const QString& databasePath, const QString& target)
{
    if (QFileInfo(target).isDir() || QFileInfo(target) == QFileInfo(databasePath) ||
        !QFileInfo(target).absoluteDir().exists())
        return Result::failure({});
    const QString temp = TempPathBeside(target);
    {
        ScopedConnection source(databasePath, ScopedConnection::Mode::ReadWrite);
        SqlStatement vacuum(QStringLiteral("vacuum into ?"), {temp}, source.db());
        if (!source.isOpen() || !vacuum.exec()) {
            QFile::remove(temp);
            return Result::failure({}, source.isOpen() ? vacuum.errorText() : source.errorText());
        }
    }
    Result r = CompanyFile::checkRestorable(temp);
    if (r && !SyncFile(temp))
        r = Result::failure({});
    if (r && !MoveReplacing(temp, target))
        r = Result::failure({});
    if (!r)
        QFile::remove(temp);
    return r;
}

} // namespace

QString BackupFileName(const QString& databasePath)
{
    return QFileInfo(databasePath).fileName() + u'k';
}

bool BackupBelongsTo(const QString& backupPath, const QString& databasePath)
{
    return QFileInfo(backupPath).completeBaseName() == QFileInfo(databasePath).completeBaseName();
}

QString RestoreAsidePath(const QString& databasePath)
{
    return databasePath + QLatin1String(".dbk");
}

bool DoBackup(const QString& databasePath, const QString& target, Interaction& interaction)
{
    CompanyLock lock(databasePath);
    const Result locked = lock.acquire();
    if (!locked) {
        interaction.error(locked.message());
        return false;
    }
    if (!Snapshot(databasePath, target)) {
        interaction.error(QCoreApplication::translate("Backup", "Error backing up database file."));
        return false;
    }
    interaction.info(QCoreApplication::translate("Backup", "Backup file saved successfully."));
    return true;
}

bool ConfirmRestore(Interaction& interaction)
{
    return interaction.askYesNo(QCoreApplication::translate(
        "Backup", "The content of current database will be overwritten&by the "
                  "backup file you select to restore.&Do you want to continue?"));
}

bool RestoreBackup(const QString& databasePath, const QString& backupPath, Interaction& interaction,
                   const CompanyOpener& open)
{
    if (!BackupBelongsTo(backupPath, databasePath)) {
        interaction.exclamation(QCoreApplication::translate(
            "Backup", "The selected file is not a backup of currently active database/company."));
        return false;
    }
    const bool wasOpen = Database::isOpen();
    const auto reopenOwn = [&] {
        if (wasOpen)
            (void)open(databasePath);
    };
    const auto refuse = [&](const QString& message) {
        interaction.error(message);
        reopenOwn();
        return false;
    };
    CompanyLock lock(databasePath);
    const Result locked = lock.acquire();
    if (!locked)
        return refuse(locked.message());
    Database::close();
    // The backup is copied beside the company first and checked there, so that what is checked
    // is what takes the company's name.
    const QString temp = TempPathBeside(databasePath);
    if (QFileInfo(backupPath).isDir() || !CopyToNewFile(backupPath, temp))
        return refuse(
            QCoreApplication::translate("Backup", "Error restoring backup database file."));
    const Result usable = CompanyFile::checkRestorable(temp);
    if (!usable) {
        QFile::remove(temp);
        // The user chose the backup, not the copy: the message names the backup.
        return refuse(QString(usable.message()).replace(temp, backupPath));
    }
    const QString aside = RestoreAsidePath(databasePath);
    const Result replaced = CompanyFile::replace(temp, databasePath, aside);
    if (!replaced) {
        QFile::remove(temp);
        return refuse(
            QCoreApplication::translate("Backup", "Error restoring backup database file.") + u'&' +
            replaced.message());
    }
    if (!wasOpen && !interaction.askYesNo(QCoreApplication::translate(
                        "Backup", "Database restored successfully.&Do you want to open it now?")))
        return true;
    if (!open(databasePath)) {
        Database::close();
        interaction.error(
            QCoreApplication::translate("Backup", "Unable to open restored database file."));
        if (PutBack(aside, databasePath, interaction))
            reopenOwn();
        return false;
    }
    if (wasOpen)
        interaction.info(
            QCoreApplication::translate("Backup", "Backup file restored successfully."));
    return true;
}

bool RestoreBackup(const QString& databasePath, const QString& backupPath, Interaction& interaction)
{
    // A backup of an older version is upgraded as it is opened.
    const auto open = [&interaction](const QString& path) {
        return OpenCompany(path, interaction);
    };
    return RestoreBackup(databasePath, backupPath, interaction, open);
}
