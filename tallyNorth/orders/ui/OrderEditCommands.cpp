#include "OrderEditCommands.h"

#include <QMessageBox>

// Stands in for the order editor until it lands.
bool OpenOrderEdit(QWidget* parent, qint64 orderId, qint64* savedId)
{
    Q_UNUSED(orderId);
    Q_UNUSED(savedId);
    QMessageBox::information(parent, QStringLiteral("tallyNorth"),
                             QStringLiteral("The order editor is not yet available."));
    return false;
}
