#include "Startup.h"

#include "DatabaseSelectDlg.h"
#include "NewCompanyDlg.h"
#include "base/ui/GuiInteraction.h"

#include "app/BaseFolder.h"
#include "app/CompanyChoice.h"
#include "app/FirstStart.h"

namespace {

CompanySelector DialogSelector(QWidget* parent)
{
    return [parent](const QList<CompanyEntry>& entries) {
        return DatabaseSelectDlg::choose(entries, BaseFolder::dbFolder(), parent);
    };
}

} // namespace

bool StartUp(const QString& commandLinePath, QWidget* parent)
{
    GuiInteraction interaction(parent);
    // An empty folder is the first start: it leads to a company instead of ending.
    if (commandLinePath.isEmpty() && NeedsFirstCompany(BaseFolder::dbFolder())) {
        const QString made = OfferFirstCompany(BaseFolder::dbFolder(), interaction, [parent] {
            return NewCompanyDlg::createCompany(BaseFolder::dbFolder(), parent);
        });
        if (made.isEmpty())
            return false;
    }
    const QString path = ChooseStartupDatabase(commandLinePath, BaseFolder::dbFolder(), interaction,
                                               DialogSelector(parent));
    return !path.isEmpty() && OpenCompany(path, interaction).ok();
}

bool ChangeCompany(QWidget* parent)
{
    GuiInteraction interaction(parent);
    return ChangeCompanyDatabase(BaseFolder::dbFolder(), interaction, DialogSelector(parent));
}
