#include "AppCommands.h"

#include "CliInteraction.h"

#include "app/BaseFolder.h"
#include "app/CompanyChoice.h"
#include "app/CompanyCreate.h"
#include "app/DatabasePrepare.h"
#include "base/MessageArgs.h"

#include <QCoreApplication>

namespace {

// The command line cannot ask which company to use: it lists them and wants --db.
std::optional<QString> RefuseToChoose(CliContext& context, const QList<CompanyEntry>& entries)
{
    QStringList lines{QCoreApplication::translate("DatabaseSelectLayout",
                                                  "Select the database/company you want to use")};
    for (const CompanyEntry& e : entries)
        lines << QLatin1String("  ") + e.fileName() + QLatin1String(": ") + e.name;
    lines << QCoreApplication::translate("AppCommands", "Choose one with --db FILE.");
    PrintMessage(context, lines.join(u'\n'));
    return std::nullopt;
}

} // namespace

int RunCompanies(CliContext& context, const QStringList& args)
{
    if (!args.isEmpty())
        return UsageError(
            context,
            QCoreApplication::translate("Cli", "unexpected argument %1").arg(args.first()));
    const QList<CompanyEntry> entries =
        ReadCompanyEntries(OfferedCompanyFiles(CompanyFiles(BaseFolder::dbFolder())));
    for (const CompanyEntry& e : entries) {
        *context.out << QStringList{e.fileName(), e.name, e.zip, e.city, e.address, e.taxNo}.join(
                            u'\t')
                     << Qt::endl;
    }
    return ExitOk;
}

int RunCreate(CliContext& context, const QStringList& args)
{
    QStringList positional;
    QHash<QString, QString> options;
    const QStringList names{QStringLiteral("tax-no"), QStringLiteral("zip"), QStringLiteral("city"),
                            QStringLiteral("address"), QStringLiteral("file")};
    if (!ParseVerbArgs(args, names, &positional, &options, &context.usageError))
        return ExitUsage;
    if (positional.size() != 1)
        return UsageError(context,
                          QCoreApplication::translate("Cli", "give the company's name once"));
    if (!options.contains(QStringLiteral("tax-no")))
        return UsageError(context, QCoreApplication::translate("Cli", "--tax-no is missing"));
    NewCompany company;
    company.name = positional.first();
    company.taxNo = options.value(QStringLiteral("tax-no"));
    company.zip = options.value(QStringLiteral("zip"));
    company.city = options.value(QStringLiteral("city"));
    company.address = options.value(QStringLiteral("address"));
    company.fileName = options.value(QStringLiteral("file"));
    QString path;
    const Result r = CreateCompany(company, BaseFolder::dbFolder(), *context.interaction, &path);
    if (!r) {
        PrintMessage(context, r.message());
        return ExitFailure;
    }
    *context.out << path << Qt::endl;
    return ExitOk;
}

int RunCheck(CliContext& context, const QStringList& args)
{
    QStringList positional;
    QHash<QString, QString> options;
    if (!ParseVerbArgs(args, {QStringLiteral("unpaid-methods")}, &positional, &options,
                       &context.usageError))
        return ExitUsage;
    if (!positional.isEmpty())
        return UsageError(
            context,
            QCoreApplication::translate("Cli", "unexpected argument %1").arg(positional.first()));
    if (CliInteraction* cli = context.cliInteraction) {
        const QStringList methods =
            options.value(QStringLiteral("unpaid-methods")).split(u',', Qt::SkipEmptyParts);
        for (const QString& m : methods)
            cli->checkedItems << m.trimmed();
    }
    const QString folder = BaseFolder::dbFolder();
    if (context.dbPath.isEmpty() && CompanyFiles(folder).isEmpty()) {
        QString demo;
        BaseFolder::ensureExists();
        const Result created = CreateDemoCompany(folder, *context.interaction, &demo);
        if (!created) {
            PrintMessage(context, created.message());
            return ExitFailure;
        }
        PrintMessage(context, FillArgs(QCoreApplication::translate(
                                           "AppCommands", "Demonstration company created: %s"),
                                       {demo}));
    }
    const QString path = ChooseCompany(context);
    if (path.isEmpty() || !OpenCompany(path, *context.interaction))
        return ExitFailure;
    *context.out << path << '\t' << ReadDbVersion() << Qt::endl;
    return ExitOk;
}

QString ChooseCompany(CliContext& context)
{
    return ChooseStartupDatabase(context.dbPath, BaseFolder::dbFolder(), *context.interaction,
                                 [&context](const QList<CompanyEntry>& entries) {
                                     return RefuseToChoose(context, entries);
                                 });
}

bool OpenChosenCompany(CliContext& context)
{
    const QString path = ChooseCompany(context);
    return !path.isEmpty() && OpenCompany(path, *context.interaction);
}

int PrintFailure(CliContext& context, const Result& r, bool withSqlError)
{
    if (!r.message().isEmpty())
        PrintMessage(context, r.message());
    if (withSqlError && !r.sqlError().isEmpty())
        PrintMessage(context, r.sqlError());
    return ExitFailure;
}
