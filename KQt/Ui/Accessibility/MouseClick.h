#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Kestrel::Gui::Detail {

/// Presses and releases the left mouse button in the middle of @p widget, as soon as control is back in the event loop;
/// nothing where the widget is deleted, disabled or hidden by then.
void clickLater(QWidget* widget);

} // namespace Kestrel::Gui::Detail
