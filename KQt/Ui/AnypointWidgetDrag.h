#pragma once

#include <KQt/Ui/Export.h>

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QWidget>

namespace Kestrel::Gui {

/// Lets the user move a widget by pressing and dragging any point of it, and tells a click from a drag.
///
/// Install it as event filter on the objects whose mouse events move the widget: the widget itself, or children of it.
/// The widget follows the cursor from the first pixel on. Once the cursor is 11 pixels away from the press in either
/// direction the gesture is a drag: its release is consumed, so that it is no click as well. All other events pass.
/// Mouse buttons are not told apart. A widget that has been deleted is not moved any more.
///
/// Wayland does not let applications place their windows: there a window stays where it is, whatever its pos() says.
/// Widgets inside windows are moved as everywhere.
class KQTUI_EXPORT AnypointWidgetDrag : public QObject
{
    Q_OBJECT

public:
    /// @param widget is moved in its parent's coordinates, a window on the screen; not owned.
    explicit AnypointWidgetDrag(QWidget* widget, QObject* parent = nullptr);
    ~AnypointWidgetDrag() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    // A subclass may drive the gesture with these; positions are global.
    void StartDrag(const QPoint& globalPos);
    void ProcessDrag(const QPoint& globalPos);
    /// @return whether the gesture that ends was a drag.
    bool StopDrag();

private:
    QPointer<QWidget> m_widget;
    QPoint m_pressPosition;
    QPoint m_offset; // from the widget's position to the press
    bool m_isClick = true;
    bool m_dragging = false;
};

} // namespace Kestrel::Gui
