#pragma once

#include <QPen>

QT_BEGIN_NAMESPACE
class QComboBox;
class QPainter;
class QRect;
class QString;
QT_END_NAMESPACE

namespace Kestrel::Gui::Detail {

/// What the line boxes and their delegates draw alike: a sample line, or a word where there is no line to show.

/// Draws one horizontal line through the middle of @p area with the painter's pen, both ends inclusive.
void drawSampleLine(QPainter& painter, const QRect& area, int fromX, int toX);

/// Writes @p text at the left of @p area, vertically centred. The painter is handed back as it was.
void drawMissingLineText(QPainter& painter, const QRect& area, const QString& text);

/// @p pen with another width. Unlike QPen::setWidth() it takes a negative width without printing a warning.
QPen withWidth(const QPen& pen, int width);

/// Width in pixels of the arrow that the style gives @p box.
int arrowWidth(const QComboBox& box);

/// Pixels between a sample line and the left edge, also the indent of the word.
constexpr int lineSampleMargin = 8;

} // namespace Kestrel::Gui::Detail
