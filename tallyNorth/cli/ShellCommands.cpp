#include "ShellCommands.h"

#include "Cli.h"

#include "app/Backup.h"
#include "app/Database.h"
#include "app/MessageArgs.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace {

// The company file the verbs work on: --db FILE.
QString CompanyPath(CliContext& context)
{
    if (context.dbPath.isEmpty())
        return {};
    return QFileInfo(context.dbPath).absoluteFilePath();
}

int Usage(CliContext& context, const char* usage)
{
    *context.err << "usage: tallynorth-cli --db FILE " << usage << Qt::endl;
    return ExitUsage;
}

} // namespace

int RunBackup(CliContext& context, const QStringList& args)
{
    const QString database = CompanyPath(context);
    if (args.size() != 1 || database.isEmpty())
        return Usage(context, "backup FILE");
    if (!QFile::exists(database)) {
        PrintMessage(context,
                     FillArgs(QCoreApplication::translate("ShellCommands", "%s does not exists."),
                              {database}));
        return ExitFailure;
    }
    const Result opened = Database::open(database);
    if (!opened) {
        PrintMessage(context, opened.message());
        return ExitFailure;
    }
    const bool done =
        DoBackup(database, QFileInfo(args.first()).absoluteFilePath(), *context.interaction);
    Database::close();
    return done ? ExitOk : ExitFailure;
}

int RunRestore(CliContext& context, const QStringList& args)
{
    const QString database = CompanyPath(context);
    if (args.size() != 1 || database.isEmpty())
        return Usage(context, "restore FILE");
    // With the company's file open the restored file is opened (and upgraded) at once.
    if (QFile::exists(database))
        Database::open(database);
    const bool done =
        RestoreBackup(database, QFileInfo(args.first()).absoluteFilePath(), *context.interaction);
    Database::close();
    return done ? ExitOk : ExitFailure;
}
