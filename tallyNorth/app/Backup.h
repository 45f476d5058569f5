// Backups of a company database: consistent snapshots of its file with the extension "dbk",
// kept in the backup folder, and their restore in place of the company's file.
#pragma once

#include "base/Result.h"

#include <QString>

#include <functional>

class Interaction;

// Opens a company file as the current database, prepared for use (an older file upgraded).
using CompanyOpener = std::function<Result(const QString& path)>;

// "ceg.db" gives "ceg.dbk" (the file name only).
QString BackupFileName(const QString& databasePath);
// A backup belongs to a company when the names of both files without extension are equal.
bool BackupBelongsTo(const QString& backupPath, const QString& databasePath);
// Where a restore keeps the replaced file: the database path with ".dbk" appended.
QString RestoreAsidePath(const QString& databasePath);

// Saves a snapshot of the company's file as target, replacing it only once the snapshot is
// complete, checked and on the disk. The session stays as it is. Tells the user the outcome.
bool DoBackup(const QString& databasePath, const QString& target, Interaction& interaction);

// The question asked before the backup file is chosen.
bool ConfirmRestore(Interaction& interaction);

// Puts backupPath in the place of the company's file, keeping the replaced file aside, and opens
// the restored file through open. Only a complete company database of a version the program
// can open is restored, and the company's name holds a whole file at every moment. When no database
// was open, asks first whether to open it. Failures leave the company's own file in place (and open
// again when it was open).
bool RestoreBackup(const QString& databasePath, const QString& backupPath, Interaction& interaction,
                   const CompanyOpener& open);
// The same, opening the restored file the way the program opens a company.
bool RestoreBackup(const QString& databasePath, const QString& backupPath,
                   Interaction& interaction);
