#pragma once

#include <QColor>
#include <QWidget>

namespace Gallery {

/// A patch of a colour on a chequered ground, which shows through where the colour is translucent, and its value.
class ColorSwatch : public QWidget
{
    Q_OBJECT

public:
    explicit ColorSwatch(QWidget* parent = nullptr);

    QColor color() const { return m_color; }
    void setColor(const QColor& color);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRect patchRect() const;

    QColor m_color;
};

/// "#rrggbb, 40 %"; the percentage only where the colour is translucent.
QString colorText(const QColor& color);

} // namespace Gallery
