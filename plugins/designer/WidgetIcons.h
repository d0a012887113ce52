#pragma once

#include <QIcon>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

/// The pictures of the widget box: drawn by code, so that they are sharp at every size.
namespace Kestrel::Gui::Designer::Icons {

/// Draws a picture on a square of 22 by 22 units, its origin at the top left.
using Drawing = void (*)(QPainter& painter);

/// The drawing at the sizes that Designer asks for, and at twice those.
QIcon render(Drawing drawing);

void advancedColorPicker(QPainter& painter);
void namedColorPicker(QPainter& painter);
void penPicker(QPainter& painter);
void eyedropper(QPainter& painter);
void elidingComboBox(QPainter& painter);
void presetComboBox(QPainter& painter);
void noWheelComboBox(QPainter& painter);
void lineStyleComboBox(QPainter& painter);
void lineWidthComboBox(QPainter& painter);
void clickableLabel(QPainter& painter);
void elidingLabel(QPainter& painter);
void previewTile(QPainter& painter);
void elidingLineEdit(QPainter& painter);
void placeholderTextEdit(QPainter& painter);
void limitedSpinBox(QPainter& painter);
void zeroTickSlider(QPainter& painter);
void fontStylePicker(QPainter& painter);
void textAlignPicker(QPainter& painter);
void dockTitleBar(QPainter& painter);

} // namespace Kestrel::Gui::Designer::Icons
