#include "ConvertOrderType.h"

#include "app/SqlValue.h"

#include <QCoreApplication>

namespace {

QString Tr(const char* text)
{
    return QCoreApplication::translate("ConvertOrderType", text);
}

} // namespace

OrderTypeText ConvertOrderType(const QVariant& type, const QVariant& verified,
                               const QVariant& invoiceNo, const QVariant& cancellingInvoiceNo,
                               const QVariant& consolidated)
{
    // The first condition that holds decides.
    const bool merged = IsFlagSet(consolidated);
    if (!IsFlagSet(verified))
        return {Tr("Unverified"), QColor(200, 0, 0)};
    if (IsNullValue(invoiceNo))
        return {Tr("Unprinted"), QColor(0, 200, 0)};
    if (!IsNullValue(cancellingInvoiceNo))
        return {merged ? Tr("Cancelled Invoice (consolidated)") : Tr("Cancelled Invoice"),
                QColor(0, 0, 180)};
    if (IsNullValue(type))
        return {};
    switch (ToInteger(type, -1)) {
    case qint64(OrderType::Invoice):
        return {merged ? Tr("Consolidated Invoice") : Tr("Invoice"), QColor()};
    case qint64(OrderType::CancellingInvoice):
        return {merged ? Tr("Cancel Invoice (consolidated)") : Tr("Cancel Invoice"),
                QColor(200, 0, 200)};
    default:
        return {};
    }
}
