#include "NotePreview.h"

#include <QPainter>

#include <utility>

namespace Gallery {

NotePreview::NotePreview(QString text, QWidget* parent)
    : QWidget(parent)
    , m_text(std::move(text))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void NotePreview::setPaper(const QColor& color)
{
    m_paper = color;
    update();
}

void NotePreview::setInk(const QColor& color)
{
    m_ink = color;
    update();
}

void NotePreview::setMarker(const QColor& color)
{
    m_marker = color;
    update();
}

QFont NotePreview::textFont() const
{
    constexpr qreal scale = 1.7;
    QFont result = font();
    result.setPointSizeF(result.pointSizeF() * scale);
    return result;
}

QSize NotePreview::minimumSizeHint() const
{
    constexpr int lines = 3;
    const QFontMetrics metrics(textFont());
    return {metrics.horizontalAdvance(m_text) + 2 * metrics.height(), lines * metrics.lineSpacing()};
}

QSize NotePreview::sizeHint() const
{
    return minimumSizeHint();
}

void NotePreview::paintEvent(QPaintEvent*)
{
    constexpr qreal radius = 6;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(m_paper);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);

    painter.setFont(textFont());
    painter.setPen(m_ink);
    painter.drawText(rect(), Qt::AlignCenter, m_text);

    // Over the text, as a marker goes: its opacity decides how much of the ink shines through.
    QRect marked = painter.fontMetrics().boundingRect(rect(), Qt::AlignCenter, m_text);
    marked.setWidth(marked.width() / 2);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_marker);
    painter.drawRoundedRect(QRectF(marked).adjusted(-3, 0, 3, 0), radius / 2, radius / 2);
}

} // namespace Gallery
