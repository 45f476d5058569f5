// Whole-file copies and moves for company files: a file is put into place by writing a temporary
// file beside it, flushing it to disk and renaming it over, so that at every moment the name
// holds either the old or the new file completely.
#pragma once

#include <QString>

// A name beside path that no file has yet; it does not end in ".db", so the company list
// never shows it.
QString TempPathBeside(const QString& path);

// Flushes a file's content, or a folder's list of names, to the disk.
bool SyncFile(const QString& path);
bool SyncFolderOf(const QString& path);

// Copies source to target (which must not exist) and flushes it.
bool CopyToNewFile(const QString& source, const QString& target);

// Copies source to target through a temporary file that replaces target only when complete, so a
// failed copy leaves an earlier target as it was. Copying a file onto itself fails.
bool CopyReplacing(const QString& source, const QString& target);

// Renames from over to in one step (an earlier to is replaced, never first removed).
bool MoveReplacing(const QString& from, const QString& to);

// Makes alias a second name of path's file (replacing an earlier alias) without copying it; a
// copy where the file system has no such names.
bool KeepAs(const QString& path, const QString& alias);
