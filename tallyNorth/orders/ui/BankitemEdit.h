// "Add Bank Item": one payment received for one issued invoice. The rules and the saving are
// BankItemStore's; the window takes the values and shows what happened.
#pragma once

#include "base/ui/GuiInteraction.h"
#include "orders/BankItemStore.h"

#include <QDialog>

#include <memory>

class DateEdit;
class Interaction;
class QLabel;
class QLineEdit;
class QPushButton;

class BankitemEdit : public QDialog
{
    Q_OBJECT
public:
    // The invoice must have been loaded by BankItemStore::loadInvoice.
    explicit BankitemEdit(const BankItemInvoice& invoice, QWidget* parent = nullptr,
                          const QDate& today = QDate::currentDate());
    ~BankitemEdit() override;

    // Where the window asks and reports; the tests script it. Default: message boxes.
    void setInteraction(Interaction* interaction) { m_interaction.set(interaction); }
    // The invoice's state after the saved payment.
    const BankItemInvoice& invoice() const { return m_invoice; }

    void accept() override;
    void listPastPayments();

    // Loads the invoice of orderId and opens the window over parent; true when a payment was
    // saved. Refusals are told through interaction.
    static bool addTo(qint64 orderId, QWidget* parent, Interaction& interaction);

private:
    Interaction& interaction() { return m_interaction.get(); }

    BankItemInvoice m_invoice;
    QLineEdit* m_invoiceNo;
    QLineEdit* m_recordNo;
    DateEdit* m_transferDate;
    QLineEdit* m_paidTotal;
    QLabel* m_currency;
    QLineEdit* m_comment;
    QPushButton* m_pastPayments;
    WindowInteraction m_interaction{this};
};
