// The "Orders/Invoices" tab: the orders under the filter and the commands on the selected ones.
// The rules are the core's (OrderStore, CancelInvoice, the invoice issue); this window checks
// the selection, asks, and shows what happened.
#pragma once

#include "base/Result.h"
#include "base/ui/GuiInteraction.h"
#include "base/ui/ListTab.h"

#include <QList>

class Interaction;
class OrderFilter;
class OrderListModel;
class QLabel;
class QMenu;
class QPushButton;
class QSortFilterProxyModel;
class QTableView;

class OrderList : public ListTab
{
    Q_OBJECT
public:
    explicit OrderList(QWidget* parent = nullptr);
    ~OrderList() override;

    void reload() override;

    OrderFilter* filterWidget() const { return m_filter; }
    OrderListModel* model() const { return m_model; }
    QTableView* view() const { return m_view; }
    // The ids of the selected rows, in list order.
    QList<qint64> selectedIds() const;
    void selectId(qint64 id);

    // Where the commands ask and report; the tests script it. Default: message boxes.
    void setInteraction(Interaction* interaction) { m_interaction.set(interaction); }

    void newOrder();
    void editOrder();
    void deleteOrders();
    void cloneOrder();
    void cancelInvoice();
    void addBankItem();
    // The cheques of the selected invoices, made for them when they have none yet.
    void printCheques();
    void printOrders();
    void previewOrder();
    void sortByCreation();

    // Why the order can not be cancelled from the list, or success.
    static Result cancelRefusal(qint64 orderId);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Interaction& interaction() { return m_interaction.get(); }
    void reloadChanged();
    void showContextMenu(const QPoint& pos);

    OrderFilter* m_filter;
    OrderListModel* m_model;
    QSortFilterProxyModel* m_sorted; // the user's sort by a column header
    QTableView* m_view;
    QLabel* m_note;
    QMenu* m_more;
    WindowInteraction m_interaction{this};
    bool m_fitted = false; // the column widths come from rows
};
