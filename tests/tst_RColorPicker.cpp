#include <KQt/Ui/RColorPicker.h>
#include <KQt/Ui/RColorPickerPopup.h>

#include "support/Render.h"

#include <QMetaProperty>
#include <QSignalSpy>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QVBoxLayout>

#include <QtTest>

#include <memory>

using Kestrel::Gui::RColorPicker;
using Kestrel::Gui::RColorPickerPopup;
using TestSupport::render;

namespace {

class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget* watched) { watched->installEventFilter(this); }

    int paints = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }
};

/// What a style draws for a push button that is neither raised nor pressed and says nothing.
class PlainButton : public QPushButton
{
protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QStyleOptionButton option;
        option.initFrom(this);
        QStylePainter(this).drawControl(QStyle::CE_PushButton, option);
    }
};

} // namespace

class tst_RColorPicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void metaObject();
    void propertiesReadBack();
    void popupIsAChildNamedForTheConnections();
    void setColorStylesByObjectName();
    void setColorEmitsNothing();
    void uncolorizedKeepsItsLook();
    void setColorRepaintsAtOnce();
    void showPopupAlignsRightEdgesBelow();
    void clickOpensThePopup();
    void pressedFollowsThePopup();
    void selectionSetsColorThenClosesThenEmits();
    void selectionOfTheSameColorIsReported();
    void defaultColorReachesThePopup();
    void paintsAPlainButtonWithoutText();
    void deletedFromChangedColor();
};

void tst_RColorPicker::defaults()
{
    RColorPicker picker;
    QCOMPARE(picker.color(), QColor(Qt::transparent));
    QCOMPARE(picker.DefaultColor(), QColor(Qt::yellow));
    QCOMPARE(picker.ColorBoxWidth(), 15);
    QCOMPARE(picker.ColorBoxHeight(), 10);
    QCOMPARE(picker.ColorBoxBorderColor(), QColor(Qt::black));
    QVERIFY(picker.Colorized());
    // The name of a colour has no alpha: transparent reads as black.
    QCOMPARE(picker.styleSheet(), QStringLiteral("#{background-color: #000000;}"));
}

void tst_RColorPicker::metaObject()
{
    const QMetaObject& meta = RColorPicker::staticMetaObject;
    QCOMPARE(meta.className(), "Kestrel::Gui::RColorPicker");
    QCOMPARE(meta.superClass(), &QPushButton::staticMetaObject);
    QStringList names;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        names << QString::fromLatin1(property.name()) + QLatin1Char(' ') + QString::fromLatin1(property.typeName());
        QVERIFY(property.isReadable() && property.isWritable() && property.isDesignable() && property.isScriptable() &&
                property.isStored() && !property.hasNotifySignal());
    }
    QCOMPARE(names, (QStringList{QStringLiteral("ColorBoxWidth int"), QStringLiteral("ColorBoxHeight int"),
                                 QStringLiteral("ColorBoxBorderColor QColor"), QStringLiteral("DefaultColor QColor"),
                                 QStringLiteral("Colorized bool")}));
    QList<QByteArray> methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods << meta.method(i).methodSignature();
    QCOMPARE(methods, (QList<QByteArray>{"changedColor(QColor)", "on_popup_selected(QColor)", "on_popup_closed()",
                                         "showPopup()"}));
}

void tst_RColorPicker::propertiesReadBack()
{
    RColorPicker picker;
    // The setters' capital letters are mixed on purpose: they are the names that applications call.
    picker.SetColorBoxWidth(3);
    picker.SetColorBoxHeight(4);
    picker.SetColorBoxBorderColor(Qt::red);
    picker.setDefaultColor(Qt::green);
    picker.SetColorized(false);
    QCOMPARE(picker.property("ColorBoxWidth").toInt(), 3);
    QCOMPARE(picker.property("ColorBoxHeight").toInt(), 4);
    QCOMPARE(picker.property("ColorBoxBorderColor").value<QColor>(), QColor(Qt::red));
    QCOMPARE(picker.property("DefaultColor").value<QColor>(), QColor(Qt::green));
    QCOMPARE(picker.property("Colorized").toBool(), false);
}

