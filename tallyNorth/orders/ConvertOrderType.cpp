#include "ConvertOrderType.h"

#include "base/SqlValue.h"

#include <QCoreApplication>

OrderTypeText ConvertOrderType(const QVariant& type, const QVariant& verified,
                               const QVariant& invoiceNo, const QVariant& cancellingInvoiceNo,
                               const QVariant& consolidated)
{
    // The first condition that holds decides.
    const bool merged = IsFlagSet(consolidated);
    if (!IsFlagSet(verified))
        return {QCoreApplication::translate("ConvertOrderType", "Unverified"), QColor(200, 0, 0)};
    if (IsNullValue(invoiceNo))
        return {QCoreApplication::translate("ConvertOrderType", "Unprinted"), QColor(0, 200, 0)};
    if (!IsNullValue(cancellingInvoiceNo))
        return {merged ? QCoreApplication::translate("ConvertOrderType",
                                                     "Cancelled Invoice (consolidated)")
                       : QCoreApplication::translate("ConvertOrderType", "Cancelled Invoice"),
                QColor(0, 0, 180)};
    if (IsNullValue(type))
        return {};
    switch (ToInteger(type, -1)) {
    case qint64(OrderType::Invoice):
        return {merged ? QCoreApplication::translate("ConvertOrderType", "Consolidated Invoice")
                       : QCoreApplication::translate("ConvertOrderType", "Invoice"),
                QColor()};
    case qint64(OrderType::CancellingInvoice):
        return {merged ? QCoreApplication::translate("ConvertOrderType",
                                                     "Cancel Invoice (consolidated)")
                       : QCoreApplication::translate("ConvertOrderType", "Cancel Invoice"),
                QColor(200, 0, 200)};
    default:
        return {};
    }
}
