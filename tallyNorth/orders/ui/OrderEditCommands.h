// The order editor's entry point for the order list and the main window's "New Order".
#pragma once

#include <QtGlobal>

class QWidget;

// Opens the order editor on an order (0: a new order) and saves what the user accepts.
// Returns true when the order was saved; savedId receives its id.
bool OpenOrderEdit(QWidget* parent, qint64 orderId, qint64* savedId = nullptr);
