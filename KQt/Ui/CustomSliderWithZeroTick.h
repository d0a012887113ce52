#pragma once

#include <KQt/Ui/Export.h>

#include <QColor>
#include <QPointF>
#include <QSlider>

#include <limits>

QT_BEGIN_NAMESPACE
class QStyleOptionSlider;
QT_END_NAMESPACE

/// A slider that marks one value, its zero, with a short vertical line beneath the handle.
///
/// The value at the first painting becomes the zero; the line follows it when the slider is resized. The line has a
/// gradient of three colours and a size in pixels, all set through the properties, for example by a style sheet
/// (`qproperty-tickWidth: 2;`). Without them it is a single black pixel.
///
/// The class lives in the global namespace, where style sheets and forms expect it. It never paints upside down:
/// inverted appearance and right-to-left layouts do not mirror it.
class KQTUI_EXPORT CustomSliderWithZeroTick : public QSlider
{
    Q_OBJECT
    // clazy:excludeall=qproperty-without-notify
    Q_PROPERTY(QColor topTickEndColor READ topTickEndColor WRITE setTopTickEndColor)
    Q_PROPERTY(QColor bottomTickEndColor READ bottomTickEndColor WRITE setBottomTickEndColor)
    Q_PROPERTY(QColor centerTickColor READ centerTickColor WRITE setCenterTickColor)
    Q_PROPERTY(int tickWidth READ tickWidth WRITE setTickWidth)
    Q_PROPERTY(int tickHeight READ tickHeight WRITE setTickHeight)

public:
    explicit CustomSliderWithZeroTick(QWidget* parent = nullptr);
    explicit CustomSliderWithZeroTick(Qt::Orientation orientation, QWidget* parent = nullptr);
    ~CustomSliderWithZeroTick() override;

    QColor topTickEndColor() const;
    QColor bottomTickEndColor() const;
    QColor centerTickColor() const;
    /// Pixels.
    int tickWidth() const;
    int tickHeight() const;

protected:
    /// As QSlider's, but never upside down.
    void initStyleOption(QStyleOptionSlider* option) const;
    void paintEvent(QPaintEvent* event) override;

private:
    static constexpr int noValue = std::numeric_limits<int>::max();

    void setTopTickEndColor(const QColor& color);
    void setBottomTickEndColor(const QColor& color);
    void setCenterTickColor(const QColor& color);
    void setTickWidth(int width);
    void setTickHeight(int height);

    QPointF handleCenter(const QStyleOptionSlider& option) const;
    void rememberZero(const QStyleOptionSlider& option);
    void followZero(QStyleOptionSlider& option);
    void writeStyleSheetBack(const QString& styleSheet);
    void paintTick(QPainter& painter) const;

    QColor m_topTickEndColor;
    QColor m_bottomTickEndColor;
    QColor m_centerTickColor;
    int m_tickWidth = 0;
    int m_tickHeight = 0;
    QPointF m_zeroPoint;
    int m_zeroValue = noValue;
};
