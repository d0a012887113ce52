#include <KQt/Ui/CustomSliderWithZeroTick.h>

#include <QLinearGradient>
#include <QPainter>
#include <QScopeGuard>
#include <QStyleOptionSlider>

CustomSliderWithZeroTick::CustomSliderWithZeroTick(QWidget* parent)
    : QSlider(parent)
{
}

CustomSliderWithZeroTick::CustomSliderWithZeroTick(Qt::Orientation orientation, QWidget* parent)
    : QSlider(orientation, parent)
{
}

CustomSliderWithZeroTick::~CustomSliderWithZeroTick() = default;

QColor CustomSliderWithZeroTick::topTickEndColor() const
{
    return m_topTickEndColor;
}

void CustomSliderWithZeroTick::setTopTickEndColor(const QColor& color)
{
    m_topTickEndColor = color;
    update();
}

QColor CustomSliderWithZeroTick::bottomTickEndColor() const
{
    return m_bottomTickEndColor;
}

void CustomSliderWithZeroTick::setBottomTickEndColor(const QColor& color)
{
    m_bottomTickEndColor = color;
    update();
}

QColor CustomSliderWithZeroTick::centerTickColor() const
{
    return m_centerTickColor;
}

void CustomSliderWithZeroTick::setCenterTickColor(const QColor& color)
{
    m_centerTickColor = color;
    update();
}

int CustomSliderWithZeroTick::tickWidth() const
{
    return m_tickWidth;
}

void CustomSliderWithZeroTick::setTickWidth(int width)
{
    m_tickWidth = width;
    update();
}

int CustomSliderWithZeroTick::tickHeight() const
{
    return m_tickHeight;
}

void CustomSliderWithZeroTick::setTickHeight(int height)
{
    m_tickHeight = height;
    update();
}

void CustomSliderWithZeroTick::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    QStyleOptionSlider option;
    initStyleOption(&option);
    if (m_zeroPoint.isNull())
        rememberZero(option);
    if (m_zeroValue != noValue)
        followZero(option);

    option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderTickmarks;
    style()->drawComplexControl(QStyle::CC_Slider, &option, &painter, this);
    paintTick(painter);
    option.subControls = QStyle::SC_SliderHandle;
    option.activeSubControls = QStyle::SC_SliderHandle;
    style()->drawComplexControl(QStyle::CC_Slider, &option, &painter, this);
}

void CustomSliderWithZeroTick::initStyleOption(QStyleOptionSlider* option) const
{
    option->initFrom(this);
    option->orientation = orientation();
    option->minimum = minimum();
    option->maximum = maximum();
    option->tickPosition = tickPosition();
    option->tickInterval = tickInterval();
    option->upsideDown = false;
    option->direction = Qt::LeftToRight; // as QSlider: mirroring is a matter of upsideDown alone
    option->sliderPosition = sliderPosition();
    option->sliderValue = value();
    option->singleStep = singleStep();
    option->pageStep = pageStep();
    option->subControls = QStyle::SC_None;
    option->activeSubControls = QStyle::SC_None;
    if (orientation() == Qt::Horizontal)
        option->state |= QStyle::State_Horizontal;
}

QPointF CustomSliderWithZeroTick::handleCenter(const QStyleOptionSlider& option) const
{
    return style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this).center();
}

void CustomSliderWithZeroTick::rememberZero(const QStyleOptionSlider& option)
{
    m_zeroPoint = handleCenter(option);
    m_zeroValue = value();
}

void CustomSliderWithZeroTick::followZero(QStyleOptionSlider& option)
{
    const QString styleSheetBefore = styleSheet();
    option.sliderPosition = m_zeroValue;
    option.sliderValue = m_zeroValue;
    option.subControls = QStyle::SC_SliderHandle;
    option.activeSubControls = QStyle::SC_SliderHandle;
    m_zeroPoint = handleCenter(option);
    option = QStyleOptionSlider();
    initStyleOption(&option);
    writeStyleSheetBack(styleSheetBefore);
}

void CustomSliderWithZeroTick::writeStyleSheetBack(const QString& styleSheet)
{
    // Setting a style sheet polishes the slider and asks for a repaint. Inside paintEvent() that would never end, so
    // the request is dropped; what has just been polished is about to be painted anyway. The attribute and not
    // setUpdatesEnabled(), which asks for a repaint of its own.
    const bool updatesWereDisabled = testAttribute(Qt::WA_UpdatesDisabled);
    setAttribute(Qt::WA_UpdatesDisabled);
    const auto allowed = qScopeGuard([&] { setAttribute(Qt::WA_UpdatesDisabled, updatesWereDisabled); });
    setStyleSheet(styleSheet);
}

void CustomSliderWithZeroTick::paintTick(QPainter& painter) const
{
    const int half = m_tickHeight / 2;
    const QPointF top(m_zeroPoint.x(), m_zeroPoint.y() - half);
    const QPointF bottom(m_zeroPoint.x(), m_zeroPoint.y() + half);
    QLinearGradient gradient(top, bottom);
    gradient.setColorAt(0.0, m_topTickEndColor);
    gradient.setColorAt(0.5, m_centerTickColor);
    gradient.setColorAt(1.0, m_bottomTickEndColor);
    painter.setPen(QPen(QBrush(gradient), m_tickWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.drawLine(top, bottom);
}
