#pragma once

#include <QAccessible>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Kestrel::Gui::Detail {

/// What announce...() do once it is known that somebody listens.
void sendValueChange(QWidget* widget);
void sendNameChange(QWidget* widget);
void sendAlert(QWidget* widget);

/// Tells assistive technology, where there is any, that the widget's value is another one, and with it possibly its
/// name and description. A widget that is not visible, in its constructor for instance, has nothing to tell.
inline void announceValue(QWidget* widget)
{
    if (QAccessible::isActive())
        sendValueChange(widget);
}

inline void announceName(QWidget* widget)
{
    if (QAccessible::isActive())
        sendNameChange(widget);
}

/// Has the widget read out, whatever has the focus.
inline void announceAlert(QWidget* widget)
{
    if (QAccessible::isActive())
        sendAlert(widget);
}

} // namespace Kestrel::Gui::Detail
