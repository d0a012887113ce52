#include <KQt/Ui/CustomSliderWithZeroTick.h>

#include "support/Render.h"

#include <QMetaProperty>
#include <QPainter>
#include <QStyleOptionSlider>

#include <QtTest>

using TestSupport::render;

namespace {

constexpr QSize sliderSize(200, 30);
const char* const styleSheetWithTick = "CustomSliderWithZeroTick { qproperty-tickWidth: 3; qproperty-tickHeight: 16;"
                                       " qproperty-topTickEndColor: #ff0000; qproperty-centerTickColor: #00ff00;"
                                       " qproperty-bottomTickEndColor: #0000ff; }";

void setTick(CustomSliderWithZeroTick& slider)
{
    slider.setProperty("topTickEndColor", QColor(Qt::red));
    slider.setProperty("centerTickColor", QColor(Qt::green));
    slider.setProperty("bottomTickEndColor", QColor(Qt::blue));
    slider.setProperty("tickWidth", 3);
    slider.setProperty("tickHeight", 16);
}

QStyleOptionSlider optionFor(const QSlider& slider, int value)
{
    QStyleOptionSlider option;
    option.initFrom(&slider);
    option.orientation = slider.orientation();
    option.minimum = slider.minimum();
    option.maximum = slider.maximum();
    option.tickPosition = slider.tickPosition();
    option.tickInterval = slider.tickInterval();
    option.upsideDown = false;
    option.direction = Qt::LeftToRight;
    option.sliderPosition = value;
    option.sliderValue = value;
    option.singleStep = slider.singleStep();
    option.pageStep = slider.pageStep();
    if (slider.orientation() == Qt::Horizontal)
        option.state |= QStyle::State_Horizontal;
    return option;
}

QPoint handleCenter(const QSlider& slider, int value)
{
    QStyleOptionSlider option = optionFor(slider, value);
    option.subControls = QStyle::SC_SliderHandle;
    option.activeSubControls = QStyle::SC_SliderHandle;
    return slider.style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider).center();
}

/// The ends of the gradient are a little mixed with its middle.
bool isTickEnd(const QColor& pixel, const QColor& end)
{
    return qAbs(pixel.red() - end.red()) < 40 && qAbs(pixel.blue() - end.blue()) < 40;
}

