#pragma once

#include <KQt/Ui/Export.h>

#include <QColor>
#include <QPushButton>

namespace Kestrel::Gui {

class RColorPickerPopup;

/// A push button that shows a colour and opens a popup with 40 named colours, a default colour and a colour dialog.
///
/// The colour is shown by a style sheet that selects the picker by its object name: give the picker a name, or it keeps
/// the look of a plain button. While the popup is open the dynamic property "pressed" is true, for style sheets.
///
/// Under Wayland the compositor has the last word on where the popup lies, and takes one that the program opens before
/// the user has pressed anything for an ordinary window.
class KQTUI_EXPORT RColorPicker : public QPushButton
{
    Q_OBJECT
    // clazy:excludeall=qproperty-without-notify
    Q_PROPERTY(int ColorBoxWidth READ ColorBoxWidth WRITE SetColorBoxWidth)
    Q_PROPERTY(int ColorBoxHeight READ ColorBoxHeight WRITE SetColorBoxHeight)
    Q_PROPERTY(QColor ColorBoxBorderColor READ ColorBoxBorderColor WRITE SetColorBoxBorderColor)
    Q_PROPERTY(QColor DefaultColor READ DefaultColor WRITE setDefaultColor)
    Q_PROPERTY(bool Colorized READ Colorized WRITE SetColorized)

public:
    explicit RColorPicker(QWidget* parent = nullptr);
    ~RColorPicker() override;

    /// Transparent until a colour is set or chosen.
    QColor color() const;
    /// Also the colour that the popup's dialog starts with. Emits nothing.
    void setColor(QColor color);

    /// The three values of a colour box, in pixels and as a colour, are kept for style sheets and forms that set them;
    /// nothing is painted with them. 15, 10 and black at first.
    int ColorBoxWidth() const;
    void SetColorBoxWidth(int width);
    int ColorBoxHeight() const;
    void SetColorBoxHeight(int height);
    QColor ColorBoxBorderColor() const;
    void SetColorBoxBorderColor(QColor color);

    /// What the popup's "Default" button chooses; yellow at first.
    QColor DefaultColor() const;
    void setDefaultColor(QColor color);

    /// Whether setColor() styles the button; on at first. Switching does not restyle by itself.
    bool Colorized() const;
    void SetColorized(bool colorized);

    /// The popup, owned by the picker.
    RColorPickerPopup& GetPickerPopup() const;

Q_SIGNALS:
    /// The user chose a colour in the popup, the same one included. setColor() does not emit it.
    void changedColor(QColor color);

public Q_SLOTS:
    // The first two are connected by their names to the popup's signals.
    void on_popup_selected(QColor color); // clazy:exclude=connect-by-name
    void on_popup_closed();               // clazy:exclude=connect-by-name
    /// Opens the popup below the button, right edges aligned.
    void showPopup();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void setPressed(bool pressed);

    RColorPickerPopup* m_popup;
    QColor m_color = Qt::transparent;
    QColor m_defaultColor = Qt::yellow;
    int m_colorBoxWidth = 15;
    int m_colorBoxHeight = 10;
    QColor m_colorBoxBorderColor = Qt::black;
    bool m_colorized = true;
};

} // namespace Kestrel::Gui
