// The master data in the main window: the "Basic Data" lists and the Products and Partners tabs.
#pragma once

class MainWindow;

void RegisterMasterdataCommands(MainWindow& window);
