#include "FirstStart.h"

#include "CompanyCreate.h"
#include "CompanyList.h"
#include "base/Interaction.h"

#include <QCoreApplication>

bool NeedsFirstCompany(const QString& dbFolder)
{
    return OfferedCompanyFiles(CompanyFiles(dbFolder)).isEmpty();
}

QString OfferFirstCompany(const QString& dbFolder, Interaction& interaction,
                          const NewCompanyAsker& askNewCompany)
{
    const auto tr = [](const char* text) {
        return QCoreApplication::translate("FirstStart", text);
    };
    const Interaction::Choice choice = interaction.choose3(
        tr("Welcome! There is no company database yet.&You can try the program on the "
           "demonstration company, or start with the data of your own company."),
        tr("Demonstration company"), tr("New company..."), tr("Exit"));
    if (choice == Interaction::Choice::First) {
        QString path;
        if (!CreateDemoCompany(dbFolder, interaction, &path))
            return {};
        return path;
    }
    if (choice == Interaction::Choice::Second && askNewCompany)
        return askNewCompany();
    return {};
}
