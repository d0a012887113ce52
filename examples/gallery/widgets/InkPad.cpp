#include "InkPad.h"

#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace Gallery {

InkPad::InkPad(QString hint, QWidget* parent)
    : QFrame(parent)
    , m_hint(std::move(hint))
{
    constexpr int smallest = 90;
    setMinimumHeight(smallest);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setCursor(Qt::CrossCursor);
}

QSize InkPad::sizeHint() const
{
    return {320, 160};
}

void InkPad::clear()
{
    m_ink = {};
    update();
}

void InkPad::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    m_ink.moveTo(event->localPos());
    // A click without a move leaves a dot.
    m_ink.lineTo(event->localPos() + QPointF(0.1, 0));
    update();
}

void InkPad::mouseMoveEvent(QMouseEvent* event)
{
    event->accept();
    if (event->buttons() == Qt::NoButton || m_ink.isEmpty())
        return;
    m_ink.lineTo(event->localPos());
    update();
}

void InkPad::enterEvent(QEvent* event)
{
    setLit(true);
    QFrame::enterEvent(event);
}

void InkPad::leaveEvent(QEvent* event)
{
    setLit(false);
    QFrame::leaveEvent(event);
}

void InkPad::setLit(bool lit)
{
    m_lit = lit;
    update();
}

void InkPad::paintEvent(QPaintEvent*)
{
    constexpr qreal radius = 6;
    constexpr qreal inkWidth = 3;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(m_lit ? QPalette::Highlight : QPalette::Mid), m_lit ? 2 : 1));
    painter.setBrush(palette().alternateBase());
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), radius, radius);

    if (m_ink.isEmpty()) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, m_hint);
        return;
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette().color(QPalette::Highlight), inkWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(m_ink);
}

} // namespace Gallery
