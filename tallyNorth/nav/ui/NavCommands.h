// The online reporting's menu commands: its settings (until the setup window has a NAV page)
// and sending what waits in the queue.
#pragma once

class CommandHost;

void RegisterNavCommands(CommandHost& host);
