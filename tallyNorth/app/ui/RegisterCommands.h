// Where every subsystem hands its menu commands and list pages to the main window.
#pragma once

class MainWindow;

void RegisterCommands(MainWindow& window);
