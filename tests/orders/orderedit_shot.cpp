// Shows the order editor (or its item dialog) in Hungarian on a temporary company with a sample
// order, for looking at the windows: orderedit_shot [TAB | item | cancel | labels].
#include "TestCompany.h"

#include "app/Language.h"
#include "base/ui/GuiInteraction.h"
#include "documents/ui/OrderLabelTranslationBrowse.h"
#include "orders/OrderFill.h"
#include "orders/ui/InvoiceCancel.h"
#include "orders/ui/OrderEdit.h"
#include "orders/ui/OrderItemEditDlg.h"

#include <QApplication>
#include <QTabWidget>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    InstallLanguage(QStringLiteral("hu"));
    TestCompany company;
    Order order;
    if (!company.isValid() || !OrderFill::newOrder(order) || !OrderFill::partner(order, 1))
        return 1;
    order.subject = QStringLiteral("Próba megrendelés");
    for (double qty : {3.0, -1.0}) {
        OrderItem item;
        if (!OrderFill::product(item, order, 1))
            return 1;
        item.qty = qty;
        OrderFill::recalcItem(item, order);
        order.items << item;
    }
    GuiInteraction interaction;
    const QString what = app.arguments().value(1);
    if (what.startsWith(QLatin1String("item"))) {
        // "item-en": an order with English as its second language.
        if (what.endsWith(QLatin1String("-en")) && !OrderFill::language(order, 1))
            return 1;
        OrderItemEditDlg dlg(order, order.items.first(), interaction);
        dlg.show();
        return app.exec();
    }
    if (what == QLatin1String("cancel")) {
        OrderFill::recalcTotals(order);
        order.invoiceNoStr = QStringLiteral("2026/00007");
        order.datePaymentDue = order.dateShipped.addDays(8);
        InvoiceCancel window(order, interaction);
        window.show();
        return app.exec();
    }
    if (what == QLatin1String("labels")) {
        OrderLabelTranslationBrowse browse(interaction);
        if (!browse.load())
            return 1;
        browse.show();
        return app.exec();
    }
    OrderEdit edit(order, interaction);
    edit.findChild<QTabWidget*>(QStringLiteral("m_tabs"))->setCurrentIndex(what.toInt());
    edit.show();
    return app.exec();
}
