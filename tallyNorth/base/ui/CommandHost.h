// What a subsystem registers its menu commands and list pages with. The main window implements
// it; the subsystems see only this, so they stay below the shell that wires them together.
#pragma once

#include "MainCommand.h"

#include <functional>

class ListTab;
class QWidget;

class CommandHost
{
public:
    virtual ~CommandHost() = default;

    // A command with a handler is enabled and runs it; without one it is shown disabled.
    virtual void setCommand(MainCommand command, std::function<void()> handler) = 0;
    // Puts a list in the place of the tab's placeholder; the host takes ownership.
    virtual void setTabPage(MainTab tab, ListTab* page) = 0;
    // The list of the tab as it is in the database now, after a command changed it.
    virtual void reloadTab(MainTab tab) = 0;
    // The parent of the windows the commands open.
    virtual QWidget* hostWidget() = 0;
};
