#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

namespace TestSupport {

/// Sends one mouse event to @p widget at @p position in its coordinates, without a pointer or a window system.
/// Returns whether it was handled.
inline bool sendMouse(QWidget* widget, QEvent::Type type, const QPoint& position, Qt::MouseButton button,
                      Qt::MouseButtons buttons)
{
    QMouseEvent event(type, position, widget->mapToGlobal(position), button, buttons, Qt::NoModifier);
    return QCoreApplication::sendEvent(widget, &event);
}

} // namespace TestSupport
