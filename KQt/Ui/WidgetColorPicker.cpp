#include <KQt/Ui/WidgetColorPicker.h>

#include <KQt/Ui/HighlightFrame.h>
#include <KQt/Ui/ScreenPixel.h>

#include <Basalt/ScopedFunctionCall.h>

#include <QCursor>
#include <QEventLoop>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QWidget>

namespace Kestrel::Gui {

WidgetColorPicker::WidgetColorPicker(QObject* parent)
    : QObject(parent)
    , m_loop(new QEventLoop(this))
{
    connect(qApp, &QGuiApplication::lastWindowClosed, this, &WidgetColorPicker::stop);
}

WidgetColorPicker::~WidgetColorPicker()
{
    m_loop->quit();
    resetCursor();
    delete m_highlight;
    if (m_insidePick)
        m_loop->setParent(nullptr); // its exec() is on the stack: pick() deletes it
}

QColor WidgetColorPicker::pick(QWidget* target, const QSet<QWidget*>& swallow)
{
    // Not pickingInProgress(): the press that ends the loop may start another pick() before the first has returned.
    if (m_insidePick || !target)
        return {};

    delete m_highlight;
    m_highlight = new HighlightFrame(target);
    m_target = target;
    m_lastMousePosition = {};

    const QPointer<QWidget> picked(target);
    const QPointer<WidgetColorPicker> self(this);
    const Core::ScopedFunctionCall swallowing(
        [this, &swallow] {
            m_insidePick = true;
            for (QWidget* widget : swallow)
                m_swallow.append(widget);
        },
        [this, self] {
            if (!self)
                return;
            m_swallow.clear();
            m_target.clear();
            m_insidePick = false;
        },
        true);
    runLoop();
    return self && picked ? sample(*picked) : QColor();
}

void WidgetColorPicker::runLoop()
{
    const QPointer<WidgetColorPicker> self(this);
    QEventLoop* loop = m_loop;
    const QMetaObject::Connection targetGone =
        connect(m_target.data(), &QObject::destroyed, this, &WidgetColorPicker::stop);
    const Core::ScopedFunctionCall watching([this] { QCoreApplication::instance()->installEventFilter(this); },
                                            [this, self, loop, targetGone] {
                                                if (!self) {
                                                    delete loop;
                                                    return;
                                                }
                                                QCoreApplication::instance()->removeEventFilter(this);
                                                disconnect(targetGone);
                                                stop(); // where an exception or the application's end left the loop
                                            },
                                            true);
    loop->exec();
}

bool WidgetColorPicker::pickingInProgress() const
{
    return m_loop->isRunning();
}

void WidgetColorPicker::stop()
{
    delete m_highlight;
    m_loop->quit();
    resetCursor();
}

bool WidgetColorPicker::eventFilter(QObject* watched, QEvent* event)
{
    Q_UNUSED(watched)
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        if (!pickingInProgress())
            return false;
        m_lastMousePosition = static_cast<QMouseEvent*>(event)->screenPos();
        stop();
        return isSwallowedAt(m_lastMousePosition.toPoint());
    }
    case QEvent::MouseMove:
        if (!pickingInProgress())
            return false;
        m_lastMousePosition = static_cast<QMouseEvent*>(event)->screenPos();
        if (m_target && widgetUnderMouse(m_target, m_lastMousePosition.toPoint()))
            setupCursor();
        else
            resetCursor();
        return false;
    case QEvent::KeyPress:
        if (pickingInProgress())
            stop();
        return false;
    default:
        return false;
    }
}

bool WidgetColorPicker::isSwallowedAt(const QPoint& global) const
{
    for (const QPointer<QWidget>& widget : m_swallow) {
        if (widget && widgetUnderMouse(widget, global))
            return true;
    }
    return false;
}

QColor WidgetColorPicker::sample(const QWidget& target) const
{
    const QPoint position = QCursor::pos();
    const QRect area(target.mapToGlobal(target.rect().topLeft()), target.mapToGlobal(target.rect().bottomRight()));
    if (!area.contains(position))
        return {};

    // The cursor's position is in whole units; the mouse events tell which of a unit's pixels it is on. They are out of
    // date where the cursor was moved without an event: then it is on the pixel that is nearest to the unit's start.
    const qreal halfPixel = 0.5 / target.devicePixelRatioF();
    const QPointF exact =
        m_lastMousePosition.toPoint() == position ? m_lastMousePosition : position + QPointF(halfPixel, halfPixel);
    const QColor onScreen = Detail::screenPixel(exact);
    return onScreen.isValid() ? onScreen : Detail::windowPixel(*target.window(), exact);
}

void WidgetColorPicker::setupCursor()
{
    if (m_cursorOverridden)
        return;
    QGuiApplication::setOverrideCursor(QCursor(Qt::CrossCursor));
    m_cursorOverridden = true;
}

void WidgetColorPicker::resetCursor()
{
    if (!m_cursorOverridden)
        return;
    QGuiApplication::restoreOverrideCursor();
    m_cursorOverridden = false;
}

bool WidgetColorPicker::widgetUnderMouse(const QWidget* widget, const QPoint& global)
{
    return widget->rect().contains(widget->mapFromGlobal(global));
}

} // namespace Kestrel::Gui
