// The Help menu and every dialog's "Help" button, wired to the help window.
#pragma once

class CommandHost;

// Makes the "Help" buttons of every dialog open the help window.
void InstallHelp();
void RegisterHelpCommands(CommandHost& host);
