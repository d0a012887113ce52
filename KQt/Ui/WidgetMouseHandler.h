#pragma once

#include <KQt/Ui/Export.h>

#include <QObject>

QT_BEGIN_NAMESPACE
class QHoverEvent;
class QMouseEvent;
class QWidget;
QT_END_NAMESPACE

namespace Kestrel::Gui {

/// Turns the mouse, enter, leave and hover events of one widget into signals.
///
/// The handler is a child of the widget that it watches and dies with it. A signal is emitted before the widget sees
/// the event; afterwards the event goes on to the widget (marked ignored), or is swallowed (marked accepted) where
/// propagation is off. Installed on other objects too, the handler lets their events pass untouched. A slot may delete
/// the handler or, as far as Qt itself bears it, the widget.
///
/// Hover signals need Qt::WA_Hover on the widget and MouseMoved() needs mouse tracking or a held button; the handler
/// sets neither.
class KQTUI_EXPORT WidgetMouseHandler : public QObject
{
    Q_OBJECT

public:
    /// Watches @p parent.
    /// @throws std::invalid_argument "Parent object can't be NULL"
    explicit WidgetMouseHandler(QWidget* parent);
    ~WidgetMouseHandler() override;

    /// Whether the widget still receives the events that became signals; on by default. In force from the next event:
    /// called from a slot of this class, it leaves the event that is being reported alone.
    void EnableEventPropagation(bool enable);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Each follows the widget's event of the same kind, before the widget itself receives it. @p event is that event,
    /// valid during the call only; whether it is accepted is decided after the signal.
    void MouseButtonPressed(QMouseEvent* event);
    void MouseButtonReleased(QMouseEvent* event);
    void MouseMoved(QMouseEvent* event);
    void MouseEntered();
    /// The misspelt names are the interface.
    void MouseLeaved();
    void MouseHoverMoved(QHoverEvent* event);
    void MouseHoverEntered(QHoverEvent* event);
    void MouseHoverLeaved(QHoverEvent* event);

private:
    /// Emits the signal of @p event, which is one of the eight.
    void report(QEvent* event);

    bool m_propagateEvents = true;
};

} // namespace Kestrel::Gui
