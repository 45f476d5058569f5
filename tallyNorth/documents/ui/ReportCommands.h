// The main window's report menu.
#pragma once

class CommandHost;

void RegisterReportCommands(CommandHost& host);
