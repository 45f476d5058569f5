// The order editor as the commands and the order list open it.
#pragma once

#include <QtGlobal>

class CommandHost;
class QWidget;

// Opens the order editor on an order (0: a new order) and saves what the user accepts.
// Returns true when the order was saved; savedId receives its id.
bool OpenOrderEdit(QWidget* parent, qint64 orderId, qint64* savedId = nullptr);

// "New order" of the main window's menu.
void RegisterOrderEditCommands(CommandHost& host);
