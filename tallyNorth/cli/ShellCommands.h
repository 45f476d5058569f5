// Verbs of the application shell: backup and restore of the company database.
#pragma once

#include <QStringList>

struct CliContext;

// backup FILE: copies the company's database file to FILE.
int RunBackup(CliContext& context, const QStringList& args);
// restore FILE: puts the backup FILE in the place of the company's database file and opens it.
int RunRestore(CliContext& context, const QStringList& args);
