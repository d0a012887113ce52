#pragma once

#include <KQt/Ui/Export.h>

#include <QList>
#include <QObject>

QT_BEGIN_NAMESPACE
class QDragEnterEvent;
class QDragLeaveEvent;
class QDragMoveEvent;
class QDropEvent;
QT_END_NAMESPACE

namespace Kestrel::Gui {

class IDragDropEventFilterObserver;

/// Turns drags and drops of URLs over the objects that it is installed on into calls of observers.
///
/// A drag is accepted where any observer accepts any of its URLs; a drop goes to every observer, URL by URL. Both still
/// reach the widget; a drag's leaving does not. Whatever the filter has no use for is answered by the watched object's
/// own eventFilter().
///
/// Observers may install and remove observers, themselves included, from inside their calls, and delete the filter or,
/// when something is dropped, the widget. The widget needs setAcceptDrops(true).
class KQTUI_EXPORT DragDropEventFilter : public QObject
{
    Q_OBJECT

public:
    explicit DragDropEventFilter(QObject* parent = nullptr);
    ~DragDropEventFilter() override;

    /// Adds @p observer at the end of the list, unless it is in it. It is not owned and must live until it is removed.
    void InstallDragDropObserver(IDragDropEventFilterObserver* observer);
    void RemoveDragDropObserver(IDragDropEventFilterObserver* observer);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool DragEnterEvent(QObject* watched, QDragEnterEvent* event);
    bool DragMoveEvent(QObject* watched, QDragMoveEvent* event);
    bool DragLeaveEvent(QObject* watched, QDragLeaveEvent* event);
    bool DropEvent(QObject* watched, QDropEvent* event);

    bool judgeDrag(QObject* watched, QDropEvent* event);
    template <typename Call>
    bool anyObserver(Call call);

    QList<IDragDropEventFilterObserver*> m_observers;
};

} // namespace Kestrel::Gui
