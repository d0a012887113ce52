#include <KQt/Ui/ColorPickerOpacityAdapter.h>
#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/RColorPickerPopup.h>

#include "support/WarningCatcher.h"

#include <QMetaMethod>
#include <QSignalSpy>
#include <QSlider>

#include <QtTest>

#include <memory>
#include <stdexcept>

using Kestrel::Gui::ColorPickerOpacityAdapter;
using Kestrel::Gui::RColorPicker;
using TestSupport::WarningCatcher;

namespace {

/// The user chooses @p color in the picker's popup.
void choose(RColorPicker& picker, const QColor& color)
{
    Q_EMIT picker.GetPickerPopup().selected(color);
}

struct Form
{
    std::unique_ptr<RColorPicker> picker = std::make_unique<RColorPicker>();
    std::unique_ptr<QSlider> slider = std::make_unique<QSlider>();
    ColorPickerOpacityAdapter adapter{picker.get(), slider.get(), nullptr};
    QSignalSpy changed{&adapter, &ColorPickerOpacityAdapter::colorChanged};

    explicit Form(int maximum) { slider->setMaximum(maximum); }
};

} // namespace

class tst_ColorPickerOpacityAdapter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void colorHasTheSlidersOpacity();
    void choosingReportsTheCombinedColor();
    void movingTheSliderReportsTheCombinedColor();
    void setColorTruncatesTheOpacity_data();
    void setColorTruncatesTheOpacity();
    void setColorReportsOnce();
    void setColorGivesThePickerTheOpaqueColor();
    void changesInsideTheSignalAreNotReportedAgain();
    void slotOfSetColorMaySetAnother();
    void throwingSlotLeavesTheAdapterUsable();
    void oddSliderRangesPrintNothing();
    void withoutPickerOrSlider();
    void deletedFromItsSignal();
};

void tst_ColorPickerOpacityAdapter::metaObject()
{
    const QMetaObject& meta = ColorPickerOpacityAdapter::staticMetaObject;
    QCOMPARE(meta.className(), "Kestrel::Gui::ColorPickerOpacityAdapter");
    QList<QByteArray> methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods << meta.method(i).methodSignature();
    QCOMPARE(methods, (QList<QByteArray>{"colorChanged(QColor)", "setColor(QColor)", "onColorUpdated()"}));
    QCOMPARE(meta.method(meta.methodOffset() + 1).access(), QMetaMethod::Public);
    QCOMPARE(meta.method(meta.methodOffset() + 2).access(), QMetaMethod::Private);
}

void tst_ColorPickerOpacityAdapter::colorHasTheSlidersOpacity()
{
    Form form(200);
    form.picker->setColor(Qt::red);
    form.slider->setValue(50);
    QColor expected(Qt::red);
    expected.setAlphaF(50.0 / 200.0);
    QCOMPARE(form.adapter.color(), expected);
}

void tst_ColorPickerOpacityAdapter::choosingReportsTheCombinedColor()
{
    Form form(100);
    form.slider->setValue(40);
    form.changed.clear();
    choose(*form.picker, Qt::green);
    QColor expected(Qt::green);
    expected.setAlphaF(0.4);
    QCOMPARE(form.changed.count(), 1);
    QCOMPARE(form.changed.first().first().value<QColor>(), expected);
}

void tst_ColorPickerOpacityAdapter::movingTheSliderReportsTheCombinedColor()
{
    Form form(100);
    form.picker->setColor(Qt::blue);
    QCOMPARE(form.changed.count(), 0); // the picker itself is silent
    form.slider->setValue(75);
    QColor expected(Qt::blue);
    expected.setAlphaF(0.75);
    QCOMPARE(form.changed.count(), 1);
    QCOMPARE(form.changed.first().first().value<QColor>(), expected);
}

void tst_ColorPickerOpacityAdapter::setColorTruncatesTheOpacity_data()
{
    QTest::addColumn<int>("maximum");
    QTest::addColumn<double>("alpha");
    // Truncated on purpose: an opacity never reads higher than it was asked for.
    QTest::newRow("half of 255") << 255 << 0.5;
    QTest::newRow("almost all") << 10 << 0.99;
    QTest::newRow("all") << 100 << 1.0;
    QTest::newRow("none") << 100 << 0.0;
    QTest::newRow("third") << 1000 << 1.0 / 3.0;
}

void tst_ColorPickerOpacityAdapter::setColorTruncatesTheOpacity()
{
    QFETCH(int, maximum);
    QFETCH(double, alpha);
    Form form(maximum);
    QColor color(Qt::red);
    color.setAlphaF(alpha);
    form.adapter.setColor(color);
    QCOMPARE(form.slider->value(), int(maximum * color.alphaF()));
    if (maximum == 255)
        QCOMPARE(form.slider->value(), 127);
    if (maximum == 10)
        QCOMPARE(form.slider->value(), 9);
}

