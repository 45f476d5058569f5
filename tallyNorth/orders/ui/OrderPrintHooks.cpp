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

namespace {
ChequePrintHook& ChequeHook()
{
    static ChequePrintHook hook;
    return hook;
}
} // namespace

void SetChequePrintHook(ChequePrintHook hook)
{
    ChequeHook() = std::move(hook);
}

const ChequePrintHook& CurrentChequePrintHook()
{
    return ChequeHook();
}