void tst_RColorPicker::popupIsAChildNamedForTheConnections()
{
    RColorPicker picker;
    auto* popup = picker.findChild<RColorPickerPopup*>(QStringLiteral("popup"), Qt::FindDirectChildrenOnly);
    QVERIFY(popup);
    QCOMPARE(&picker.GetPickerPopup(), popup);
    QCOMPARE(popup->frameShape(), QFrame::StyledPanel);
    QCOMPARE(popup->frameShadow(), QFrame::Plain);
    QVERIFY(popup->isWindow());
}

void tst_RColorPicker::setColorStylesByObjectName()
{
    RColorPicker picker;
    picker.setObjectName(QStringLiteral("lineColor"));
    picker.setColor(QColor(1, 2, 3, 40));
    QCOMPARE(picker.color(), QColor(1, 2, 3, 40));
    QCOMPARE(picker.styleSheet(), QStringLiteral("#lineColor{background-color: #010203;}"));
    PlainButton plain;
    plain.setObjectName(picker.objectName());
    plain.setStyleSheet(picker.styleSheet());
    for (QPushButton* button : {static_cast<QPushButton*>(&plain), static_cast<QPushButton*>(&picker)})
        button->resize(40, 20);
    QCOMPARE(render(picker), render(plain));

    // A name that looks like a place marker is a name.
    picker.setObjectName(QStringLiteral("a%2"));
    picker.setColor(Qt::red);
    QCOMPARE(picker.styleSheet(), QStringLiteral("#a%2{background-color: #ff0000;}"));
    picker.setStyleSheet(QString());
}

void tst_RColorPicker::setColorEmitsNothing()
{
    RColorPicker picker;
    QSignalSpy changed(&picker, &RColorPicker::changedColor);
    QSignalSpy selected(&picker.GetPickerPopup(), &RColorPickerPopup::selected);
    picker.setColor(Qt::red);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(selected.count(), 0);
}

void tst_RColorPicker::uncolorizedKeepsItsLook()
{
    RColorPicker picker;
    picker.setObjectName(QStringLiteral("picker"));
    picker.setColor(Qt::red);
    const QString styled = picker.styleSheet();
    picker.SetColorized(false);
    QCOMPARE(picker.styleSheet(), styled);
    picker.setColor(Qt::blue);
    QCOMPARE(picker.color(), QColor(Qt::blue));
    QCOMPARE(picker.styleSheet(), styled);
}

void tst_RColorPicker::setColorRepaintsAtOnce()
{
    RColorPicker picker;
    picker.setObjectName(QStringLiteral("picker"));
    picker.show();
    QVERIFY(QTest::qWaitForWindowExposed(&picker));
    QCoreApplication::processEvents();
    PaintCounter counter(&picker);
    picker.setColor(Qt::red);
    QVERIFY(counter.paints >= 1); // before the event loop runs
    QCoreApplication::processEvents();

    picker.SetColorized(false);
    counter.paints = 0;
    picker.setColor(Qt::blue);
    QCoreApplication::processEvents();
    QCOMPARE(counter.paints, 0);
}

void tst_RColorPicker::showPopupAlignsRightEdgesBelow()
{
    QWidget window;
    window.resize(400, 300);
    RColorPicker picker(&window);
    picker.setGeometry(200, 50, 60, 25);
    window.move(100, 100);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    picker.showPopup();
    QVERIFY(picker.GetPickerPopup().isVisible());
    const QPoint position = picker.GetPickerPopup().pos();
    picker.GetPickerPopup().close();

    // What the platform makes of the position is its own business: a plain popup that is moved there ends up the same.
    QFrame reference(&picker, Qt::Popup);
    reference.resize(140, 145);
    reference.move(picker.mapToGlobal(QPoint(60 - 140, 25)));
    reference.show();
    QCOMPARE(position, reference.pos());
    reference.close();
}

