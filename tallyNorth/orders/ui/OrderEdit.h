// The order editor: partner, billing data, mailing address, items and comment of one order that
// is not issued yet. It takes an Order in and gives one back; the caller saves it. The snapshots,
// totals and checks are the order core's.
#pragma once

#include "base/Result.h"
#include "orders/Order.h"

#include <QDialog>

#include <functional>
#include <memory>

namespace Ui {
class OrderEditLayout;
}
class Interaction;
class OrderItemModel;

class OrderEdit : public QDialog
{
    Q_OBJECT
public:
    OrderEdit(const Order& order, Interaction& interaction, QWidget* parent = nullptr);
    ~OrderEdit() override;

    // The order as the fields show it.
    const Order& order();

    // The commands of the items tab and the print buttons.
    void insertItem();
    void editItem();
    void deleteItem();
    void printPreview();
    void print();

    // The checks in the order the user meets them, then the partner's basic data.
    void accept() override;

    // The item dialog that the item commands open; tests replace it to answer without a window.
    using ItemEditor = std::function<bool(const Order&, OrderItem&, QWidget*)>;
    void setItemEditor(ItemEditor editor) { m_itemEditor = std::move(editor); }

    // Issues and prints (or previews) a saved order. The invoice printing lives above this
    // layer and installs itself; without it the editor says the invoice can not be printed yet.
    using InvoicePrinter =
        std::function<Result(qint64 orderId, bool preview, Interaction&, QWidget* parent)>;
    static void setInvoicePrinter(InvoicePrinter printer);
    // The order was saved and issued from the editor: there is nothing left to save.
    bool issued() const { return m_issued; }

private:
    void fillCombos();
    void setViewOnly();
    void showOrder();
    void showTotals();
    void readFields();
    void partnerPicked(qint64 id);
    void findPartner();
    void paymentMethodChosen();
    void currencyChosen();
    void noVatReasonChosen();
    void languageChosen();
    void mailIsSameToggled();
    bool editItemAt(int row);
    int currentRow() const;
    void report(const Result& r, const QStringList& notes = {});
    void printInvoice(bool preview);
    bool checkOrder();

    std::unique_ptr<Ui::OrderEditLayout> m_ui;
    Order m_order;
    Interaction& m_interaction;
    OrderItemModel* m_items;
    ItemEditor m_itemEditor;
    bool m_issued = false;
};
