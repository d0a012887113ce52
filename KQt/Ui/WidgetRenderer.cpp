#include <KQt/Ui/WidgetRenderer.h>

#include <KQt/Ui/Check.h>
#include <KQt/Ui/InterruptedCalls.h>

#include <QApplication>
#include <QDialog>
#include <QMoveEvent>
#include <QPointer>
#include <QRegion>
#include <QResizeEvent>
#include <QScopeGuard>
#include <QVector>
#include <QWidget>

#include <algorithm>
#include <iterator>
#include <typeinfo>

// QLinkedList is deprecated in Qt 5.15, see the header.
// clang-format off
QT_WARNING_DISABLE_DEPRECATED
// clang-format on

namespace Kestrel::Gui {

namespace {

// A paint handler that moves its widget every time would otherwise keep the renderer busy for ever.
constexpr int MaximalPasses = 2;

QVector<QPointer<QWidget>> guardedCopy(const QLinkedList<QWidget*>& widgets)
{
    QVector<QPointer<QWidget>> copy;
    copy.reserve(widgets.size());
    std::copy(widgets.cbegin(), widgets.cend(), std::back_inserter(copy));
    return copy;
}

QPixmap blackPixmap(const QSize& size, qreal devicePixelRatio)
{
    QImage image(size * devicePixelRatio, QImage::Format_ARGB32);
    // The conversion looks for transparent pixels to choose the pixmap's format, so there must be defined ones.
    image.fill(0);
    QPixmap pixmap = QPixmap::fromImage(std::move(image));
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(QColor(QRgb(0))); // of a QRgb, QColor takes no alpha: opaque black
    return pixmap;
}

// Qt 5 keeps one paint device per widget and forgets the outer one when a widget is rendered within its own paint
// event: the widget would stay blank on the screen. Its ancestors count too, for new masks have them painted.
bool isBeingPainted(const QWidget* widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (widget->testAttribute(Qt::WA_WState_InPaintEvent))
            return true;
    }
    return false;
}

// No member of QWidget tells this, its friend does.
bool isInDestructor(QWidget* widget)
{
    for (; widget; widget = widget->parentWidget()) {
        if (qt_qwidget_data(widget)->in_destructor)
            return true;
    }
    return false;
}

/// Whether the window of @p widget is a dialog of a class of its own, as it stops to be in the destructor of QDialog.
bool isInDerivedDialog(const QWidget& widget)
{
    const auto* dialog = qobject_cast<const QDialog*>(widget.window());
    return dialog && typeid(*dialog) != typeid(QDialog);
}

} // namespace

WidgetRenderer::WidgetRenderer(QWidget* trackedWidget, QObject* parent)
    : QObject(parent)
    , m_trackedWidget(trackedWidget)
{
    if (!trackedWidget)
        KQTUI_THROW_INVALID_ARGUMENT("trackedWidget is NULL");
    connect(trackedWidget, &QObject::destroyed, this, &WidgetRenderer::ForgetTrackedWidget);
    QCoreApplication::instance()->installEventFilter(this);
}

WidgetRenderer::~WidgetRenderer()
{
    if (auto* application = QCoreApplication::instance())
        application->removeEventFilter(this);
}

void WidgetRenderer::ChangeRendererFrame(const QRect& rendererRect)
{
    m_rendererRect = rendererRect;
}

const QPixmap& WidgetRenderer::GetMaskImage() const
{
    return m_image;
}

bool WidgetRenderer::eventFilter(QObject* watched, QEvent* event)
{
    // Every event of the application comes by here: nothing is looked at before its type.
    switch (event->type()) {
    case QEvent::Paint:
    case QEvent::ZOrderChange:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::Close:
        break;
    default:
        return QObject::eventFilter(watched, event);
    }

    auto* widget = qobject_cast<QWidget*>(watched);
    if (!widget)
        return QObject::eventFilter(watched, event);
    if (widget == m_trackedWidget) {
        OnTrackedWidgetEvent(event);
        return QObject::eventFilter(watched, event);
    }

    const QPointer<WidgetRenderer> self(this);
    const QPointer<QWidget> receiver(widget);
    OnOtherWidgetEvent(widget, event);
    // Drawing runs paint handlers of the application. Where one has deleted the receiver, its event ends here.
    if (!receiver)
        return true;
    return self && QObject::eventFilter(watched, event);
}

// The three forms differ in their coordinates on purpose: applications rely on each of them as it is.
void WidgetRenderer::OnTrackedWidgetEvent(QEvent* event)
{
    const QRect frame = m_trackedWidget->frameGeometry();
    switch (event->type()) {
    case QEvent::Move:
        ChangeRendererFrame(QRect(static_cast<QMoveEvent*>(event)->pos(), frame.size()));
        break;
    case QEvent::Resize:
        ChangeRendererFrame(
            MapRectToGlobal(*m_trackedWidget, QRect(frame.topLeft(), static_cast<QResizeEvent*>(event)->size())));
        break;
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::ZOrderChange:
        ChangeRendererFrame(frame);
        break;
    default:
        break;
    }
}

