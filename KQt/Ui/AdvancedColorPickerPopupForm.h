#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QFrame;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QSlider;
class QSpinBox;
QT_END_NAMESPACE

namespace Kestrel::Gui {

/// The widgets and layouts of AdvancedColorPickerPopup except its swatches. Members are named like the objects, for the
/// style sheet refers to them. The popup owns what the record points to.
struct AdvancedColorPickerPopupForm
{
    /// Builds everything on @p popup, with texts and style sheet. The popup makes the connections.
    explicit AdvancedColorPickerPopupForm(QFrame* popup);

    /// Sets the texts in the current language.
    void retranslate();

    QGridLayout* gridLayout_2;
    QHBoxLayout* horizontalLayout;
    QLabel* colorIndicator;
    QLineEdit* colorEdit;
    QSpinBox* opacityEdit;
    QFrame* userSelectedColorsFrame;
    QHBoxLayout* userSelectedColors;
    QFrame* colorButtonsFrame;
    QGridLayout* colorButtonsLayout;
    QFrame* opacityFrame;
    QHBoxLayout* horizontalLayout_3;
    QLabel* label;
    QSlider* opacitySlider;
};

} // namespace Kestrel::Gui
