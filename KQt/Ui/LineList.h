#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QComboBox;
QT_END_NAMESPACE

namespace Kestrel::Gui::Detail {

/// Gives a box for line styles or widths its list: a plain one, on the box's own model.
void installLineList(QComboBox& box);

} // namespace Kestrel::Gui::Detail