void WidgetRenderer::OnOtherWidgetEvent(QWidget* widget, const QEvent* event)
{
    switch (event->type()) {
    case QEvent::Paint:
    case QEvent::ZOrderChange:
        // While the picture is drawn that is the drawing itself. The list is not searched then, once for every widget
        // in it.
        if (!m_composing && IsTrackedWidget(widget))
            OnWidgetAppearanceChanged(widget);
        break;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
        OnWidgetPlaced(widget);
        break;
    default: // Hide, Close
        RemoveFromRenderer(widget);
        break;
    }
}

void WidgetRenderer::OnWidgetPlaced(QWidget* widget)
{
    const bool inside = IsInRendererBounds(widget);
    const bool listed = IsTrackedWidget(widget);
    if (inside && !listed) {
        // Two entries on purpose, one here and one below: the picture draws the widget twice, leaving takes out
        // both.
        m_widgets.append(widget);
        if (isInDerivedDialog(*widget))
            m_inDerivedDialogs.insert(widget);
        OnWidgetEntered(widget, true, true);
    } else if (inside) {
        OnWidgetFrameChanged(widget);
    } else if (listed) {
        RemoveFromRenderer(widget);
    }
}

void WidgetRenderer::RemoveFromRenderer(QWidget* widget)
{
    if (!IsTrackedWidget(widget))
        return;
    // All entries but the last, which OnWidgetLeaved() takes: the picture is to be drawn once, and without the
    // widget.
    while (m_widgets.count(widget) > 1)
        m_widgets.removeOne(widget);
    const bool destroyed = IsBeingDestroyed(widget);
    OnWidgetLeaved(widget, !destroyed, true);
    if (destroyed)
        RedrawWithoutDestroyed();
}

/// Whether @p widget, which is in the list, or what it lies in has come to its destructor.
bool WidgetRenderer::IsBeingDestroyed(QWidget* widget) const
{
    // A dialog hides before Qt says so, when no more is left of it than a QDialog.
    return isInDestructor(widget) || (m_inDerivedDialogs.contains(widget) && !isInDerivedDialog(*widget));
}

void WidgetRenderer::CheckWidget(QWidget* widget) const
{
    if (!widget)
        KQTUI_THROW_INVALID_ARGUMENT("widget is NULL");
}

bool WidgetRenderer::IsTrackedWidget(QWidget* widget) const
{
    return m_widgets.contains(widget);
}

bool WidgetRenderer::IsInRendererBounds(QWidget* widget) const
{
    CheckWidget(widget);
    // Turned inside out it could contain widgets, which can then not be drawn.
    if (m_rendererRect.isEmpty())
        return false;
    return m_rendererRect.contains(MapRectToGlobal(*widget, widget->frameGeometry()));
}

QRect WidgetRenderer::MapRectToGlobal(const QWidget& widget, const QRect& rect)
{
    return {widget.mapToGlobal(rect.topLeft()), widget.mapToGlobal(rect.bottomRight())};
}

QRect WidgetRenderer::MapRectFromGlobal(const QWidget& widget, const QRect& rect)
{
    return {widget.mapFromGlobal(rect.topLeft()), widget.mapFromGlobal(rect.bottomRight())};
}

void WidgetRenderer::UpdateMaskImage()
{
    ComposeImage();
}

void WidgetRenderer::OnAppAppearanceChanged()
{
    ComposeImage();
}

void WidgetRenderer::OnWidgetAppearanceChanged(QWidget* widget)
{
    if (IsTrackedWidget(widget))
        UpdateMaskImage();
}

void WidgetRenderer::OnWidgetFrameChanged(QWidget* widget)
{
    if (IsTrackedWidget(widget))
        UpdateMaskImage();
}

void WidgetRenderer::OnWidgetEntered(QWidget* widget, bool updateImage, bool addToList)
{
    if (!widget)
        KQTUI_THROW_INVALID_ARGUMENT("widget is NULL");
    if (addToList) {
        m_widgets.append(widget);
        connect(widget, &QObject::destroyed, this, &WidgetRenderer::ForgetWidget, Qt::UniqueConnection);
    }
    if (updateImage)
        UpdateMaskImage();
}

void WidgetRenderer::OnWidgetLeaved(QWidget* widget, bool updateImage, bool removeFromList)
{
    if (!IsTrackedWidget(widget))
        return;
    if (removeFromList) {
        m_widgets.removeOne(widget);
        if (!IsTrackedWidget(widget)) {
            m_inDerivedDialogs.remove(widget);
            disconnect(widget, &QObject::destroyed, this, &WidgetRenderer::ForgetWidget);
        }
    }
    widget->setMask(QRegion());
    widget->setAttribute(Qt::WA_MouseNoMask, false);
    if (updateImage)
        UpdateMaskImage();
}

void WidgetRenderer::ForgetTrackedWidget()
{
    m_trackedWidget = nullptr;
}

