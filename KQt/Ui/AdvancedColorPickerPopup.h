#pragma once

#include <KQt/Ui/Export.h>

#include <QColor>
#include <QFrame>
#include <QList>
#include <QVector>

#include <memory>

QT_BEGIN_NAMESPACE
class QButtonGroup;
QT_END_NAMESPACE

namespace Kestrel::Gui {

class PickerButton;
class AdvancedColorPicker;
struct AdvancedColorPickerPopupForm;

namespace Detail {
class AdvancedColorPickerPopupInterface;
} // namespace Detail

/// The popup of AdvancedColorPicker: 120 fixed colours, 12 user colour slots, hexadecimal entry and opacity.
///
/// Palette colours can be dragged onto the user slots. The slots are the same in every popup of the process and are not
/// kept beyond it. The popup window is frameless and has a fixed, light look.
class KQTUI_EXPORT AdvancedColorPickerPopup : public QFrame
{
    Q_OBJECT

public:
    explicit AdvancedColorPickerPopup(QWidget* parent = nullptr);
    ~AdvancedColorPickerPopup() override;

    /// The current colour with its alpha.
    QColor color() const;
    /// Shows @p c and checks the swatch that has it; emits no signal. A user slot that is checked takes the colour. The
    /// alpha becomes a whole percentage where that moves the slider.
    void setColor(const QColor& c);

    /// Whether the opacity row is visible right now: always false while the popup is hidden.
    bool opacityAdjustmentAvailable() const;
    /// Shows or hides the opacity row and the percentage.
    void setOpacityAdjustmentAvailable(bool b);

Q_SIGNALS:
    /// The user chose a swatch, typed a colour or changed the opacity. A choice comes twice where another swatch was
    /// checked before: once for each of the two that change, both times with the new colour.
    void changedColor(const QColor& color);
    /// The popup is hidden; @p color is the colour it ended with.
    void hidedWithColor(const QColor& color);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void colorButtonChanged();
    void opacityChanged();
    void textColorChanged(const QString& text);
    void updateUserGeneratedColors();

private:
    friend class AdvancedColorPicker;
    friend class Detail::AdvancedColorPickerPopupInterface;

    void createPalette();
    void createUserSlots();
    void connectForm();

    void showUserGeneratedColors();
    void updateColorButtons();
    void updateColorEdit();
    void updateColorIndicator();
    void updateColoredWidgets();
    void updateCheckedUserSlot();
    double opacityValue() const;

    std::unique_ptr<AdvancedColorPickerPopupForm> m_form;
    QButtonGroup* m_colorButtons = nullptr;
    QList<PickerButton*> m_userColorButtons;
    QColor m_color;
    QWidget* m_picker = nullptr; // the picker that owns the popup, for assistive technology

    // One row of user colours for the whole process.
    static QVector<QColor> m_userGeneratedColors;
};

} // namespace Kestrel::Gui
