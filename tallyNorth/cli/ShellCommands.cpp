#include "ShellCommands.h"

#include "AppCommands.h"
#include "Cli.h"

#include "app/Backup.h"
#include "base/Database.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace {

int NeedsOneFile(CliContext& context)
{
    return UsageError(context, QCoreApplication::translate("Cli", "give exactly one backup file"));
}

// The restore may bring back a company file that has been lost, so --db names the file to
// restore even when it is missing; without --db the company is chosen as at start-up.
QString RestoreTarget(CliContext& context)
{
    if (!context.dbPath.isEmpty())
        return QFileInfo(context.dbPath).absoluteFilePath();
    return ChooseCompany(context);
}

} // namespace

int RunBackup(CliContext& context, const QStringList& args)
{
    if (args.size() != 1)
        return NeedsOneFile(context);
    const QString database = ChooseCompany(context);
    if (database.isEmpty())
        return ExitFailure;
    // The snapshot reads the file itself; a foreign or damaged file fails its check.
    return DoBackup(database, QFileInfo(args.first()).absoluteFilePath(), *context.interaction)
               ? ExitOk
               : ExitFailure;
}

int RunRestore(CliContext& context, const QStringList& args)
{
    if (args.size() != 1)
        return NeedsOneFile(context);
    const QString database = RestoreTarget(context);
    if (database.isEmpty())
        return ExitFailure;
    // With the company's file open the restored file is opened (and upgraded) at once.
    if (QFile::exists(database) && !Database::open(database))
        Database::close();
    const bool done =
        RestoreBackup(database, QFileInfo(args.first()).absoluteFilePath(), *context.interaction);
    Database::close();
    return done ? ExitOk : ExitFailure;
}
