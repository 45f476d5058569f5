#include "Backup.h"

#include "CompanyChoice.h"
#include "base/Database.h"
#include "FileReplace.h"
#include "base/Interaction.h"
#include "base/MessageArgs.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace {

// Puts the company's own file back after a failed restore. If even that fails, the user must
// learn where the file is.
bool PutBack(const QString& aside, const QString& databasePath, Interaction& interaction)
{
    if (!QFile::exists(aside))
        return true;
    if (MoveReplacing(aside, databasePath))
        return true;
    interaction.error(FillArgs(
        QCoreApplication::translate("Backup", "The previous database file is kept here:&%s"),
        {aside}));
    return false;
}

// Only an SQLite file holds a company. Opening an empty or foreign file would make a new, empty
// company of it in the place of the restored one.
bool IsDatabaseFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(16) == QByteArray("SQLite format 3", 16);
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
    const bool wasOpen = Database::isOpen();
    Database::close();
    const bool copied = CopyReplacing(databasePath, target);
    const Result reopened = wasOpen ? Database::open(databasePath) : Result::success();
    if (copied)
        interaction.info(QCoreApplication::translate("Backup", "Backup file saved successfully."));
    else
        interaction.error(QCoreApplication::translate("Backup", "Error backing up database file."));
    if (!reopened)
        interaction.error(reopened.message());
    return copied && reopened;
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
            open(databasePath);
    };
    Database::close();
    const QString aside = RestoreAsidePath(databasePath);
    if (QFile::exists(databasePath) && !MoveReplacing(databasePath, aside)) {
        interaction.error(
            QCoreApplication::translate("Backup", "Error restoring backup database file."));
        reopenOwn();
        return false;
    }
    if (!CopyReplacing(backupPath, databasePath)) {
        interaction.error(
            QCoreApplication::translate("Backup", "Error restoring backup database file."));
        if (PutBack(aside, databasePath, interaction))
            reopenOwn();
        return false;
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
        return IsDatabaseFile(path) ? OpenCompany(path, interaction) : Result::failure({});
    };
    return RestoreBackup(databasePath, backupPath, interaction, open);
}
