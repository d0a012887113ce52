#include <KQt/Ui/PickerButtonDragFilter.h>

#include <KQt/Ui/PickerButton.h>

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPixmap>
#include <QPointer>
#include <QScopeGuard>

namespace Kestrel::Gui {

QPoint PickerButtonDragFilter::m_dragStartPosition;

PickerButtonDragFilter::PickerButtonDragFilter(QObject* parent)
    : QObject(parent)
{
}

PickerButtonDragFilter::~PickerButtonDragFilter() = default;

bool PickerButtonDragFilter::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        if (auto* const swatch = qobject_cast<PickerButton*>(watched))
            return handleMouse(swatch, static_cast<QMouseEvent*>(event));
        return false;
    default:
        return QObject::eventFilter(watched, event);
    }
}

bool PickerButtonDragFilter::handleMouse(PickerButton* swatch, QMouseEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease)
        m_dragStartPosition = QPoint();
    else if (event->type() == QEvent::MouseMove)
        return dragWhenFarEnough(swatch, event);
    else if (event->button() == Qt::LeftButton)
        m_dragStartPosition = event->pos();
    return QObject::eventFilter(swatch, event);
}

bool PickerButtonDragFilter::dragWhenFarEnough(PickerButton* swatch, QMouseEvent* event)
{
    if (!event->buttons().testFlag(Qt::LeftButton) ||
        (event->pos() - m_dragStartPosition).manhattanLength() < QApplication::startDragDistance())
        return QObject::eventFilter(swatch, event);

    const QPointer<PickerButtonDragFilter> self(this);
    const QPointer<PickerButton> swatchGuard(swatch);
    runDrag(swatch);
    // The drag ran a loop of its own, in which the application may have deleted the popup with all that is in it. An
    // event for a swatch that is gone ends here.
    if (!swatchGuard) {
        event->accept();
        return true;
    }
    return self ? QObject::eventFilter(swatch, event) : false;
}

void PickerButtonDragFilter::runDrag(PickerButton* swatch)
{
    auto* const drag = new QDrag(this);
    auto* const mimeData = new QMimeData;
    mimeData->setColorData(swatch->color());
    drag->setMimeData(mimeData);

    QPixmap pixmap(swatch->width(), swatch->height());
    pixmap.fill(swatch->color());
    drag->setPixmap(pixmap);
    // The bottom centre, not the middle: the colour is seen above the pointer while it is carried.
    drag->setHotSpot(QPoint(pixmap.width() / 2, pixmap.height()));

    // The popup may die while a colour of it is dragged. The platform goes on using the drag until its loop has ended,
    // so the drag must not die with the filter; the drag manager deletes it afterwards.
    const auto guard = connect(this, &QObject::destroyed, drag, [drag] {
        drag->setParent(nullptr);
        QDrag::cancel();
    });
    // What the application throws into the drag's loop leaves the drag unfinished, and Qt would refuse every later one.
    auto abandon = qScopeGuard([abandoned = QPointer<QDrag>(drag)] {
        QDrag::cancel();
        delete abandoned;
    });
    drag->exec(Qt::CopyAction);
    abandon.dismiss();
    disconnect(guard);
}

} // namespace Kestrel::Gui
