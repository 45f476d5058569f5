#include "OrderEditCommands.h"

#include "OrderEdit.h"

#include "base/ui/CommandHost.h"
#include "base/ui/GuiInteraction.h"
#include "orders/OrderFill.h"
#include "orders/OrderStore.h"

bool OpenOrderEdit(QWidget* parent, qint64 orderId, qint64* savedId)
{
    GuiInteraction interaction(parent);
    Order order;
    const Result loaded =
        orderId == 0 ? OrderFill::newOrder(order) : OrderStore::load(orderId, order);
    if (!loaded) {
        interaction.error(loaded.message());
        return false;
    }
    // An issued invoice is only viewed (and printed again); it is never saved.
    if (order.issued()) {
        OrderEdit view(order, interaction, parent);
        view.exec();
        return false;
    }
    // A failed save keeps what the user typed: the editor opens again on it. The rate typed on
    // an order stays the order's own; the currency's rate is kept in the currency window.
    for (;;) {
        OrderEdit edit(order, interaction, parent);
        if (edit.exec() != QDialog::Accepted) {
            // Printing saved a new order before it failed to issue: it is kept all the same.
            const qint64 id = edit.order().id;
            if (savedId)
                *savedId = id;
            return orderId == 0 && id != 0;
        }
        order = edit.order();
        if (edit.issued()) {
            if (savedId)
                *savedId = order.id;
            return true;
        }
        const Result saved = OrderStore::save(order);
        if (saved) {
            if (savedId)
                *savedId = order.id;
            return true;
        }
        interaction.error(saved.message());
    }
}

void RegisterOrderEditCommands(CommandHost& host)
{
    host.setCommand(MainCommand::NewOrder, [&host] {
        if (OpenOrderEdit(host.hostWidget(), 0))
            host.reloadTab(MainTab::Orders);
    });
}
