// Printing invoices belongs to the documents layer above this folder; the shell installs it here
// at start-up so the order windows can print. Without it they say printing is not available.
#pragma once

#include "base/Result.h"

#include <QList>

#include <functional>

class QWidget;

struct OrderPrintHooks
{
    // Issues the unnumbered orders and prints each in turn; stops at the first failure (an
    // empty failure message means the user stopped it).
    std::function<Result(QWidget* parent, const QList<qint64>& orderIds)> print;
    // Shows an issued invoice in the print preview.
    std::function<Result(QWidget* parent, qint64 orderId)> preview;
};

void SetOrderPrintHooks(OrderPrintHooks hooks);
const OrderPrintHooks& CurrentOrderPrintHooks();

// Prints the cheques of the selected invoices; installed by the cheque windows.
using ChequePrintHook = std::function<Result(QWidget* parent, const QList<qint64>& orderIds)>;
void SetChequePrintHook(ChequePrintHook hook);
const ChequePrintHook& CurrentChequePrintHook();
