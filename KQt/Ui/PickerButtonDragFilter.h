#pragma once

#include <QObject>
#include <QPoint>

QT_BEGIN_NAMESPACE
class QMouseEvent;
QT_END_NAMESPACE

namespace Kestrel::Gui {

class PickerButton;

/// Lets the colour of each PickerButton that it is installed on be dragged away with the left button.
///
/// Looks at mouse presses, moves and releases and consumes none of them: a click still checks the swatch. A move far
/// enough from the press runs the drag, which blocks until the drop. Other objects' events pass untouched.
class PickerButtonDragFilter : public QObject
{
    Q_OBJECT

public:
    explicit PickerButtonDragFilter(QObject* parent = nullptr);
    /// Cancels a drag that is still running.
    ~PickerButtonDragFilter() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Both say whether the event ends here.
    bool handleMouse(PickerButton* swatch, QMouseEvent* event);
    bool dragWhenFarEnough(PickerButton* swatch, QMouseEvent* event);
    void runDrag(PickerButton* swatch);

    // One mouse, one drag: all filters of the process share where it started.
    static QPoint m_dragStartPosition;
};

} // namespace Kestrel::Gui
