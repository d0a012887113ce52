#include "WidgetIcons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QPolygonF>

namespace Kestrel::Gui::Designer::Icons {

namespace {

constexpr int gridSize = 22; // units of a drawing

// Colours that stand out from light and from dark palettes.
constexpr QRgb ink = qRgb(104, 114, 130);
constexpr QRgb dim = qRgb(176, 182, 192);
constexpr QRgb paper = qRgb(250, 250, 250);
constexpr QRgb blue = qRgb(47, 127, 214);
constexpr QRgb green = qRgb(63, 163, 91);
constexpr QRgb orange = qRgb(240, 140, 46);
constexpr QRgb red = qRgb(214, 69, 69);
constexpr QRgb yellow = qRgb(244, 203, 66);
constexpr QRgb violet = qRgb(140, 92, 190);
constexpr QRgb teal = qRgb(64, 190, 190);

QPen stroke(QRgb color, qreal width = 1, Qt::PenStyle style = Qt::SolidLine)
{
    return {QColor(color), width, style, Qt::FlatCap, Qt::MiterJoin};
}

void fill(QPainter& painter, const QRectF& rect, QRgb color)
{
    painter.fillRect(rect, QColor(color));
}

void line(QPainter& painter, const QPointF& from, const QPointF& to, const QPen& pen)
{
    painter.setPen(pen);
    painter.drawLine(from, to);
}

void shape(QPainter& painter, const QPolygonF& points, QRgb color)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(color));
    painter.drawPolygon(points);
}

void dot(QPainter& painter, const QPointF& center, qreal radius, QRgb color)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(color));
    painter.drawEllipse(center, radius, radius);
}

/// A field with a rim, as inputs have it.
void field(QPainter& painter, const QRectF& rect)
{
    painter.setPen(stroke(ink));
    painter.setBrush(QColor(paper));
    painter.drawRoundedRect(rect, 1.5, 1.5);
}

/// Three dots, as at the end of an elided text.
void ellipsis(QPainter& painter, const QPointF& first, QRgb color)
{
    constexpr qreal step = 2.6;
    constexpr qreal radius = 0.9;
    for (int i = 0; i < 3; ++i)
        dot(painter, first + QPointF(i * step, 0), radius, color);
}

void comboBox(QPainter& painter)
{
    field(painter, {0.5, 4.5, 21, 13});
    fill(painter, {15, 5, 6, 12}, blue);
    shape(painter, {{QPointF(16, 9.5), QPointF(20, 9.5), QPointF(18, 12.5)}}, paper);
}

void pointer(QPainter& painter, const QPointF& tip)
{
    QPolygonF arrow({{0, 0}, {0, 10}, {2.4, 7.8}, {4.2, 11.6}, {5.8, 10.8}, {4, 7.2}, {7, 7}});
    arrow.translate(tip);
    painter.setPen(stroke(paper));
    painter.setBrush(QColor(ink));
    painter.drawPolygon(arrow);
}

/// A capital A without serifs.
void letterA(QPainter& painter, const QRectF& rect, QRgb color)
{
    const QPen pen(QColor(color), 2.2, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    const QPointF top(rect.center().x(), rect.top());
    line(painter, rect.bottomLeft(), top, pen);
    line(painter, top, rect.bottomRight(), pen);
    const qreal bar = rect.top() + rect.height() * 0.66;
    line(painter, {rect.left() + rect.width() * 0.2, bar}, {rect.right() - rect.width() * 0.2, bar}, pen);
}

QPixmap pixmap(Drawing drawing, int size)
{
    QPixmap result(size, size);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(qreal(size) / gridSize, qreal(size) / gridSize);
    drawing(painter);
    return result;
}

} // namespace

QIcon render(Drawing drawing)
{
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 44, 48, 64})
        icon.addPixmap(pixmap(drawing, size));
    return icon;
}

void advancedColorPicker(QPainter& painter)
{
    constexpr QRgb colors[] = {red, orange, yellow, green, blue, violet, teal, dim, ink};
    constexpr int cell = 7;
    for (int i = 0; i < 9; ++i) {
        const QPoint corner(1 + i % 3 * cell, 1 + i / 3 * cell);
        fill(painter, QRect(corner, QSize(cell - 1, cell - 1)), colors[i]);
    }
}

