#include "OrderListCommands.h"

#include "OrderList.h"

#include "base/ui/CommandHost.h"

void RegisterOrderList(CommandHost& host)
{
    host.setTabPage(MainTab::Orders, new OrderList(host.hostWidget()));
}
