#pragma once

#include <QCoreApplication>
#include <QFocusEvent>
#include <QWidget>

namespace TestSupport {

/// Tells @p widget that the focus came or went (QEvent::FocusIn or FocusOut), without a window that has it.
inline void sendFocus(QWidget& widget, QEvent::Type type)
{
    QFocusEvent event(type);
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace TestSupport
