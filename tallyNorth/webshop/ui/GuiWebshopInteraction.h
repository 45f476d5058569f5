// The webshop's questions answered by windows: the master-data editors and lists, and the
// authentication dialog.
#pragma once

#include "webshop/WebshopInteraction.h"

class GuiInteraction;

class GuiWebshopInteraction : public WebshopInteraction
{
public:
    // Windows open over the top window of gui (its progress window while one is open).
    explicit GuiWebshopInteraction(GuiInteraction& gui) : m_gui(gui) {}

    std::optional<qint64> editRow(MasterTable table, std::optional<qint64> id,
                                  const Record& presets) override;
    std::optional<qint64> chooseRow(MasterTable table) override;
    std::optional<Login> login(const QString& message, const Login& proposal) override;

private:
    GuiInteraction& m_gui;
};
