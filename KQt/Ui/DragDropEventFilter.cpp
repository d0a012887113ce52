#include <KQt/Ui/DragDropEventFilter.h>

#include <KQt/Ui/IDragDropEventFilterObserver.h>

#include <QDragEnterEvent>
#include <QMimeData>
#include <QPointer>
#include <QUrl>

namespace Kestrel::Gui {

namespace {

void acceptProposed(QDropEvent* event)
{
    event->setDropAction(event->proposedAction());
    event->accept();
}

} // namespace

DragDropEventFilter::DragDropEventFilter(QObject* parent)
    : QObject(parent)
{
}

DragDropEventFilter::~DragDropEventFilter() = default;

void DragDropEventFilter::InstallDragDropObserver(IDragDropEventFilterObserver* observer)
{
    if (observer && !m_observers.contains(observer))
        m_observers.append(observer);
}

void DragDropEventFilter::RemoveDragDropObserver(IDragDropEventFilterObserver* observer)
{
    m_observers.removeAll(observer);
}

bool DragDropEventFilter::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
        return DragEnterEvent(watched, static_cast<QDragEnterEvent*>(event));
    case QEvent::DragMove:
        return DragMoveEvent(watched, static_cast<QDragMoveEvent*>(event));
    case QEvent::DragLeave:
        return DragLeaveEvent(watched, static_cast<QDragLeaveEvent*>(event));
    case QEvent::Drop:
        return DropEvent(watched, static_cast<QDropEvent*>(event));
    default:
        // The watched object's own filter and not the base class: that is where its answer to foreign drags lives.
        return watched->eventFilter(watched, event);
    }
}

bool DragDropEventFilter::DragEnterEvent(QObject* watched, QDragEnterEvent* event)
{
    return judgeDrag(watched, event);
}

bool DragDropEventFilter::DragMoveEvent(QObject* watched, QDragMoveEvent* event)
{
    return judgeDrag(watched, event);
}

bool DragDropEventFilter::DragLeaveEvent(QObject* watched, QDragLeaveEvent* event)
{
    Q_UNUSED(watched)
    Q_UNUSED(event)
    return true;
}

/// Calls @p call with each observer in order until it returns true, and tells whether one did. An observer that an
/// earlier call removed is passed over; nothing is called any more once the filter is deleted.
template <typename Call>
bool DragDropEventFilter::anyObserver(Call call)
{
    const QPointer<DragDropEventFilter> self(this);
    const QList<IDragDropEventFilterObserver*> observers = m_observers;
    for (IDragDropEventFilterObserver* observer : observers) {
        if (!self)
            return false;
        if (m_observers.contains(observer) && call(observer))
            return true;
    }
    return false;
}

bool DragDropEventFilter::judgeDrag(QObject* watched, QDropEvent* event)
{
    if (!event->mimeData()->hasUrls())
        return watched->eventFilter(watched, event);

    const QPointer<DragDropEventFilter> self(this);
    const QPointer<QObject> receiver(watched);
    const QList<QUrl> urls = event->mimeData()->urls();
    for (const QUrl& url : urls) {
        const std::string text = url.toString().toStdString();
        if (self &&
            anyObserver([&text](IDragDropEventFilterObserver* observer) { return observer->CanDropUrl(text); })) {
            acceptProposed(event);
            return !receiver;
        }
    }
    return !receiver || watched->eventFilter(watched, event);
}

bool DragDropEventFilter::DropEvent(QObject* watched, QDropEvent* event)
{
    if (!event->mimeData()->hasUrls())
        return watched->eventFilter(watched, event);

    const QPointer<DragDropEventFilter> self(this);
    const QPointer<QObject> receiver(watched);
    const QList<QUrl> urls = event->mimeData()->urls();
    for (const QUrl& url : urls) {
        const std::string path = url.toLocalFile().toStdString();
        if (!self)
            break;
        anyObserver([&path](IDragDropEventFilterObserver* observer) {
            observer->DropUrl(path);
            return false;
        });
    }
    acceptProposed(event);
    return !receiver; // an observer may have deleted the drop zone: the event must not go on to it then
}

} // namespace Kestrel::Gui
