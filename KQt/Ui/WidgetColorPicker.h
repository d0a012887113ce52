#pragma once

#include <KQt/Ui/Export.h>

#include <QColor>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QVector>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QEventLoop;
QT_END_NAMESPACE

namespace Kestrel::Gui {

class HighlightFrame;

/// An eyedropper: lets the user pick the colour of one pixel of a widget as it is seen on the screen.
///
/// pick() blocks in a nested event loop. Meanwhile the target is framed, the cursor is a cross over it, and an event
/// filter on the application waits for the end: a mouse press or a key press anywhere, stop(), or the last window's
/// closing. All of these sample the pixel under the cursor; only a cursor outside the target gives no colour.
///
/// Where the window system gives no picture of the screen (Wayland), the colour is read from the target's own window
/// rendered off screen, without anything that lies over it. The pointer is known there while it is over windows of the
/// application, and QCursor::setPos() does not move it.
///
/// Target, swallow widgets, and the picker itself may be deleted while picking: it then ends with an invalid colour,
/// and cursor, frame and filter are gone.
class KQTUI_EXPORT WidgetColorPicker : public QObject
{
    Q_OBJECT

public:
    explicit WidgetColorPicker(QObject* parent = nullptr);
    ~WidgetColorPicker() override;

    /// Runs until the user has picked.
    /// @param target  the widget to pick from; without one the result is invalid at once
    /// @param swallow widgets that do not receive the mouse press that ends picking
    /// @return an opaque colour; invalid where the cursor was outside the target, or another pick() is not over yet.
    QColor pick(QWidget* target, const QSet<QWidget*>& swallow);

    bool pickingInProgress() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

public Q_SLOTS:
    /// Ends picking; pick() still samples the pixel under the cursor.
    void stop();

private:
    void runLoop();
    bool isSwallowedAt(const QPoint& global) const;
    QColor sample(const QWidget& target) const;
    void setupCursor();
    void resetCursor();
    static bool widgetUnderMouse(const QWidget* widget, const QPoint& global);

    QEventLoop* m_loop;
    QPointer<QWidget> m_target;
    bool m_cursorOverridden = false;
    QVector<QPointer<QWidget>> m_swallow;
    QPointer<HighlightFrame> m_highlight; // owned, but the target's parent may delete it first
    bool m_insidePick = false;
    QPointF m_lastMousePosition; // global; finer than the cursor's where a unit is more than one pixel
};

} // namespace Kestrel::Gui