void WidgetRenderer::ForgetWidget(QObject* destroyed)
{
    const auto isDestroyed = [destroyed](const QWidget* widget) {
        return static_cast<const QObject*>(widget) == destroyed;
    };
    m_widgets.erase(std::remove_if(m_widgets.begin(), m_widgets.end(), isDestroyed), m_widgets.end());
    m_inDerivedDialogs.remove(destroyed);
    RedrawWithoutDestroyed();
}

void WidgetRenderer::RedrawWithoutDestroyed()
{
    if (m_composing) {
        m_changedWhileComposing = true;
        return;
    }
    if (m_widgets.isEmpty()) {
        m_image = QPixmap();
        return;
    }
    RedrawLater();
}

void WidgetRenderer::RedrawLater()
{
    if (m_redrawQueued)
        return;
    m_redrawQueued = true;
    const auto redraw = [this] {
        m_redrawQueued = false;
        // Nobody could catch what an invalid frame throws here; the next event reports it.
        if (!m_widgets.isEmpty() && !m_rendererRect.isEmpty())
            OnAppAppearanceChanged();
    };
    QMetaObject::invokeMethod(this, redraw, Qt::QueuedConnection);
}

bool WidgetRenderer::IsAnyBeingPainted() const
{
    return std::any_of(m_widgets.cbegin(), m_widgets.cend(), isBeingPainted);
}

/// Draws the picture. Rendering and masking widgets sends events that come back through the filter: those that
/// belong to the drawing are ignored, those that change the list or a widget's place are answered by one further
/// pass.
void WidgetRenderer::ComposeImage()
{
    if (m_composing) {
        m_changedWhileComposing = true;
        return;
    }
    if (!m_rendererRect.isEmpty() && IsAnyBeingPainted()) {
        RedrawLater();
        return;
    }
    const QPointer<WidgetRenderer> self(this);
    m_composing = true;
    const auto release = qScopeGuard([self] {
        if (!self)
            return;
        self->m_composing = false;
        self->m_remasked.clear();
    });

    m_changedWhileComposing = true;
    for (int pass = 0; pass < MaximalPasses && m_changedWhileComposing; ++pass) {
        m_changedWhileComposing = false;
        // A copy: a paint handler may move the frame meanwhile.
        const QRect rect = m_rendererRect;
        const QPixmap picture = CreateMaskImageForRect(rect, m_widgets);
        if (!self)
            return;
        m_image = picture;
        SettleMasks();
        if (!self)
            return;
    }
}

QPixmap WidgetRenderer::CreateMaskImageForRect(const QRect& rect, QLinkedList<QWidget*>& widgets)
{
    if (rect.isNull() || rect.isEmpty())
        KQTUI_THROW_INVALID_ARGUMENT("rendererRect is invalid");
    if (widgets.isEmpty())
        return {};

    const qreal ratio = m_trackedWidget ? m_trackedWidget->devicePixelRatioF() : qApp->devicePixelRatio();
    QPixmap picture = blackPixmap(rect.size(), ratio);
    const QPointer<WidgetRenderer> self(this);
    const auto listed = guardedCopy(widgets);
    for (const QPointer<QWidget>& widget : listed) {
        if (widget && IsStillThere(widget))
            RenderWidget(widget, rect, picture);
        if (!self)
            return {};
    }
    return picture;
}

void WidgetRenderer::RenderWidget(QWidget* widget, const QRect& rect, QPixmap& picture)
{
    const QRect frame = MapRectToGlobal(*widget, widget->frameGeometry());
    const QRect part = rect.intersected(frame);
    if (part.isEmpty())
        return;
    const QRegion source(MapRectFromGlobal(*widget, part));

    const QPointer<WidgetRenderer> self(this);
    const QPointer<QWidget> alive(widget);
    Detail::renderWidget(*widget, picture, part.topLeft(), source);
    if (!alive || !self || !IsStillThere(widget))
        return;

    const QRegion mask = QRegion(frame).subtracted(source);
    if (!widget->isWindow() && widget->mask() != mask)
        m_remasked.append(widget);
    widget->setMask(mask);
    widget->setAttribute(Qt::WA_MouseNoMask, true);
}

/// Whether the paint handlers that have run so far left @p widget in the list: one that has left is not masked
/// again.
bool WidgetRenderer::IsStillThere(QWidget* widget) const
{
    // The list is searched only where it may have changed, which keeps the cost of a picture linear.
    return !m_changedWhileComposing || IsTrackedWidget(widget);
}

/// Has the paint events that new masks cause delivered while they are still known as the drawing's own. Later they
/// could not be told from those of a changed widget.
void WidgetRenderer::SettleMasks()
{
    const QPointer<WidgetRenderer> self(this);
    const QVector<QPointer<QWidget>> remasked = m_remasked;
    m_remasked.clear();
    const QWidget* settled = nullptr;
    for (const QPointer<QWidget>& widget : remasked) {
        if (!widget || widget->window() == settled)
            continue;
        settled = widget->window();
        QCoreApplication::sendPostedEvents(widget->window(), QEvent::UpdateRequest);
        if (!self)
            return;
    }
}

} // namespace Kestrel::Gui
