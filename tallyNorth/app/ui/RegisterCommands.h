// Where every subsystem hands its menu commands and list pages to the main window.
#pragma once

#include <memory>

class MainWindow;

void RegisterCommands(MainWindow& window);

// The main window of the open company with every subsystem's commands and lists, shown.
std::unique_ptr<MainWindow> OpenMainWindow();
