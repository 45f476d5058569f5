#include "MasterdataCommands.h"

#include "MasterBrowses.h"

#include "base/ui/CommandHost.h"

#include <utility>

void RegisterMasterdataCommands(CommandHost& host)
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
        host.setCommand(command, [&host, table] { OpenMasterBrowse(table, host.hostWidget()); });
    // The window decides when the pages read their rows (load on start, refresh on tab change).
    host.setTabPage(MainTab::Products, CreateMasterTab(MasterTable::Product, host.hostWidget()));
    host.setTabPage(MainTab::Partners, CreateMasterTab(MasterTable::Partner, host.hostWidget()));
}
