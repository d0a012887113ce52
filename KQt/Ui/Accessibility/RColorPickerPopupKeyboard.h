#pragma once

#include <QObject>

QT_BEGIN_NAMESPACE
class QKeyEvent;
QT_END_NAMESPACE

namespace Kestrel::Gui {

class RColorPickerPopup;

namespace Detail {

/// Lets the popup of RColorPicker be used by keyboard: an event filter of the popup, owned by it but not its child.
///
/// Arrow keys move a frame from item to item; Home and End go to the first and the last one; Return, Enter and Space
/// choose as a press of the mouse does. The first of the keys that move shows the frame on the picker's colour, or on
/// "Default" where the palette has no such colour; pressing the mouse and hiding the popup take it away. The keys
/// handled, their ShortcutOverride, and painting while there is a frame are consumed. Escape is left to the popup,
/// whose window type closes it.
class RColorPickerPopupKeyboard : public QObject
{
    Q_OBJECT

public:
    explicit RColorPickerPopupKeyboard(RColorPickerPopup* popup);
    ~RColorPickerPopupKeyboard() override;

    static RColorPickerPopupKeyboard& of(const RColorPickerPopup& popup);

    /// The item with the frame, numbered as in RColorPickerPopupLayout.h; noItem where there is no frame.
    int item() const;
    void moveTo(int item);

    /// Chooses an item of a popup that is open, as a press of the mouse does.
    void choose(int item);

    bool eventFilter(QObject* watched, QEvent* event) override;

    static constexpr int noItem = -1;

private:
    bool pressKey(const QKeyEvent& event);
    int itemOfCurrentColor() const;
    int itemTowards(int key) const;
    void paintFrame();

    RColorPickerPopup* m_popup;
    int m_item = noItem;
    int m_column = 0; // where Up and Down go on behind a button, which is as wide as all columns
    bool m_choosing = false;
};

} // namespace Detail
} // namespace Kestrel::Gui
