#include <KQt/Ui/DisableDragAndDropEventFilter.h>

#include <QEvent>

namespace Kestrel::Gui {

DisableDragAndDropEventFilter::DisableDragAndDropEventFilter(QObject* parent)
    : QObject(parent)
{
}

DisableDragAndDropEventFilter::~DisableDragAndDropEventFilter() = default;

bool DisableDragAndDropEventFilter::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::DragLeave:
    case QEvent::Drop:
        return true;
    default:
        return QObject::eventFilter(watched, event);
    }
}

} // namespace Kestrel::Gui
