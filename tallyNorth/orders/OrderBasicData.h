// Keeps the partners and products of the basic data in step with what was typed on an order:
// a partner or product that is not there yet may be stored, one whose data differ may be updated
// or stored as a new one. The questions go through the Interaction; a refusal is not a failure.
#pragma once

#include "Order.h"

#include "base/Result.h"

#include <QCoreApplication>

class Interaction;

class OrderBasicData
{
    Q_DECLARE_TR_FUNCTIONS(OrderBasicData)

public:
    // The order's partner block against PARTNER; on insert the order gets the new partner's id.
    static Result partner(Order& order, Interaction& interaction);
    // The item's product data against PRODUCT (name, comment, unit, statistical number, VAT key,
    // the translations in the order's language and the list price in the order's currency). A
    // forint order keeps PRODUCT_PRICE, any other currency its PRODUCTPRICE row.
    static Result product(OrderItem& item, const Order& order, Interaction& interaction);

    // Whether the stored partner differs from the order's copy of it.
    static bool partnerDiffers(const Order& order, const Order& stored);
    static bool productDiffers(const OrderItem& item, const OrderItem& stored);
};
