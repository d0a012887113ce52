#pragma once

#include <KQt/Ui/Export.h>

#include <QColor>
#include <QToolButton>

#include <memory>

namespace Kestrel::Gui {

class AdvancedColorPickerPopup;

namespace Detail {
class AdvancedColorPickerPopupInterface;
} // namespace Detail

/// A button that shows a colour as its background and opens a popup to choose another one.
///
/// The colour is invalid until it is set. The popup, an AdvancedColorPickerPopup, is a window of its own that the
/// picker owns. Choosing emits colorSelectionStarted(), then changedColor() for each change, then
/// doneSelectionWithColor() when the popup hides.
///
/// Under Wayland the compositor has the last word on where the popup lies, and takes one that the program opens before
/// the user has pressed anything for an ordinary window.
class KQTUI_EXPORT AdvancedColorPicker : public QToolButton
{
    Q_OBJECT
    // clazy:excludeall=qproperty-without-notify
    Q_PROPERTY(bool opacityAdjustmentAvailable READ opacityAdjustmentAvailable WRITE setOpacityAdjustmentAvailable)

public:
    explicit AdvancedColorPicker(QWidget* parent = nullptr);
    /// Deletes the popup; where that is just emitting a signal, as soon as control is back in the event loop.
    ~AdvancedColorPicker() override;

    QColor color() const;
    /// Shows @p c on the button and in the popup; emits nothing. An invalid colour is allowed.
    void setColor(const QColor& c);

    /// Whether the popup's opacity row is visible right now: always false while the popup is hidden.
    bool opacityAdjustmentAvailable() const;
    /// Shows or hides the popup's opacity row and percentage, on by default, and fits the popup to what is left.
    void setOpacityAdjustmentAvailable(bool b);

Q_SIGNALS:
    /// The user changed the colour in the open popup.
    void changedColor(const QColor& color);
    /// The popup is about to open.
    void colorSelectionStarted();
    /// The popup was hidden, by the user or by hiding the picker; @p color is the colour it ended with.
    void doneSelectionWithColor(const QColor& color);

public Q_SLOTS:
    /// Opens the popup directly below the button, right edges in line. It is not kept inside the screen.
    void showPopup();
    /// Opens the popup with its top right corner at @p p, in the button's coordinates.
    void showPopup(const QPoint& p);

private Q_SLOTS:
    void colorChanged(const QColor& c);

protected:
    void paintEvent(QPaintEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    friend class Detail::AdvancedColorPickerPopupInterface;

    void finishSelection(const QColor& c);
    bool startSelection();
    void openPopupAt(const QPoint& topLeft);

    std::unique_ptr<AdvancedColorPickerPopup> m_popup;
    QColor m_color;
    // How many signals of the popup are being answered; while there is one, the popup must not be deleted.
    int m_popupCalls = 0;
};

} // namespace Kestrel::Gui
