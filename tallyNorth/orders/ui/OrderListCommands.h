// The order list as the main window's "Orders/Invoices" tab.
#pragma once

class CommandHost;

void RegisterOrderList(CommandHost& host);
