#include <KQt/Ui/HighlightFrame.h>

#include <KQt/Ui/Accessibility/InstallAccessibility.h>

#include <QEvent>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace Kestrel::Gui {

namespace {

QWidget* windowOf(QWidget* widget)
{
    while (!(widget->windowFlags() & (Qt::Window | Qt::Popup)) && widget->parentWidget())
        widget = widget->parentWidget();
    return widget;
}

} // namespace

HighlightFrame::HighlightFrame(QWidget* widget)
    : QFrame(nullptr)
    , m_trackedWidgets{widget}
{
    Detail::installAccessibility();
    if (widget)
        initTopLevel(widget->parentWidget());
}

HighlightFrame::HighlightFrame(QSet<QWidget*> widgets)
    : QFrame(nullptr)
    , m_trackedWidgets(std::move(widgets))
{
    Detail::installAccessibility();
    QWidget* host = nullptr;
    for (QWidget* widget : qAsConst(m_trackedWidgets)) {
        if (widget)
            host = windowOf(widget);
    }
    initTopLevel(host);
}

HighlightFrame::~HighlightFrame() = default;

void HighlightFrame::initTopLevel(QWidget* host)
{
    if (!host)
        return;
    setAttribute(Qt::WA_TransparentForMouseEvents, true);
    m_trackedWidgets.remove(nullptr);
    for (QWidget* widget : qAsConst(m_trackedWidgets))
        watchWidget(widget);
    m_host = host;
    m_host->installEventFilter(this);
    // Somebody may have moved the frame into another widget by then.
    connect(m_host, &QObject::destroyed, this, [this] { m_host = nullptr; });
    setParent(m_host);
    trackLater();
}

void HighlightFrame::trackLater()
{
    if (m_isTrackingDue)
        return;
    m_isTrackingDue = true;
    QTimer::singleShot(0, this, &HighlightFrame::trackWidgets);
}

void HighlightFrame::watchWidget(QWidget* widget)
{
    widget->installEventFilter(this);
    // A deleted widget sends no hide event, and while it is being deleted no slot should run that may delete it again.
    connect(widget, &QObject::destroyed, this, [this, widget] {
        m_trackedWidgets.remove(widget);
        trackLater();
    });
}

// A widget that moves along with one that contains it gets no event of its own.
void HighlightFrame::watchAncestors()
{
    QVector<QPointer<QWidget>> ancestors;
    for (const QWidget* widget : qAsConst(m_trackedWidgets)) {
        if (widget == m_host || !isInsideHost(widget))
            continue;
        for (QWidget* ancestor = widget->parentWidget(); ancestor != m_host; ancestor = ancestor->parentWidget()) {
            if (!ancestors.contains(ancestor) && !m_trackedWidgets.contains(ancestor))
                ancestors.append(ancestor);
        }
    }
    if (ancestors == m_ancestors)
        return;
    for (const QPointer<QWidget>& ancestor : qAsConst(m_ancestors)) {
        if (ancestor && !ancestors.contains(ancestor) && ancestor != m_host && !m_trackedWidgets.contains(ancestor))
            ancestor->removeEventFilter(this);
    }
    for (const QPointer<QWidget>& ancestor : qAsConst(ancestors)) {
        if (!m_ancestors.contains(ancestor))
            ancestor->installEventFilter(this);
    }
    m_ancestors = std::move(ancestors);
}

bool HighlightFrame::isInsideHost(const QWidget* widget) const
{
    return m_host->isAncestorOf(widget);
}

QRect HighlightFrame::desiredRect() const
{
    if (!m_host)
        return {};
    QRect united;
    for (const QWidget* widget : qAsConst(m_trackedWidgets)) {
        if (!widget->isVisible() || !isInsideHost(widget))
            continue;
        // The corner is the point past the last pixel; with the margins that makes three pixels on each side.
        const QPoint corner(widget->width(), widget->height());
        united |= QRect(widget->mapTo(m_host, QPoint(0, 0)), widget->mapTo(m_host, corner));
    }
    if (united.isEmpty())
        return {};
    return united.adjusted(m_margins.left, m_margins.top, m_margins.right, m_margins.bottom);
}

void HighlightFrame::trackWidgets()
{
    m_isTrackingDue = false;
    if (!m_host)
        return;
    watchAncestors();
    const QRect desired = desiredRect();
    if (desired.isEmpty()) {
        if (isVisible())
            Q_EMIT visibilityChanged(false);
        return;
    }
    const QRect inside = desired & m_host->rect();
    if (inside.isEmpty())
        return;
    if (!applyGeometry(inside) || isVisible())
        return;
    const QPointer<HighlightFrame> self(this);
    raise();
    show();
    if (self)
        Q_EMIT visibilityChanged(true);
}

/// Whether the frame is still there afterwards.
bool HighlightFrame::applyGeometry(const QRect& geometry)
{
    if (m_isPlaced && this->geometry() == geometry)
        return true;
    m_isPlaced = true;
    const QPointer<HighlightFrame> self(this);
    setGeometry(geometry);
    if (self)
        Q_EMIT geometryChanged(geometry);
    return !self.isNull();
}

bool HighlightFrame::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::NonClientAreaMouseButtonPress:
    case QEvent::NonClientAreaMouseButtonRelease:
        // A click may have brought another child of the host to the front.
        if (!isAncestorBetween(watched))
            raise();
        break;
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
        // The widgets in it get events of their own where this concerns them.
        if (isAncestorBetween(watched))
            break;
        [[fallthrough]];
    case QEvent::Move:
        return trackOnEvent(watched);
    default:
        break;
    }
    return QFrame::eventFilter(watched, event);
}

bool HighlightFrame::isAncestorBetween(const QObject* watched) const
{
    return std::any_of(m_ancestors.cbegin(), m_ancestors.cend(),
                       [watched](const QPointer<QWidget>& ancestor) { return ancestor == watched; });
}

/// Never consumes the event, but for a receiver that a slot has deleted: nobody is left then to get it.
bool HighlightFrame::trackOnEvent(QObject* watched)
{
    const QPointer<QObject> receiver(watched);
    trackWidgets();
    return !receiver;
}

} // namespace Kestrel::Gui
