// The master data in the main window: the "Basic Data" lists and the Products and Partners tabs.
#pragma once

class CommandHost;

void RegisterMasterdataCommands(CommandHost& host);
