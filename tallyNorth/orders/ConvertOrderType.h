// The status text of an order in the order list and the reports, with the ink it is shown in.
#pragma once

#include <QColor>
#include <QString>
#include <QVariant>

struct OrderTypeText
{
    QString text;
    QColor ink; // invalid: the list's default colour
};

// Values of ORDERHEAD_TYPE.
enum class OrderType { Invoice = 0, CancellingInvoice = 1 };

// From ORDERHEAD_TYPE, ORDERHEAD_VERIFIED, ORDERHEAD_INVOICE_NO (or its text form),
// ORDERHEAD_CANCELLING_INVOICE_NO and ORDERHEAD_CONSOLIDATED_INVOICE, as stored.
OrderTypeText ConvertOrderType(const QVariant& type, const QVariant& verified,
                               const QVariant& invoiceNo, const QVariant& cancellingInvoiceNo,
                               const QVariant& consolidated);
