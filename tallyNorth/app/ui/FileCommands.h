// The File menu's own commands: backup, restore, change of company and exit.
#pragma once

class MainWindow;

void RegisterFileCommands(MainWindow& window);

// The backup commands with their file dialogs in the backup folder.
void DoBackupCommand(MainWindow& window);
void RestoreBackupCommand(MainWindow& window);
