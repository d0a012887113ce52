#pragma once

#include <KQt/Ui/Export.h>

#include <QColor>
#include <QObject>
#include <QPointer>

QT_BEGIN_NAMESPACE
class QAbstractSlider;
QT_END_NAMESPACE

namespace Kestrel::Gui {

class RColorPicker;

/// Ties a named-palette picker and a slider together: the picker gives the colour, the slider its opacity.
///
/// Opacity is the slider's value divided by its maximum. Picker and slider belong to the application. Once one of them
/// is gone the adapter returns an invalid colour, ignores setColor() and emits nothing more.
class KQTUI_EXPORT ColorPickerOpacityAdapter : public QObject
{
    Q_OBJECT

public:
    ColorPickerOpacityAdapter(RColorPicker* picker, QAbstractSlider* slider, QObject* parent = nullptr);
    ~ColorPickerOpacityAdapter() override;

    /// The picker's colour with the slider's opacity, kept within 0..1; opaque where the slider's maximum is 0.
    QColor color();

public Q_SLOTS:
    /// Gives the picker the opaque colour and the slider its opacity, truncated to a whole value of the slider: half of
    /// a maximum of 255 is 127. Emits colorChanged() once. Calls from a slot of that signal's user changes are ignored.
    void setColor(QColor color);

Q_SIGNALS:
    /// The user chose a colour or moved the slider, or setColor() was called.
    void colorChanged(QColor color);

private Q_SLOTS:
    void onColorUpdated();

private:
    QPointer<RColorPicker> m_picker;
    QPointer<QAbstractSlider> m_slider;
    bool m_updating = false;
};

} // namespace Kestrel::Gui
