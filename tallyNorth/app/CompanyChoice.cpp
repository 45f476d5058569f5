#include "CompanyChoice.h"

#include "Backup.h"
#include "CompanyFile.h"
#include "CompanyLock.h"
#include "DatabasePrepare.h"
#include "FileReplace.h"
#include "base/CompanyHooks.h"
#include "base/Database.h"
#include "base/Interaction.h"
#include "base/MessageArgs.h"
#include "base/Setup.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include "Columns.h"

QString ChooseStartupDatabase(const QString& commandLinePath, const QString& dbFolder,
                              Interaction& interaction, const CompanySelector& select)
{
    RecoverInterruptedRestores(dbFolder, interaction);
    if (!commandLinePath.isEmpty()) {
        RecoverInterruptedRestore(QFileInfo(commandLinePath).absoluteFilePath(), interaction);
        // Whether it is a company file is for the opening to tell.
        if (QFileInfo::exists(commandLinePath))
            return QFileInfo(commandLinePath).absoluteFilePath();
        interaction.error(
            FillArgs(QCoreApplication::translate("CompanyChoice", "%s does not exists."),
                     {commandLinePath}));
        return {};
    }
    const QStringList files = OfferedCompanyFiles(CompanyFiles(dbFolder));
    if (files.isEmpty()) {
        interaction.error(QCoreApplication::translate(
            "CompanyChoice",
            "Missing database files. Maybe you have to reinstall the application."));
        return {};
    }
    if (files.size() == 1)
        return files.first();
    return select(ReadCompanyEntries(files)).value_or(QString());
}

void RecoverInterruptedRestore(const QString& path, Interaction& interaction)
{
    const QString aside = RestoreAsidePath(path);
    if (QFileInfo::exists(path) || !QFileInfo(aside).isFile())
        return;
    CompanyLock lock(path);
    if (!lock.acquire() || QFileInfo::exists(path) || !MoveReplacing(aside, path))
        return;
    interaction.exclamation(FillArgs(
        QCoreApplication::translate("CompanyChoice",
                                    "A restore of the company file was interrupted. The previous "
                                    "file has been put back:&%s"),
        {path}));
}

void RecoverInterruptedRestores(const QString& dbFolder, Interaction& interaction)
{
    QDir dir(dbFolder);
    const QStringList asides = dir.entryList({QStringLiteral("*.db.dbk")},
                                             QDir::Files | QDir::Hidden | QDir::CaseSensitive);
    for (const QString& name : asides)
        RecoverInterruptedRestore(dir.absoluteFilePath(name.chopped(4)), interaction);
}

Result OpenCompany(const QString& path, Interaction& interaction)
{
    const auto refuse = [&interaction](const Result& r) {
        Database::close();
        interaction.error(r.message());
        return r;
    };
    Database::close();
    const QFileInfo info(path);
    // SQLite would open it read-only and fail on the first write, with a raw error.
    if (info.isFile() && (!info.isWritable() || !(info.permissions() & QFile::WriteOwner)))
        return refuse(Result::failure(FillArgs(
            QCoreApplication::translate("CompanyChoice", "The company file is read-only:&%s"),
            {path})));
    {
        // Not while another process upgrades or replaces it.
        CompanyLock lock(path);
        Result r = lock.acquire();
        if (r)
            r = CompanyFile::inspect(path, CompanyFile::Check::Quick);
        if (!r)
            return refuse(r);
    }
    const Result opened = Database::open(path);
    if (!opened) {
        interaction.error(opened.message());
        return opened;
    }
    const Result prepared = PrepareDatabase(interaction);
    if (!prepared)
        return prepared;
    // What the subsystems read from the company, e.g. the labels its invoices are printed with.
    const Result labels = RunCompanyOpenedHooks();
    if (!labels) {
        Database::close();
        interaction.error(labels.message());
    }
    return labels;
}

bool ChangeCompanyDatabase(const QString& dbFolder, Interaction& interaction,
                           const CompanySelector& select)
{
    const QStringList files = OfferedCompanyFiles(CompanyFiles(dbFolder));
    if (files.isEmpty()) {
        interaction.error(
            QCoreApplication::translate("CompanyChoice", "Error: there are no databases."));
        return false;
    }
    // One company is nothing to change to, unless the file open is another one: the
    // demonstration company, hidden from the list once a real company exists.
    if (files.size() == 1 && QFileInfo(files.first()) == QFileInfo(Database::path())) {
        interaction.info(
            QCoreApplication::translate("CompanyChoice", "There is only one database."));
        return false;
    }
    const std::optional<QString> chosen = select(ReadCompanyEntries(files));
    return chosen && SwitchCompany(*chosen, interaction);
}

bool SwitchCompany(const QString& path, Interaction& interaction)
{
    const QString previous = Database::path();
    if (!OpenCompany(path, interaction)) {
        if (!previous.isEmpty())
            (void)OpenCompany(previous, interaction);
        return false;
    }
    interaction.info(FillArgs(QCoreApplication::translate(
                                  "CompanyChoice", "Database/company changed successfully to:&%s"),
                              {Setup::current().text(Col::SETUP_NAME)}));
    return true;
}