void namedColorPicker(QPainter& painter)
{
    field(painter, {0.5, 3.5, 21, 15});
    fill(painter, {3, 6, 10, 10}, yellow);
    shape(painter, {{QPointF(14.5, 9), QPointF(20, 9), QPointF(17.25, 13)}}, ink);
}

void penPicker(QPainter& painter)
{
    shape(painter, {{QPointF(15, 1), QPointF(20, 6), QPointF(9, 15), QPointF(6, 12)}}, orange);
    shape(painter, {{QPointF(6, 12), QPointF(9, 15), QPointF(4, 16.5)}}, ink);
    line(painter, {1, 20}, {21, 20}, stroke(blue, 2.4));
}

void eyedropper(QPainter& painter)
{
    line(painter, {6, 16}, {14, 8}, QPen(QColor(ink), 5));
    line(painter, {6, 16}, {14, 8}, QPen(QColor(paper), 2.6));
    line(painter, {6, 16}, {9, 13}, QPen(QColor(red), 2.6));
    line(painter, {10.5, 5.5}, {16.5, 11.5}, stroke(ink, 2.6));
    line(painter, {14, 8}, {18, 4}, QPen(QColor(ink), 5, Qt::SolidLine, Qt::RoundCap));
    dot(painter, {3.4, 18.8}, 1.9, red);
}

void elidingComboBox(QPainter& painter)
{
    comboBox(painter);
    line(painter, {3, 11}, {6, 11}, stroke(ink, 2));
    ellipsis(painter, {8, 11.2}, ink);
}

void presetComboBox(QPainter& painter)
{
    comboBox(painter);
    shape(painter,
          {{QPointF(8, 5.6), QPointF(9.5, 9.2), QPointF(13.2, 9.4), QPointF(10.3, 11.8), QPointF(11.3, 15.6),
            QPointF(8, 13.4), QPointF(4.7, 15.6), QPointF(5.7, 11.8), QPointF(2.8, 9.4), QPointF(6.5, 9.2)}},
          orange);
}

void noWheelComboBox(QPainter& painter)
{
    comboBox(painter);
    painter.setPen(stroke(ink, 1.4));
    painter.setBrush(QColor(paper));
    painter.drawRoundedRect(QRectF(5, 6.2, 6, 9.6), 3, 3);
    line(painter, {8, 8}, {8, 11}, stroke(ink, 1.6));
    line(painter, {2, 18}, {14, 4}, stroke(red, 2));
}

void lineStyleComboBox(QPainter& painter)
{
    comboBox(painter);
    line(painter, {2.5, 8.5}, {13.5, 8.5}, stroke(ink, 1.6));
    for (const qreal left : {2.5, 6.5, 10.5})
        line(painter, {left, 11.2}, {left + 2.6, 11.2}, stroke(ink, 1.6));
    for (const qreal left : {2.5, 5.4, 8.3, 11.2})
        line(painter, {left, 14}, {left + 1.5, 14}, stroke(ink, 1.6));
}

void lineWidthComboBox(QPainter& painter)
{
    comboBox(painter);
    line(painter, {2.5, 7}, {13.5, 7}, stroke(ink, 1));
    line(painter, {2.5, 10}, {13.5, 10}, stroke(ink, 2));
    line(painter, {2.5, 14}, {13.5, 14}, stroke(ink, 3.4));
}

void clickableLabel(QPainter& painter)
{
    letterA(painter, {1.5, 3, 12, 14}, blue);
    pointer(painter, {12, 9});
}

void elidingLabel(QPainter& painter)
{
    letterA(painter, {1, 4, 11, 14}, blue);
    ellipsis(painter, {14.5, 17}, ink);
}

void previewTile(QPainter& painter)
{
    painter.setPen(stroke(ink));
    painter.setBrush(QColor(dim));
    painter.drawRect(QRectF(1.5, 3.5, 19, 15));
    shape(painter, {{QPointF(2, 18), QPointF(8, 11), QPointF(12, 15), QPointF(15, 12), QPointF(20, 18)}}, green);
    dot(painter, {11, 11}, 5, paper);
    shape(painter, {{QPointF(9.4, 8.2), QPointF(9.4, 13.8), QPointF(14, 11)}}, ink);
}

