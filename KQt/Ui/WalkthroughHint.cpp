#include <KQt/Ui/WalkthroughHint.h>

#include <KQt/Ui/Accessibility/Announcements.h>
#include <KQt/Ui/Accessibility/InstallAccessibility.h>
#include <KQt/Ui/HighlightFrame.h>
#include <KQt/Ui/InterruptedCalls.h>

#include <QEvent>
#include <QPointer>
#include <QRegion>
#include <QScopeGuard>
#include <QStackedWidget>
#include <QVariant>

#include <utility>

namespace Kestrel::Gui {

namespace {

constexpr int Margin = 5;
// Any extent. Not 65536: subclasses compare with this very number.
constexpr int UnlimitedExtent = 655536;

const char* const NameProperty = "walkthroughName";
const char* const WidgetProperty = "walkthroughWidget";
const char* const AlignmentProperty = "walkthroughAlignment";
const char* const ConditionListProperty = "walkthroughConditionList";

enum class Side { Middle, Left, Top, Right, Bottom };

Side sideNamed(const QString& alignment)
{
    if (alignment == QLatin1String("left"))
        return Side::Left;
    if (alignment == QLatin1String("top"))
        return Side::Top;
    if (alignment == QLatin1String("right"))
        return Side::Right;
    if (alignment == QLatin1String("bottom"))
        return Side::Bottom;
    return Side::Middle;
}

bool isBeside(Side side)
{
    return side == Side::Left || side == Side::Right;
}

QRectF preferredPlace(const QSizeF& size, const QRectF& target, Side side)
{
    QRectF place(QPointF(0, 0), size);
    QPointF center = target.center();
    switch (side) {
    case Side::Left:
        center.setX(target.left() - Margin - size.width() * 0.5);
        break;
    case Side::Top:
        center.setY(target.top() - Margin - size.height() * 0.5);
        break;
    case Side::Right:
        center.setX(target.right() + Margin + size.width() * 0.5);
        break;
    case Side::Bottom:
        center.setY(target.bottom() + Margin + size.height() * 0.5);
        break;
    case Side::Middle:
        break;
    }
    place.moveCenter(center);
    return place;
}

QRectF firstInside(const QRectF& bounds, const QRectF& first, const QRectF& second)
{
    return bounds.contains(first) ? first : second;
}

/// The two places that @p place can give way to along one axis, and how far it must go for that.
struct Escape
{
    int backwards;
    int forwards;
    QRectF before;
    QRectF after;
};

QRectF withBottom(QRectF place, qreal bottom)
{
    place.moveBottom(bottom);
    return place;
}

QRectF withTop(QRectF place, qreal top)
{
    place.moveTop(top);
    return place;
}

QRectF withRight(QRectF place, qreal right)
{
    place.moveRight(right);
    return place;
}

QRectF withLeft(QRectF place, qreal left)
{
    place.moveLeft(left);
    return place;
}

Escape escapeIntoBounds(const QRectF& place, const QRectF& bounds, bool vertically)
{
    if (vertically) {
        const int over = int(place.bottom() - bounds.bottom());
        const int under = int(bounds.top() - place.top());
        return {over, under, withBottom(place, place.bottom() - over - Margin),
                withTop(place, place.top() + under + Margin)};
    }
    const int over = int(place.right() - bounds.right());
    const int under = int(bounds.left() - place.left());
    return {over, under, withRight(place, place.right() - over - Margin),
            withLeft(place, place.left() + under + Margin)};
}

QRectF fittedIntoBounds(const QRectF& place, const QRectF& bounds, bool vertically)
{
    if (bounds.contains(place))
        return place;
    const Escape escape = escapeIntoBounds(place, bounds, vertically);
    const int over = escape.backwards;
    const int under = escape.forwards;
    if (over >= 1 && (under < 0 || over < under))
        return firstInside(bounds, escape.before, escape.after);
    if (under >= 1 && (over < 0 || under <= over))
        return firstInside(bounds, escape.after, escape.before);
    return place;
}

Escape escapeFromAvoid(const QRectF& place, const QRectF& avoid, bool vertically)
{
    if (vertically) {
        const int up = int(place.bottom() - avoid.top());
        const int down = int(avoid.bottom() - place.top());
        return {up, down, withBottom(place, place.bottom() - up - Margin), withTop(place, place.top() + down + Margin)};
    }
    const int left = int(place.right() - avoid.left());
    const int right = int(avoid.right() - place.left());
    // On purpose the top is moved here, by a horizontal distance. The place that comes of it is hardly ever inside the
    // window, so that the hint goes to the left where it can; hints have always been placed like that.
    return {left, right, withRight(place, place.right() - left - Margin),
            withTop(place, place.left() + right + Margin)};
}

QRectF movedOffAvoid(const QRectF& place, const QRectF& bounds, const QRectF& avoid, bool vertically)
{
    if (!place.intersects(avoid))
        return place;
    const Escape escape = escapeFromAvoid(place, avoid, vertically);
    return escape.backwards >= escape.forwards ? firstInside(bounds, escape.after, escape.before)
                                               : firstInside(bounds, escape.before, escape.after);
}

QRect clipped(const QRectF& place, const QRect& bounds, const QRectF& avoid)
{
    QRegion region = QRegion(place.toRect()).intersected(bounds);
    if (!avoid.isEmpty())
        region -= avoid.toRect();
    return region.boundingRect();
}

} // namespace

WalkthroughHint::WalkthroughHint()
    : QWidget(nullptr)
{
    Detail::installAccessibility();
    // Closing a hint in a hidden window must not be taken for closing the application's last window.
    setAttribute(Qt::WA_QuitOnClose, false);
}

WalkthroughHint::~WalkthroughHint()
{
    delete std::exchange(m_frame, nullptr);
}

QSize WalkthroughHint::minimumSizeHint() const
{
    return {0, 0};
}

void WalkthroughHint::start(QSet<QWidget*> targets)
{
    m_enabledForever = true;
    m_enabledForSession = true;
    removeOtherPages();
    releaseFrame();
    m_frame = new HighlightFrame(std::move(targets));
    connect(m_frame, &QObject::destroyed, this, &WalkthroughHint::frameDestroyed);
    // Queued: placing must not run inside the frame's own update.
    connect(m_frame, &HighlightFrame::geometryChanged, this, &WalkthroughHint::frameGeometryChanged,
            Qt::QueuedConnection);
    connect(m_frame, &HighlightFrame::visibilityChanged, this, &WalkthroughHint::frameVisibilityChanged,
            Qt::QueuedConnection);
}

void WalkthroughHint::removeOtherPages()
{
    QStackedWidget* pages = stackedWidget();
    if (!pages)
        return;
    const QWidget* own = pages->currentWidget();
    for (int i = pages->count() - 1; i >= 0; --i) {
        QWidget* page = pages->widget(i);
        if (page != own)
            pages->removeWidget(page);
    }
}

void WalkthroughHint::releaseFrame()
{
    if (m_frame)
        std::exchange(m_frame, nullptr)->deleteLater();
}

void WalkthroughHint::abandonStart()
{
    releaseFrame();
}

void WalkthroughHint::finish()
{
    if (m_isAnnouncing)
        return;
    const QPointer<WalkthroughHint> self(this);
    const int finishCount = m_finishCount;
    close();
    // The controller answers the Close event with finish(), which has done the rest then.
    if (!self || m_finishCount != finishCount)
        return;
    ++m_finishCount;
    releaseFrame();
    m_isAnnouncing = true;
    const auto announced = qScopeGuard([self] {
        if (!self)
            return;
        self->m_isAnnouncing = false;
        self->m_running = false;
    });
    try {
        announceUsersChoice();
    } catch (...) {
        // Where this answers the Close event, what would hide the hint after it is passed over now.
        if (self) {
            Detail::forgetClosing(*self);
            hide();
        }
        throw;
    }
}

void WalkthroughHint::announceUsersChoice()
{
    if (!m_enabledForever)
        Q_EMIT hintsDisabledForever();
    else if (!m_enabledForSession)
        Q_EMIT hintsDisabledForSession();
}

QWidget* WalkthroughHint::contentWidget()
{
    const QStackedWidget* pages = stackedWidget();
    return pages ? pages->currentWidget() : nullptr;
}

QString WalkthroughHint::hintName()
{
    return pageProperty(NameProperty).toString();
}

QString WalkthroughHint::widgetName()
{
    return pageProperty(WidgetProperty).toString();
}

QString WalkthroughHint::alignment()
{
    return pageProperty(AlignmentProperty).toString();
}

QStringList WalkthroughHint::conditionList()
{
    return pageProperty(ConditionListProperty).toStringList();
}

QVariant WalkthroughHint::pageProperty(const char* name)
{
    const QWidget* page = contentWidget();
    return page ? page->property(name) : QVariant();
}

const char* WalkthroughHint::widgetPropertyName()
{
    return WidgetProperty;
}

QWidget* WalkthroughHint::getTargetWidget() const
{
    return m_frame;
}

void WalkthroughHint::setAvoidWidget(QWidget* widget)
{
    if (m_avoidWidget) {
        m_avoidWidget->removeEventFilter(this);
        disconnect(m_avoidWidgetDestroyed);
    }
    m_avoidWidget = widget;
    if (!m_avoidWidget)
        return;
    m_avoidWidget->installEventFilter(this);
    m_avoidWidgetDestroyed = connect(m_avoidWidget, &QObject::destroyed, this, [this] { m_avoidWidget = nullptr; });
}

void WalkthroughHint::updateHintPosition()
{
    if (isVisible())
        place();
}

void WalkthroughHint::enableHintsForever()
{
    m_enabledForever = true;
}

void WalkthroughHint::disableHintsForever()
{
    m_enabledForever = false;
}

void WalkthroughHint::enableHintsForSession()
{
    m_enabledForSession = true;
}

void WalkthroughHint::disableHintsForSession()
{
    m_enabledForSession = false;
}

void WalkthroughHint::frameDestroyed()
{
    // A frame that was replaced dies later than the next one is made.
    if (sender() == m_frame)
        m_frame = nullptr;
}

void WalkthroughHint::frameVisibilityChanged(bool /*visible*/)
{
    if (!parentWidget() || !m_frame || !m_running)
        return;
    // What counts is how the frame is now, not how it was when it reported.
    followFrameVisibility();
}

void WalkthroughHint::followFrameVisibility()
{
    const bool wasVisible = isVisible();
    const QPointer<WalkthroughHint> self(this);
    setVisible(m_frame->isVisible());
    if (self && !wasVisible)
        Detail::announceAlert(this);
}

void WalkthroughHint::frameGeometryChanged(QRect /*geometry*/)
{
    // The frame may have moved on since it reported, so it is asked again. A late report of a frame that has been
    // replaced says nothing about the new one, which may have no place yet.
    if (!sender() || sender() == m_frame)
        place();
}

void WalkthroughHint::place()
{
    if (!m_frame)
        return;
    const QRect frame = m_frame->rect();
    m_lastFrameGeometry = QRect(m_frame->mapToGlobal(frame.topLeft()), m_frame->mapToGlobal(frame.bottomRight()));
    if (!parentWidget())
        moveIntoWindowOfFrame();
    const QWidget* window = parentWidget();
    if (!window)
        return;
    const QRectF target = QRect(window->mapFromGlobal(m_lastFrameGeometry.topLeft()),
                                window->mapFromGlobal(m_lastFrameGeometry.bottomRight()));
    const int offset = offsetBetweenWidgetsAndHint();
    const QRect bounds = window->rect().adjusted(offset, offset, -offset, -offset);
    const QRectF avoid = avoidRect();
    const Side side = sideNamed(alignment());
    QRectF place = preferredPlace(sizeHint(), target, side);
    place = fittedIntoBounds(place, bounds, isBeside(side));
    place = movedOffAvoid(place, bounds, avoid, isBeside(side));
    applyPlace(clipped(place, bounds, avoid), isBeside(side));
}

void WalkthroughHint::moveIntoWindowOfFrame()
{
    // The window and not the top-most parent: a hint for a dialog belongs into the dialog.
    if (const QWidget* host = m_frame->parentWidget()) {
        setParent(host->window());
        hide();
    }
}

void WalkthroughHint::applyPlace(const QRect& place, bool isBeside)
{
    // A subclass may finish or even delete the hint in answer to any of these.
    const QPointer<WalkthroughHint> self(this);
    limitTextSize(isBeside ? QSize(place.width(), UnlimitedExtent) : QSize(UnlimitedExtent, place.width()));
    if (!self || !m_frame)
        return;
    resize(place.size());
    if (!self || !m_frame)
        return;
    move(place.topLeft());
    if (!self || !m_frame)
        return;
    m_running = true;
    followFrameVisibility();
}

bool WalkthroughHint::isAvoiding() const
{
    if (!m_avoidWidget || !m_avoidWidget->isVisible() || !parentWidget())
        return false;
    const QWidget* ancestor = m_avoidWidget->parentWidget();
    while (ancestor && ancestor != parentWidget())
        ancestor = ancestor->parentWidget();
    return ancestor != nullptr;
}

/// In the coordinates of the hint's window; empty where there is nothing to avoid.
QRectF WalkthroughHint::avoidRect() const
{
    if (!isAvoiding())
        return {};
    const QPoint corner(m_avoidWidget->width(), m_avoidWidget->height());
    const QWidget* window = parentWidget();
    return {window->mapFromGlobal(m_avoidWidget->mapToGlobal(QPoint(0, 0))),
            window->mapFromGlobal(m_avoidWidget->mapToGlobal(corner))};
}

void WalkthroughHint::avoidGeometryChanged()
{
    if (isAvoiding() && avoidRect().intersects(geometry()))
        place();
}

bool WalkthroughHint::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if ((type != QEvent::Move && type != QEvent::Resize) || watched != m_avoidWidget)
        return false;
    const QPointer<QObject> receiver(watched);
    avoidGeometryChanged();
    // Never consumed, but for a widget that a subclass has deleted meanwhile: nobody is left to get the event.
    return !receiver;
}

void WalkthroughHint::changeEvent(QEvent* event)
{
    // The new text may want another extent than the old one.
    if (event->type() == QEvent::LanguageChange)
        limitTextSize(QSize(UnlimitedExtent, UnlimitedExtent));
    QWidget::changeEvent(event);
}

void WalkthroughHint::limitTextSize(QSize /*size*/)
{
}

int WalkthroughHint::offsetBetweenWidgetsAndHint() const
{
    return Margin;
}

} // namespace Kestrel::Gui
