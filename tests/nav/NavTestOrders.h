// Issued invoices of every kind the authority distinguishes, for the reporting tests.
#pragma once

#include "TestOrders.h"

#include "base/Setup.h"
#include "base/SqlStatement.h"
#include "orders/CancelInvoice.h"

#include <QtTest>

enum class NavTestKind { Forint, Euro, Consolidated, ExemptLine, PrivatePerson, Foreign };

inline const QDate kNavToday(2024, 3, 5);

// The seller's data the documents need.
inline bool PrepareNavSeller()
{
    return ExecSql("update SETUP set SETUP_NAME = 'Eladó Kft', SETUP_ZIP = '1011', SETUP_CITY = "
                   "'Budapest', SETUP_ADDRESS = 'Fő utca 2.', SETUP_TAX_NO = '12345676-2-41', "
                   "SETUP_BANK_ACCT_NO = '11111111-22222222-33333333'")
               .ok() &&
           Setup::current().load().ok();
}

// Saves and issues an order of the kind; the order's id, or 0.
inline qint64 IssueNavTestOrder(NavTestKind kind, QString* numberText = nullptr)
{
    Order order;
    if (!OrderFill::newOrder(order, kNavToday) || !OrderFill::partner(order, 1) ||
        !OrderFill::paymentMethod(order, 2))
        return 0;
    order.dateShipped = kNavToday.addDays(-2);
    order.datePaymentDue = kNavToday.addDays(8);
    if (kind == NavTestKind::Euro && !OrderFill::currency(order, 1))
        return 0;
    if (kind == NavTestKind::PrivatePerson) {
        order.partnerName = QStringLiteral("Kiss Anna");
        order.partnerTaxNo.clear();
    }
    if (kind == NavTestKind::Foreign) {
        order.partnerCountryId = 5;
        order.partnerCountryCode = QStringLiteral("AT");
        order.partnerTaxNo.clear();
        order.partnerEuTaxNo = QStringLiteral("ATU12345678");
        order.partnerZip = QStringLiteral("1010");
        order.partnerCity = QStringLiteral("Wien");
    }
    order.consolidated = kind == NavTestKind::Consolidated;
    const int count = kind == NavTestKind::Forint ? 1 : 2;
    for (int i = 0; i < count; ++i) {
        OrderItem item;
        if (!OrderFill::product(item, order, 1))
            return 0;
        item.qty = 3 + i;
        item.dateShipped = kNavToday.addDays(-5 + i);
        if (kind == NavTestKind::ExemptLine && i == 1 && !OrderFill::vat(item, 6))
            return 0;
        OrderFill::recalcItem(item, order);
        order.items << item;
    }
    OrderFill::recalcTotals(order);
    if (!OrderStore::save(order))
        return 0;
    return IssueTestOrder(order.id, kNavToday, numberText) ? order.id : 0;
}

// Cancels an issued order and issues the cancelling invoice; its order id, or 0.
inline qint64 IssueNavCancel(qint64 orderId)
{
    qint64 cancelId = 0;
    if (!CancelInvoice::create(orderId, CancelData{}, cancelId))
        return 0;
    return IssueTestOrder(cancelId, kNavToday) ? cancelId : 0;
}
