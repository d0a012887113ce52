#pragma once

#include <KQt/Ui/Accessibility/ButtonInterface.h>

#include <QColor>

namespace Kestrel::Gui {

class AdvancedColorPicker;
class RColorPicker;
class WidgetColorPickerButton;

namespace Detail {

/// A button that shows a colour. Where it opens a popup, the popup is its child: popups are not among the windows that
/// assistive technology finds below the application.
class ColorPickerInterface : public ButtonInterface
{
public:
    explicit ColorPickerInterface(AdvancedColorPicker* picker);
    explicit ColorPickerInterface(RColorPicker* picker);
    explicit ColorPickerInterface(WidgetColorPickerButton* picker);

    QAccessible::State state() const override;
    QStringList actionNames() const override;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

protected:
    /// Empty for an invalid colour.
    QString valueText() const override;

private:
    using ColorReader = QColor (*)(const QObject* picker);
    using PopupReader = QWidget* (*)(const QObject* picker);

    ColorPickerInterface(QAbstractButton* picker, ColorReader color, PopupReader popup);
    QWidget* popup() const;

    ColorReader m_color;
    PopupReader m_popup; // null where there is none
};

} // namespace Detail
} // namespace Kestrel::Gui
