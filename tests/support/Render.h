#pragma once

#include <QImage>
#include <QPainter>
#include <QWidget>

namespace TestSupport {

/// @p widget as it paints itself, at one pixel a unit.
inline QImage render(QWidget& widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget.render(&image);
    return image;
}

} // namespace TestSupport
