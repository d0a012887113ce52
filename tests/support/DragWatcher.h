#pragma once

#include <QColor>
#include <QDrag>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QObject>
#include <QPixmap>
#include <QPointer>
#include <QTimer>
#include <QVariant>

#include <functional>
#include <utility>

namespace TestSupport {

/// Notes what the drag carries that @p source starts next; make it before the event that starts the drag.
///
/// In a window system a drag runs an event loop of its own: there the watcher looks at it, calls @p during and cancels
/// it. The offscreen platform ends each drag at once: see runsDrags().
class DragWatcher : public QObject
{
public:
    explicit DragWatcher(QObject* source, std::function<void()> during = {})
        : m_source(source)
        , m_during(std::move(during))
    {
        m_timer.callOnTimeout(this, [this] { look(); });
        if (runsDrags())
            m_timer.start(0);
    }

    /// Whether a drag runs until it is dropped or cancelled.
    static bool runsDrags()
    {
        // Windows asks for the button that the user holds, and so ends a drag without one at once as well.
        const QString platform = QGuiApplication::platformName();
        return platform != QLatin1String("offscreen") && platform != QLatin1String("windows");
    }

    /// How many drags there were; @p during ran for each of them.
    int drags()
    {
        if (!runsDrags())
            look();
        return m_drags;
    }

    QColor color;
    QStringList formats;
    QImage picture;
    QPoint hotSpot;
    Qt::DropActions actions;
    QPointer<QDrag> drag;

private:
    void look()
    {
        auto* const started = m_source ? m_source->findChild<QDrag*>() : nullptr;
        if (!started || started == drag)
            return;
        drag = started;
        m_timer.stop();
        ++m_drags;
        color = qvariant_cast<QColor>(drag->mimeData()->colorData());
        formats = drag->mimeData()->formats();
        picture = drag->pixmap().toImage();
        hotSpot = drag->hotSpot();
        actions = drag->supportedActions();
        if (m_during)
            m_during();
        if (runsDrags())
            QDrag::cancel();
    }

    QPointer<QObject> m_source;
    std::function<void()> m_during;
    QTimer m_timer;
    int m_drags = 0;
};

} // namespace TestSupport
