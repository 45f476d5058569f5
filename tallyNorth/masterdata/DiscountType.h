// How a partner's or an order item's unit price follows from the list price.
#pragma once

// Values of ORDERITEM_DISCOUNT_TYPE (also PARTNER_DISCOUNT_TYPE and the settings' default).
enum class DiscountType { NoDiscount = 0, PercentFromListPrice = 1, EnteredPrice = 2 };
