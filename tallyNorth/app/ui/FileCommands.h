// The File menu's own commands: backup, restore, change of company, new company and exit.
#pragma once

class MainWindow;

void RegisterFileCommands(MainWindow& window);

// The backup commands with their file dialogs in the backup folder.
void DoBackupCommand(MainWindow& window);
void RestoreBackupCommand(MainWindow& window);
// Change to another company, or make a new one and offer to change to it; the window follows.
void ChangeCompanyCommand(MainWindow& window);
void NewCompanyCommand(MainWindow& window);
