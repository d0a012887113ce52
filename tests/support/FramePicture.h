#pragma once

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QPen>
#include <QStyleOptionGraphicsItem>

#include <functional>

/// What a selection frame looks like, drawn a second time from its description.
namespace FramePicture {

inline QFont captionFont()
{
    return {QStringLiteral("Helvetica"), 8};
}

inline QSizeF captionSize(const QString& text)
{
    return QFontMetricsF(captionFont()).size(Qt::TextSingleLine, text) + QSizeF(10.0, 5.0);
}

inline QString caption(int left, int top, int width, int height)
{
    return QStringLiteral("Left: %1% Top: %2% Width: %3% Height: %4%")
        .arg(QString::number(left), QString::number(top), QString::number(width), QString::number(height));
}

inline double captionHeight()
{
    return captionSize(caption(0, 0, 0, 0)).height();
}

inline QColor restingColor()
{
    return Qt::white;
}

inline QColor hoverColor()
{
    return {0xE8, 0x6E, 0x59};
}

inline void drawFrame(QPainter& painter, const QRectF& frame, const QColor& color)
{
    const QPen before = painter.pen();
    painter.setPen(QPen(QBrush(Qt::black), 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.drawRect(frame);
    QPen dashes(QBrush(color), 2.0, Qt::DashLine, Qt::SquareCap, Qt::BevelJoin);
    dashes.setCosmetic(true);
    painter.setPen(dashes);
    painter.drawRect(frame);
    painter.setPen(before);
}

inline void drawCaption(QPainter& painter, const QRectF& rect, const QString& text)
{
    painter.setFont(captionFont());
    painter.fillRect(rect, Qt::white);
    painter.setPen(Qt::darkBlue);
    painter.drawText(rect, Qt::AlignHCenter | Qt::AlignVCenter | Qt::TextSingleLine, text);
    painter.setPen(Qt::black);
    painter.drawRect(rect);
}

/// A 360 x 260 picture on grey, whose origin lies 30 pixels inside; the painter is scaled by @p zoom.
inline QImage picture(const std::function<void(QPainter&)>& draw, double zoom = 1.0)
{
    QImage image(360, 260, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(128, 128, 128));
    QPainter painter(&image);
    painter.translate(30, 30);
    painter.scale(zoom, zoom);
    draw(painter);
    return image;
}

/// @p item painted alone, its own coordinates on the picture's.
template <typename Item>
QImage pictureOf(Item& item, double zoom = 1.0)
{
    return picture(
        [&item](QPainter& painter) {
            QStyleOptionGraphicsItem option;
            option.exposedRect = item.boundingRect();
            item.paint(&painter, &option, nullptr);
        },
        zoom);
}

} // namespace FramePicture
