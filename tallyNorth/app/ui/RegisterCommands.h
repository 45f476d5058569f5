// Where every subsystem hands its menu commands and list pages to the main window.
#pragma once

#include <memory>

class MainWindow;

// What the lower folders are given from above at start-up: the message formatting and the SQL
// error window of the message boxes, and what is read when a company is opened.
void InstallShellServices();

void RegisterCommands(MainWindow& window);

// The main window of the open company with every subsystem's commands and lists, shown.
std::unique_ptr<MainWindow> OpenMainWindow();