void elidingLineEdit(QPainter& painter)
{
    field(painter, {0.5, 5.5, 21, 11});
    line(painter, {4, 7.5}, {4, 14.5}, stroke(blue, 1.4));
    line(painter, {6, 11}, {11, 11}, stroke(ink, 2));
    ellipsis(painter, {13.5, 11.2}, ink);
}

void placeholderTextEdit(QPainter& painter)
{
    field(painter, {1.5, 1.5, 19, 19});
    line(painter, {4, 4}, {4, 9}, stroke(blue, 1.4));
    line(painter, {6, 6.5}, {17, 6.5}, stroke(dim, 2));
    line(painter, {4, 11}, {18, 11}, stroke(dim, 2));
    line(painter, {4, 15.5}, {12, 15.5}, stroke(dim, 2));
}

void limitedSpinBox(QPainter& painter)
{
    field(painter, {0.5, 4.5, 21, 13});
    shape(painter, {{QPointF(14, 10), QPointF(20, 10), QPointF(17, 6)}}, blue);
    shape(painter, {{QPointF(14, 12), QPointF(20, 12), QPointF(17, 16)}}, blue);
    line(painter, {5, 7.5}, {5, 14.5}, stroke(ink, 2));
    line(painter, {9, 7.5}, {9, 14.5}, stroke(ink, 2));
    line(painter, {12, 6}, {12, 16}, stroke(red, 1.4));
}

void zeroTickSlider(QPainter& painter)
{
    line(painter, {1, 9}, {21, 9}, stroke(dim, 3));
    line(painter, {11, 4}, {11, 20}, stroke(red, 2));
    painter.setPen(stroke(paper));
    painter.setBrush(QColor(blue));
    painter.drawEllipse(QPointF(16, 9), 3.6, 3.6);
}

void fontStylePicker(QPainter& painter)
{
    // B: a stem and two bows.
    painter.setPen(stroke(ink, 2.6));
    painter.setBrush(Qt::NoBrush);
    QPainterPath letter(QPointF(2.8, 3.3));
    letter.lineTo(2.8, 15.7);
    letter.lineTo(6, 15.7);
    letter.cubicTo(10, 15.7, 10, 9.5, 6, 9.5);
    letter.lineTo(2.8, 9.5);
    letter.moveTo(6, 9.5);
    letter.cubicTo(9, 9.5, 9, 3.3, 6, 3.3);
    letter.lineTo(1.6, 3.3);
    painter.drawPath(letter);
    line(painter, {18.5, 2}, {14.5, 17}, stroke(blue, 2)); // I, slanted
    line(painter, {16, 2.8}, {20.5, 2.8}, stroke(blue, 1.6));
    line(painter, {12.5, 16.2}, {17, 16.2}, stroke(blue, 1.6));
    line(painter, {1, 20}, {21, 20}, stroke(ink, 1.6));
}

void textAlignPicker(QPainter& painter)
{
    constexpr qreal halfWidths[] = {10, 6, 8.5, 4.5};
    constexpr qreal top = 3.5;
    constexpr qreal step = 5;
    qreal y = top;
    for (const qreal half : halfWidths) {
        line(painter, {11 - half, y}, {11 + half, y}, stroke(ink, 2.2));
        y += step;
    }
}

void dockTitleBar(QPainter& painter)
{
    field(painter, {0.5, 2.5, 21, 17});
    fill(painter, {1, 3, 20, 7}, blue);
    for (const qreal x : {3.0, 5.4})
        for (const qreal y : {5.2, 7.8})
            dot(painter, {x, y}, 0.8, paper);
    painter.setPen(stroke(paper, 1.2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(11, 4.8, 3.4, 3.4));
    line(painter, {16.4, 4.6}, {19.6, 8.4}, stroke(paper, 1.4));
    line(painter, {19.6, 4.6}, {16.4, 8.4}, stroke(paper, 1.4));
}

} // namespace Kestrel::Gui::Designer::Icons
