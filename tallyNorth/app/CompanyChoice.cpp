#include "CompanyChoice.h"

#include "DatabasePrepare.h"
#include "base/CompanyHooks.h"
#include "base/Database.h"
#include "base/Interaction.h"
#include "base/MessageArgs.h"
#include "base/Setup.h"

#include <QCoreApplication>
#include <QFileInfo>

#include "Columns.h"

QString ChooseStartupDatabase(const QString& commandLinePath, const QString& dbFolder,
                              Interaction& interaction, const CompanySelector& select)
{
    if (!commandLinePath.isEmpty()) {
        if (QFileInfo(commandLinePath).isFile())
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

Result OpenCompany(const QString& path, Interaction& interaction)
{
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
            OpenCompany(previous, interaction);
        return false;
    }
    interaction.info(FillArgs(QCoreApplication::translate(
                                  "CompanyChoice", "Database/company changed successfully to:&%s"),
                              {Setup::current().text(Col::SETUP_NAME)}));
    return true;
}
