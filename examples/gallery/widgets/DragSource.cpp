#include "DragSource.h"

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>

namespace Gallery {

DragSource::DragSource(const QString& text, QWidget* parent)
    : QLabel(text, parent)
{
    constexpr int padding = 10;
    setFrameShape(QFrame::StyledPanel);
    setAlignment(Qt::AlignCenter);
    setMargin(padding);
    setCursor(Qt::OpenHandCursor);
}

void DragSource::mousePressEvent(QMouseEvent* event)
{
    m_pressedAt = event->pos();
    event->accept();
}

void DragSource::mouseMoveEvent(QMouseEvent* event)
{
    const int distance = (event->pos() - m_pressedAt).manhattanLength();
    if (event->buttons().testFlag(Qt::LeftButton) && distance >= QApplication::startDragDistance())
        startDrag();
}

void DragSource::startDrag()
{
    auto* data = new QMimeData;
    data->setText(text());
    auto* drag = new QDrag(this); // deletes itself
    drag->setMimeData(data);
    drag->setPixmap(grab());
    drag->setHotSpot(m_pressedAt);
    drag->exec(Qt::CopyAction);
}

} // namespace Gallery