/// Paints as the slider under test should, on a slider of its own.
class ReferenceSlider : public QSlider
{
public:
    ReferenceSlider(Qt::Orientation orientation, int zero)
        : QSlider(orientation)
        , m_zero(zero)
    {
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        QStyleOptionSlider option = optionFor(*this, value());
        option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderTickmarks;
        style()->drawComplexControl(QStyle::CC_Slider, &option, &painter, this);

        const QPoint zero = handleCenter(*this, m_zero);
        QLinearGradient gradient(zero.x(), zero.y() - 8, zero.x(), zero.y() + 8);
        gradient.setStops({{0.0, Qt::red}, {0.5, Qt::green}, {1.0, Qt::blue}});
        painter.setPen(QPen(QBrush(gradient), 3, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        painter.drawLine(QPointF(zero.x(), zero.y() - 8), QPointF(zero.x(), zero.y() + 8));

        option.subControls = QStyle::SC_SliderHandle;
        option.activeSubControls = QStyle::SC_SliderHandle;
        style()->drawComplexControl(QStyle::CC_Slider, &option, &painter, this);
    }

private:
    int m_zero;
};

class EventCounter : public QObject
{
public:
    explicit EventCounter(QObject* watched) { watched->installEventFilter(this); }

    int paints = 0;
    int styleChanges = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint;
        styleChanges += event->type() == QEvent::StyleChange;
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

class tst_CustomSliderWithZeroTick : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void defaults();
    void orientations();
    void paintsGrooveTickAndHandle_data();
    void paintsGrooveTickAndHandle();
    void firstPaintedValueIsTheZero();
    void withoutPropertiesTheTickIsOnePixel();
    void tickFollowsResizes();
    void neverPaintsUpsideDown();
    void setByStyleSheet();
    void writesTheStyleSheetBackOnEveryPainting();
    void doesNotRepaintForEver();
    void keepsSwitchedOffUpdates();
};

void tst_CustomSliderWithZeroTick::metaObject()
{
    const QMetaObject& meta = CustomSliderWithZeroTick::staticMetaObject;
    QCOMPARE(meta.className(), "CustomSliderWithZeroTick"); // global, where style sheets look for it
    QStringList names;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        names << QString::fromLatin1(property.name()) + QLatin1Char(' ') + QString::fromLatin1(property.typeName());
        QVERIFY(property.isReadable() && property.isWritable() && !property.hasNotifySignal());
    }
    QCOMPARE(names, (QStringList{QStringLiteral("topTickEndColor QColor"), QStringLiteral("bottomTickEndColor QColor"),
                                 QStringLiteral("centerTickColor QColor"), QStringLiteral("tickWidth int"),
                                 QStringLiteral("tickHeight int")}));
    QCOMPARE(meta.methodCount(), meta.methodOffset());
}

void tst_CustomSliderWithZeroTick::defaults()
{
    CustomSliderWithZeroTick slider;
    QVERIFY(!slider.topTickEndColor().isValid());
    QVERIFY(!slider.bottomTickEndColor().isValid());
    QVERIFY(!slider.centerTickColor().isValid());
    QCOMPARE(slider.tickWidth(), 0);
    QCOMPARE(slider.tickHeight(), 0);
    setTick(slider);
    QCOMPARE(slider.topTickEndColor(), QColor(Qt::red));
    QCOMPARE(slider.bottomTickEndColor(), QColor(Qt::blue));
    QCOMPARE(slider.centerTickColor(), QColor(Qt::green));
    QCOMPARE(slider.tickWidth(), 3);
    QCOMPARE(slider.tickHeight(), 16);
}

void tst_CustomSliderWithZeroTick::orientations()
{
    QWidget parent;
    QCOMPARE(CustomSliderWithZeroTick(&parent).orientation(), QSlider().orientation());
    QCOMPARE(CustomSliderWithZeroTick(Qt::Horizontal, &parent).orientation(), Qt::Horizontal);
    QCOMPARE(CustomSliderWithZeroTick(Qt::Vertical).orientation(), Qt::Vertical);
}

void tst_CustomSliderWithZeroTick::paintsGrooveTickAndHandle_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<int>("value");
    QTest::addColumn<QSlider::TickPosition>("ticks");
    QTest::newRow("horizontal, on the zero") << Qt::Horizontal << 40 << QSlider::NoTicks;
    QTest::newRow("horizontal, beside the zero") << Qt::Horizontal << 90 << QSlider::NoTicks;
    QTest::newRow("horizontal, tick marks") << Qt::Horizontal << 10 << QSlider::TicksBelow;
    QTest::newRow("vertical") << Qt::Vertical << 90 << QSlider::NoTicks;
}

void tst_CustomSliderWithZeroTick::paintsGrooveTickAndHandle()
{
    QFETCH(Qt::Orientation, orientation);
    QFETCH(int, value);
    QFETCH(QSlider::TickPosition, ticks);
    const QSize size = orientation == Qt::Horizontal ? sliderSize : sliderSize.transposed();
    CustomSliderWithZeroTick slider(orientation);
    setTick(slider);
    slider.setValue(40);
    slider.setTickPosition(ticks);
    slider.resize(size);
    render(slider);
    slider.setValue(value);

    ReferenceSlider reference(orientation, 40);
    reference.setValue(value);
    reference.setTickPosition(ticks);
    reference.resize(size);
    QCOMPARE(render(slider), render(reference));
}

void tst_CustomSliderWithZeroTick::firstPaintedValueIsTheZero()
{
    CustomSliderWithZeroTick slider(Qt::Horizontal);
    setTick(slider);
    slider.resize(sliderSize);
    slider.setValue(20);
    slider.setValue(70);
    render(slider);
    for (int value : {0, 99, 20}) {
        slider.setValue(value);
        const QImage image = render(slider);
        const QPoint zero = handleCenter(slider, 70);
        QVERIFY(isTickEnd(image.pixelColor(zero.x(), zero.y() - 8), Qt::red));
        QVERIFY(isTickEnd(image.pixelColor(zero.x(), zero.y() + 8), Qt::blue));
    }
}

