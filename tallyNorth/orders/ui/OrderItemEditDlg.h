// One item of the order open in the order editor: a product chosen from the basic data or typed
// in, its prices in the order's currency with net and gross kept in step, and its line totals.
// The arithmetic and the checks are the order core's; the dialog only shows and reads them.
#pragma once

#include "orders/Order.h"

#include <QDialog>

#include <memory>

namespace Ui {
class OrderItemEditLayout;
}
class Interaction;

class OrderItemEditDlg : public QDialog
{
    Q_OBJECT
public:
    // order supplies the currency, rate, decimals and language; an item without an id is new.
    OrderItemEditDlg(const Order& order, const OrderItem& item, Interaction& interaction,
                     QWidget* parent = nullptr);
    ~OrderItemEditDlg() override;

    const OrderItem& item() const { return m_item; }
    // What "Find Product" and picking a name do.
    void chooseProduct(qint64 productId);

    // Checks the fields in order, then keeps the products' basic data in step.
    void accept() override;

private:
    void showItem();
    void showPrices();
    void readTexts();
    double vatPercent() const { return m_item.vatId ? m_item.vatPercent : 0.0; }
    void vatChosen();
    void listPriceEdited();
    void listGrossEdited();
    void discountChanged();
    void priceEdited();
    void grossPriceEdited();
    void qtyEdited();
    void findStatNo();
    void findProduct();
    void recalc();
    void lineTotals();

    std::unique_ptr<Ui::OrderItemEditLayout> m_ui;
    const Order& m_order;
    OrderItem m_item;
    Interaction& m_interaction;
};
