#include "RegisterCommands.h"

#include "FileCommands.h"

// One line per subsystem: each registers its handlers with MainWindow::setCommand() and its
// lists with MainWindow::setTabPage().
void RegisterCommands(MainWindow& window)
{
    RegisterFileCommands(window);
}
