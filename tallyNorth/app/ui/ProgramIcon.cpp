#include "ProgramIcon.h"

#include <QPainter>
#include <QPainterPath>

namespace {

QPixmap Sheet(int size)
{
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size / 32.0, size / 32.0);

    // The sheet with a folded corner.
    QPainterPath sheet;
    sheet.moveTo(6, 2);
    sheet.lineTo(21, 2);
    sheet.lineTo(27, 8);
    sheet.lineTo(27, 30);
    sheet.lineTo(6, 30);
    sheet.closeSubpath();
    p.setPen(QPen(QColor(0x2b, 0x4a, 0x6f), 1.2));
    p.setBrush(Qt::white);
    p.drawPath(sheet);
    p.setBrush(QColor(0xd6, 0xe2, 0xf0));
    p.drawPolygon(QPolygonF({QPointF(21, 2), QPointF(21, 8), QPointF(27, 8)}));

    // Heading band and item lines.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0x2f, 0x6d, 0xb5));
    p.drawRect(QRectF(9, 10, 15, 4));
    p.setBrush(QColor(0x8a, 0x9b, 0xb0));
    for (int i = 0; i < 3; ++i)
        p.drawRect(QRectF(9, 17 + i * 3, 15, 1.2));
    // The total, in green.
    p.setBrush(QColor(0x2e, 0x8b, 0x57));
    p.drawRect(QRectF(16, 26, 8, 2));
    return pixmap;
}

} // namespace

QIcon ProgramIcon()
{
    QIcon icon;
    for (int size : {16, 24, 32, 48, 64, 128})
        icon.addPixmap(Sheet(size));
    return icon;
}
