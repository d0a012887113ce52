#include "AppIcon.h"

#include <QPainter>
#include <QPixmap>

namespace Gallery {

namespace {

constexpr QRgb swatchColors[] = {0x00a4d3, 0xfec63d, 0xff5d55, 0x72bb53};

void paintIcon(QPainter& painter, qreal size)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x2b, 0x35, 0x43));
    painter.drawRoundedRect(QRectF(0, 0, size, size), size * 0.2, size * 0.2);

    const qreal margin = size * 0.18;
    const qreal gap = size * 0.08;
    const qreal side = (size - 2 * margin - gap) / 2;
    for (int i = 0; i < 4; ++i) {
        const QPointF corner(margin + (i % 2) * (side + gap),
                             margin + (i / 2) * (side + gap)); // NOLINT(bugprone-integer-division)
        painter.setBrush(QColor(swatchColors[i]));
        painter.drawRoundedRect(QRectF(corner, QSizeF(side, side)), side * 0.2, side * 0.2);
    }
}

} // namespace

QIcon applicationIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paintIcon(painter, size);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace Gallery
