#include "ColorSwatch.h"

#include <QPainter>
#include <QStyle>

namespace Gallery {

namespace {

constexpr QSize patchSize(84, 28);
constexpr int gap = 8;

void paintChequers(QPainter& painter, const QRect& rect)
{
    constexpr int side = 7;
    painter.save();
    painter.setClipRect(rect);
    painter.fillRect(rect, Qt::white);
    for (int row = 0; row * side < rect.height(); ++row) {
        for (int column = row % 2; column * side < rect.width(); column += 2)
            painter.fillRect(rect.x() + column * side, rect.y() + row * side, side, side, QColor(Qt::lightGray));
    }
    painter.restore();
}

} // namespace

QString colorText(const QColor& color)
{
    constexpr int whole = 255;
    constexpr int percent = 100;
    if (color.alpha() == whole)
        return color.name();
    return QStringLiteral("%1, %2 %").arg(color.name()).arg(qRound(color.alphaF() * percent));
}

ColorSwatch::ColorSwatch(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void ColorSwatch::setColor(const QColor& color)
{
    m_color = color;
    update();
}

QSize ColorSwatch::sizeHint() const
{
    const int text = fontMetrics().horizontalAdvance(QStringLiteral("#000000, 100 %"));
    return {patchSize.width() + gap + text, qMax(patchSize.height(), fontMetrics().height())};
}

QSize ColorSwatch::minimumSizeHint() const
{
    return sizeHint();
}

QRect ColorSwatch::patchRect() const
{
    const QRect left(QPoint(0, (height() - patchSize.height()) / 2), patchSize);
    return QStyle::visualRect(layoutDirection(), rect(), left);
}

void ColorSwatch::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintChequers(painter, patchRect());
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(m_color);
    painter.drawRect(patchRect().adjusted(0, 0, -1, -1));

    const QRect textRect = rect().adjusted(patchSize.width() + gap, 0, 0, 0);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QStyle::visualRect(layoutDirection(), rect(), textRect),
                     QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter),
                     QChar(0x2066) + colorText(m_color) + QChar(0x2069));
}

} // namespace Gallery
