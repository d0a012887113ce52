#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QColor;
class QPointF;
class QWidget;
QT_END_NAMESPACE

namespace Kestrel::Gui::Detail {

/// The opaque colour of the pixel at @p global (device-independent, fractions tell apart the pixels of one unit) as it
/// is seen on the screen. Invalid where the window system gives no picture of the screen.
QColor screenPixel(const QPointF& global);

/// The opaque colour of the pixel at @p global of @p window rendered off screen.
QColor windowPixel(QWidget& window, const QPointF& global);

} // namespace Kestrel::Gui::Detail