void tst_RColorPicker::clickOpensThePopup()
{
    RColorPicker picker;
    QTest::mouseClick(&picker, Qt::LeftButton);
    QVERIFY(picker.GetPickerPopup().isVisible());
    picker.GetPickerPopup().hide();
}

void tst_RColorPicker::pressedFollowsThePopup()
{
    RColorPicker picker;
    picker.setObjectName(QStringLiteral("picker"));
    picker.SetColorized(false);
    picker.setStyleSheet(QStringLiteral("#picker{background-color: #00ff00; border: none}"
                                        "#picker[pressed=\"true\"]{background-color: #0000ff}"));
    picker.resize(40, 20);
    QCOMPARE(render(picker).pixelColor(20, 10), QColor(Qt::green));
    picker.showPopup();
    QCOMPARE(picker.property("pressed"), QVariant(true));
    QCOMPARE(render(picker).pixelColor(20, 10), QColor(Qt::blue));
    picker.GetPickerPopup().hide();
    QCOMPARE(picker.property("pressed"), QVariant(false));
    QCOMPARE(render(picker).pixelColor(20, 10), QColor(Qt::green));
    picker.on_popup_closed(); // a second time changes nothing
    QCOMPARE(picker.property("pressed"), QVariant(false));
}

void tst_RColorPicker::selectionSetsColorThenClosesThenEmits()
{
    RColorPicker picker;
    picker.showPopup();
    QSignalSpy changed(&picker, &RColorPicker::changedColor);
    QColor colorInSlot;
    QVariant pressedInSlot;
    connect(&picker, &RColorPicker::changedColor, this, [&] {
        colorInSlot = picker.color();
        pressedInSlot = picker.property("pressed");
    });
    Q_EMIT picker.GetPickerPopup().selected(QColor(5, 6, 7));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().value<QColor>(), QColor(5, 6, 7));
    QCOMPARE(colorInSlot, QColor(5, 6, 7));
    QCOMPARE(pressedInSlot, QVariant(false));
    picker.GetPickerPopup().hide();
}

void tst_RColorPicker::selectionOfTheSameColorIsReported()
{
    RColorPicker picker;
    picker.setColor(Qt::red);
    QSignalSpy changed(&picker, &RColorPicker::changedColor);
    Q_EMIT picker.GetPickerPopup().selected(Qt::red);
    QCOMPARE(changed.count(), 1);
}

void tst_RColorPicker::defaultColorReachesThePopup()
{
    for (const bool changed : {false, true}) {
        RColorPicker picker;
        if (changed)
            picker.setDefaultColor(Qt::darkCyan);
        picker.showPopup();
        QVERIFY(QTest::qWaitForWindowExposed(&picker.GetPickerPopup()));
        render(picker.GetPickerPopup());
        QTest::mousePress(&picker.GetPickerPopup(), Qt::LeftButton, {}, QPoint(70, 15));
        QCOMPARE(picker.color(), QColor(changed ? Qt::darkCyan : Qt::yellow));
    }
}

void tst_RColorPicker::paintsAPlainButtonWithoutText()
{
    RColorPicker picker;
    picker.setText(QStringLiteral("Text"));
    picker.resize(60, 24);
    const QImage withText = render(picker);
    picker.setText(QString());
    QCOMPARE(withText, render(picker));
}

void tst_RColorPicker::deletedFromChangedColor()
{
    auto picker = std::make_unique<RColorPicker>();
    picker->showPopup();
    RColorPickerPopup* popup = &picker->GetPickerPopup();
    QVERIFY(QTest::qWaitForWindowExposed(popup));
    render(*popup);
    connect(picker.get(), &RColorPicker::changedColor, this, [&picker] { picker.reset(); });
    QTest::mousePress(popup, Qt::LeftButton, {}, QPoint(70, 15));
    QVERIFY(!picker);
}

QTEST_MAIN(tst_RColorPicker)
#include "tst_RColorPicker.moc"
