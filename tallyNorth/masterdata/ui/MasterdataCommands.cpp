#include "MasterdataCommands.h"

#include "MasterBrowses.h"

#include "app/ui/MainWindow.h"

#include <utility>

void RegisterMasterdataCommands(MainWindow& window)
{
    static constexpr std::pair<MainCommand, MasterTable> kLists[] = {
        {MainCommand::VatKeys, MasterTable::Vat},
        {MainCommand::NoVatReasons, MasterTable::NoVatReason},
        {MainCommand::PaymentMethods, MasterTable::PaymentMethod},
        {MainCommand::StatNumbers, MasterTable::StatNo},
        {MainCommand::Languages, MasterTable::Lang},
        {MainCommand::Countries, MasterTable::Country},
        {MainCommand::Currencies, MasterTable::Currency},
    };
    for (const auto& [command, table] : kLists)
        window.setCommand(command, [&window, table] { OpenMasterBrowse(table, &window); });
    // The window decides when the pages read their rows (load on start, refresh on tab change).
    window.setTabPage(MainTab::Products, CreateMasterTab(MasterTable::Product, &window));
    window.setTabPage(MainTab::Partners, CreateMasterTab(MasterTable::Partner, &window));
}
