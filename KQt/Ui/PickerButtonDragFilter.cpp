#include <KQt/Ui/PickerButtonDragFilter.h>

#include <KQt/Ui/PickerButton.h>

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPixmap>
#include <QPointer>

namespace Kestrel::Gui {

QPoint PickerButtonDragFilter::m_dragStartPosition;

PickerButtonDragFilter::PickerButtonDragFilter(QObject* parent)
    : QObject(parent)
{
}

PickerButtonDragFilter::~PickerButtonDragFilter()
{
    // The popup may die while a colour of it is dragged. The platform goes on using the drag until its loop has ended,
    // so the drag must not die with the filter; the drag manager deletes it afterwards.
    const auto drags = findChildren<QDrag*>(QString(), Qt::FindDirectChildrenOnly);
    for (QDrag* drag : drags)
        drag->setParent(nullptr);
    if (!drags.isEmpty())
        QDrag::cancel();
}

bool PickerButtonDragFilter::eventFilter(QObject* watched, QEvent* event)
{
    auto* const swatch = qobject_cast<PickerButton*>(watched);
    if (!swatch)
        return false;

    const QPointer<PickerButtonDragFilter> self(this);
    const QPointer<QObject> swatchGuard(watched);
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto* const press = static_cast<QMouseEvent*>(event);
        if (press->button() == Qt::LeftButton)
            m_dragStartPosition = press->pos();
        break;
    }
    case QEvent::MouseButtonRelease:
        m_dragStartPosition = QPoint();
        break;
    case QEvent::MouseMove:
        dragWhenFarEnough(swatch, static_cast<QMouseEvent*>(event));
        break;
    default:
        break;
    }

    // The drag ran a loop of its own, in which the application may have deleted the popup with all that is in it. An
    // event for a swatch that is gone ends here.
    if (!swatchGuard) {
        event->accept();
        return true;
    }
    return self ? QObject::eventFilter(watched, event) : false;
}

void PickerButtonDragFilter::dragWhenFarEnough(PickerButton* swatch, const QMouseEvent* event)
{
    if (!event->buttons().testFlag(Qt::LeftButton))
        return;
    if ((event->pos() - m_dragStartPosition).manhattanLength() >= QApplication::startDragDistance())
        runDrag(swatch);
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
    drag->exec(Qt::CopyAction);
}

} // namespace Kestrel::Gui