void tst_CustomSliderWithZeroTick::withoutPropertiesTheTickIsOnePixel()
{
    // A pen of width 0 is as thin as a line gets, and colours that are not set are black.
    CustomSliderWithZeroTick slider(Qt::Horizontal);
    QSlider plain(Qt::Horizontal);
    plain.setLayoutDirection(Qt::LeftToRight); // or it would be mirrored
    for (QSlider* each : {static_cast<QSlider*>(&slider), &plain})
        each->resize(sliderSize);
    slider.setValue(20);
    render(slider);
    for (QSlider* each : {static_cast<QSlider*>(&slider), &plain})
        each->setValue(90);
    QImage expected = render(plain);
    expected.setPixelColor(handleCenter(slider, 20), Qt::black);
    QCOMPARE(render(slider), expected);
}

void tst_CustomSliderWithZeroTick::tickFollowsResizes()
{
    CustomSliderWithZeroTick slider(Qt::Horizontal);
    setTick(slider);
    slider.resize(sliderSize);
    slider.setValue(70);
    render(slider);
    slider.setValue(0);
    slider.resize(400, 30);
    const QImage image = render(slider);
    const QPoint zero = handleCenter(slider, 70);
    QVERIFY(zero.x() > 200);
    QVERIFY(isTickEnd(image.pixelColor(zero.x(), zero.y() - 8), Qt::red));
}

void tst_CustomSliderWithZeroTick::neverPaintsUpsideDown()
{
    // QSlider mirrors these two; this slider does not, so that its zero stays where the scale of the form has it.
    CustomSliderWithZeroTick slider(Qt::Horizontal);
    setTick(slider);
    slider.resize(sliderSize);
    slider.setValue(20);
    const QImage ordinary = render(slider);
    slider.setInvertedAppearance(true);
    QCOMPARE(render(slider), ordinary);
    slider.setInvertedAppearance(false);
    slider.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(render(slider), ordinary);
}

void tst_CustomSliderWithZeroTick::setByStyleSheet()
{
    CustomSliderWithZeroTick slider(Qt::Horizontal);
    slider.setStyleSheet(QString::fromLatin1(styleSheetWithTick));
    slider.resize(sliderSize);
    slider.setValue(50);
    render(slider);
    QCOMPARE(slider.tickWidth(), 3);
    QCOMPARE(slider.tickHeight(), 16);
    QCOMPARE(slider.centerTickColor(), QColor(Qt::green));
    slider.setValue(0);
    const QImage image = render(slider);
    const QPoint zero = handleCenter(slider, 50);
    QVERIFY(isTickEnd(image.pixelColor(zero.x(), zero.y() - 8), Qt::red));
}

void tst_CustomSliderWithZeroTick::writesTheStyleSheetBackOnEveryPainting()
{
    CustomSliderWithZeroTick slider(Qt::Horizontal);
    slider.setStyleSheet(QString::fromLatin1(styleSheetWithTick));
    slider.resize(sliderSize);
    render(slider);
    const EventCounter counter(&slider);
    // The look of the product family relies on the polishing that this brings with it.
    for (int i = 1; i <= 3; ++i) {
        render(slider);
        QCOMPARE(counter.styleChanges, i);
        QCOMPARE(slider.styleSheet(), QString::fromLatin1(styleSheetWithTick));
    }
}

void tst_CustomSliderWithZeroTick::doesNotRepaintForEver()
{
    CustomSliderWithZeroTick slider(Qt::Horizontal);
    slider.setStyleSheet(QString::fromLatin1(styleSheetWithTick));
    slider.resize(sliderSize);
    slider.show();
    QVERIFY(QTest::qWaitForWindowExposed(&slider));
    QCoreApplication::processEvents();
    const EventCounter counter(&slider);
    slider.update();
    QTRY_COMPARE(counter.paints, 1);
    for (int i = 0; i < 100; ++i) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    QCOMPARE(counter.paints, 1);
    QVERIFY(slider.updatesEnabled());
    slider.setValue(50);
    QTRY_COMPARE(counter.paints, 2);
}

void tst_CustomSliderWithZeroTick::keepsSwitchedOffUpdates()
{
    CustomSliderWithZeroTick slider(Qt::Horizontal);
    slider.setStyleSheet(QString::fromLatin1(styleSheetWithTick));
    slider.resize(sliderSize);
    slider.setUpdatesEnabled(false);
    render(slider);
    QVERIFY(!slider.updatesEnabled());
}

QTEST_MAIN(tst_CustomSliderWithZeroTick)
#include "tst_CustomSliderWithZeroTick.moc"