void tst_ColorPickerOpacityAdapter::setColorReportsOnce()
{
    Form form(255);
    QColor color(Qt::red);
    color.setAlphaF(0.5);
    form.adapter.setColor(color);
    QCOMPARE(form.changed.count(), 1);
    QCOMPARE(form.changed.first().first().value<QColor>(), form.adapter.color());
    form.adapter.setColor(color);
    QCOMPARE(form.changed.count(), 2); // the same colour again is reported too
}

void tst_ColorPickerOpacityAdapter::setColorGivesThePickerTheOpaqueColor()
{
    Form form(255);
    form.adapter.setColor(QColor(1, 2, 3, 77));
    QCOMPARE(form.picker->color(), QColor(1, 2, 3));
}

void tst_ColorPickerOpacityAdapter::changesInsideTheSignalAreNotReportedAgain()
{
    Form form(100);
    connect(&form.adapter, &ColorPickerOpacityAdapter::colorChanged, this, [&form] {
        form.slider->setValue(form.slider->value() + 1);
        choose(*form.picker, Qt::darkRed);
        form.adapter.setColor(Qt::white);
    });
    choose(*form.picker, Qt::green);
    QCOMPARE(form.changed.count(), 1);
    QCOMPARE(form.slider->value(), 1);
    QCOMPARE(form.picker->color(), QColor(Qt::darkRed)); // setColor() was ignored, the user's choice was not
}

void tst_ColorPickerOpacityAdapter::slotOfSetColorMaySetAnother()
{
    Form form(100);
    bool first = true;
    connect(&form.adapter, &ColorPickerOpacityAdapter::colorChanged, this, [&] {
        if (!first)
            return;
        first = false;
        form.adapter.setColor(Qt::white);
    });
    form.adapter.setColor(Qt::red);
    QCOMPARE(form.picker->color(), QColor(Qt::white));
    QCOMPARE(form.changed.count(), 2);
}

void tst_ColorPickerOpacityAdapter::throwingSlotLeavesTheAdapterUsable()
{
    RColorPicker picker;
    QSlider slider;
    ColorPickerOpacityAdapter adapter(&picker, &slider);
    bool thrown = false;
    QMetaObject::Connection connection =
        connect(&adapter, &ColorPickerOpacityAdapter::colorChanged, this, [] { throw std::runtime_error("slot"); });
    try {
        QMetaObject::invokeMethod(&adapter, "onColorUpdated", Qt::DirectConnection);
    } catch (const std::runtime_error&) {
        thrown = true;
    }
    QVERIFY(thrown);
    disconnect(connection);
    QSignalSpy changed(&adapter, &ColorPickerOpacityAdapter::colorChanged);
    choose(picker, Qt::red);
    QCOMPARE(changed.count(), 1);
}

void tst_ColorPickerOpacityAdapter::oddSliderRangesPrintNothing()
{
    const WarningCatcher catcher;
    Form form(0);
    form.picker->setColor(Qt::red);
    QCOMPARE(form.adapter.color().alpha(), 255);
    form.slider->setRange(-50, 100);
    form.slider->setValue(-50);
    QCOMPARE(form.adapter.color().alpha(), 0);
    form.slider->setRange(-50, -10);
    form.slider->setValue(-50);
    QCOMPARE(form.adapter.color().alpha(), 255);
    QCOMPARE(catcher.warnings(), QStringList());
}

void tst_ColorPickerOpacityAdapter::withoutPickerOrSlider()
{
    for (const bool withoutPicker : {true, false}) {
        Form form(100);
        if (withoutPicker)
            form.picker.reset();
        else
            form.slider.reset();
        QVERIFY(!form.adapter.color().isValid());
        form.adapter.setColor(Qt::red);
        if (form.slider) {
            form.slider->setValue(3);
            QCOMPARE(form.slider->value(), 3);
        }
        if (form.picker)
            choose(*form.picker, Qt::green);
        QCOMPARE(form.changed.count(), 0);
    }
    ColorPickerOpacityAdapter empty(nullptr, nullptr, nullptr);
    QVERIFY(!empty.color().isValid());
    empty.setColor(Qt::red);
}

void tst_ColorPickerOpacityAdapter::deletedFromItsSignal()
{
    for (const bool bySetColor : {true, false}) {
        RColorPicker picker;
        QSlider slider;
        auto adapter = std::make_unique<ColorPickerOpacityAdapter>(&picker, &slider);
        connect(adapter.get(), &ColorPickerOpacityAdapter::colorChanged, this, [&adapter] { adapter.reset(); });
        if (bySetColor)
            adapter->setColor(Qt::red);
        else
            choose(picker, Qt::red);
        QVERIFY(!adapter);
    }
}

QTEST_MAIN(tst_ColorPickerOpacityAdapter)
#include "tst_ColorPickerOpacityAdapter.moc"
