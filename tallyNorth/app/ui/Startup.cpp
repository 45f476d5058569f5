#include "Startup.h"

#include "DatabaseSelectDlg.h"
#include "base/ui/GuiInteraction.h"

#include "app/BaseFolder.h"
#include "app/CompanyChoice.h"

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
    const QString path = ChooseStartupDatabase(commandLinePath, BaseFolder::dbFolder(), interaction,
                                               DialogSelector(parent));
    return !path.isEmpty() && OpenCompany(path, interaction).ok();
}

bool ChangeCompany(QWidget* parent)
{
    GuiInteraction interaction(parent);
    return ChangeCompanyDatabase(BaseFolder::dbFolder(), interaction, DialogSelector(parent));
}
