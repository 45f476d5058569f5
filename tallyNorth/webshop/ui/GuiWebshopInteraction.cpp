#include "GuiWebshopInteraction.h"

#include "AuthenticationDlg.h"

#include "base/ui/GuiInteraction.h"
#include "masterdata/ui/MasterBrowses.h"

std::optional<qint64> GuiWebshopInteraction::editRow(MasterTable table, std::optional<qint64> id,
                                                     const Record& presets)
{
    return EditMasterRow(table, m_gui.topWindow(), id, presets);
}

std::optional<qint64> GuiWebshopInteraction::chooseRow(MasterTable table)
{
    return ChooseMasterRow(table, m_gui.topWindow());
}

std::optional<WebshopInteraction::Login> GuiWebshopInteraction::login(const QString& message,
                                                                      const Login& proposal)
{
    AuthenticationDlg dialog(GuiInteraction::formatMessage(message), proposal, m_gui.topWindow());
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.login();
}
