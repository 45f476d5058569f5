#include "OrderPrintHooks.h"

namespace {
OrderPrintHooks& Hooks()
{
    static OrderPrintHooks hooks;
    return hooks;
}
} // namespace

void SetOrderPrintHooks(OrderPrintHooks hooks)
{
    Hooks() = std::move(hooks);
}

const OrderPrintHooks& CurrentOrderPrintHooks()
{
    return Hooks();
}
