// "Cancel the Invoice": shows the invoice to be cancelled and takes the few data the cancelling
// invoice has of its own. The cancelling order itself is made by CancelInvoice.
#pragma once

#include "orders/CancelInvoice.h"
#include "orders/Order.h"

#include <QDialog>

#include <optional>

class Interaction;
class DateEdit;
class QCheckBox;
class QComboBox;

class InvoiceCancel : public QDialog
{
    Q_OBJECT
public:
    InvoiceCancel(const Order& original, Interaction& interaction, QWidget* parent = nullptr,
                  const QDate& today = QDate::currentDate());

    CancelData data() const;
    bool byItems() const;

    // Opens the window for the issued invoice orderId; the new cancelling order's id, or
    // nothing when refused (the reason shown) or cancelled.
    static std::optional<qint64> run(qint64 orderId, Interaction& interaction,
                                     QWidget* parent = nullptr);

    void accept() override;

private:
    Interaction& m_interaction;
    DateEdit* m_dateShipped = nullptr;
    QCheckBox* m_byItems = nullptr;
    DateEdit* m_datePaymentDue = nullptr;
    QComboBox* m_paymentMethod = nullptr;
};
