#pragma once

#include <QColor>
#include <QToolButton>

namespace Kestrel::Gui {

/// A checkable swatch of the advanced colour popup: it paints its colour and nothing else.
///
/// Checked, it shows a ring of black dots around the colour. A translucent colour is painted as it is, over whatever
/// the widget's background is.
class PickerButton : public QToolButton
{
    Q_OBJECT

public:
    explicit PickerButton(const QColor& color, QWidget* parent = nullptr);
    ~PickerButton() override;

    QColor color() const;
    /// Stores and repaints; emits colorChanged() even where the colour stays the same. Callers that must stay silent
    /// block the button's signals around the call.
    void setColor(const QColor& color);

Q_SIGNALS:
    void colorChanged(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_color;
};

} // namespace Kestrel::Gui
