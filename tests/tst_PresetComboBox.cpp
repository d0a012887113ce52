#include <KQt/Ui/PresetComboBox.h>

#include "support/ComboBoxes.h"
#include "support/Render.h"

#include <QAbstractItemView>
#include <QIconEngine>

#include <QtTest>

using Kestrel::Gui::PresetComboBox;
using TestSupport::editFieldOf;
using TestSupport::elidedTo;
using TestSupport::ReferenceComboBox;
using TestSupport::render;

namespace {

constexpr QSize boxSize(170, 32);

QString longText()
{
    return QStringLiteral("A text that is much longer than the box");
}

QIcon iconOf(int width, int height)
{
    QPixmap pixmap(width, height);
    pixmap.fill(Qt::red);
    return {pixmap};
}

/// What a box of @p boxSize looks like that shows @p text and @p icon, if any, as tall as the pixmap is.
QImage expected(const QString& text, const QPixmap& icon = {})
{
    ReferenceComboBox reference(text, boxSize);
    reference.setFocusPolicy(Qt::WheelFocus);
    QImage image = render(reference);
    if (!icon.isNull()) {
        const QRect field = editFieldOf(reference);
        QPainter painter(&image);
        painter.drawPixmap(field.right() - icon.width(), field.top(), icon);
    }
    return image;
}

/// Counts how often it is painted.
class CountingBox : public PresetComboBox
{
public:
    int paintings = 0;
    int popups = 0;

    void showPopup() override
    {
        ++popups;
        PresetComboBox::showPopup();
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++paintings;
        PresetComboBox::paintEvent(event);
    }
};

/// An icon that is there and has no picture.
class EmptyEngine : public QIconEngine
{
public:
    void paint(QPainter* /*painter*/, const QRect& /*rect*/, QIcon::Mode /*mode*/, QIcon::State /*state*/) override {}
    QPixmap pixmap(const QSize& /*size*/, QIcon::Mode /*mode*/, QIcon::State /*state*/) override { return {}; }
    QIconEngine* clone() const override { return new EmptyEngine; }
};

} // namespace

class tst_PresetComboBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObjectHasOneSignal();
    void anyPressAsksForThePopup_data();
    void anyPressAsksForThePopup();
    void pressCallsTheVirtualShowPopup();
    void pressIsNotHandedToTheBaseClass();
    void keyboardAsksForThePopup_data();
    void keyboardAsksForThePopup();
    void hidePopupDoesNothing();
    void boxMayBeDeletedByItsSlot();
    void paintsElidedTextWithoutIcon();
    void iconStandsAtTheEndOfTheField_data();
    void iconStandsAtTheEndOfTheField();
    void iconTakesEighteenPixelsOfTheText();
    void pixmapIsOneOfHundredPixels();
    void iconWithoutPictureCostsTwoPixels();
    void iconIsPaintedInNormalModeInADisabledBox();
    void settingAnIconRepaintsAtOnce();
    void leavesTheToolTipAlone();
    void wheelAndKeysChooseAsInAnyBox();
};

void tst_PresetComboBox::metaObjectHasOneSignal()
{
    const QMetaObject& meta = PresetComboBox::staticMetaObject;
    QCOMPARE(meta.className(), "Kestrel::Gui::PresetComboBox");
    QCOMPARE(meta.superClass(), &QComboBox::staticMetaObject);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.methodCount(), meta.methodOffset() + 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("ShowPopupActivated()"));
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Signal);
}

void tst_PresetComboBox::anyPressAsksForThePopup_data()
{
    QTest::addColumn<int>("button");
    QTest::newRow("left") << int(Qt::LeftButton);
    QTest::newRow("right") << int(Qt::RightButton);
    QTest::newRow("middle") << int(Qt::MiddleButton);
    QTest::newRow("back") << int(Qt::BackButton);
}

void tst_PresetComboBox::anyPressAsksForThePopup()
{
    QFETCH(int, button);
    PresetComboBox box;
    box.addItems({QStringLiteral("1"), QStringLiteral("2")});
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    const QSignalSpy spy(&box, &PresetComboBox::ShowPopupActivated);

    QTest::mousePress(&box, static_cast<Qt::MouseButton>(button));
    QCOMPARE(spy.count(), 1);
    QTest::mouseRelease(&box, static_cast<Qt::MouseButton>(button));

    QCOMPARE(spy.count(), 1);
    QVERIFY(!box.view()->isVisible());
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_PresetComboBox::pressCallsTheVirtualShowPopup()
{
    CountingBox box;
    QTest::mousePress(&box, Qt::RightButton);
    QCOMPARE(box.popups, 1);
}

void tst_PresetComboBox::pressIsNotHandedToTheBaseClass()
{
    // Off the field's arrow, too, and while the box is editable: the base class would open its list at the arrow only.
    PresetComboBox box;
    box.setEditable(true);
    box.resize(boxSize);
    const QSignalSpy spy(&box, &PresetComboBox::ShowPopupActivated);
    QMouseEvent event(QEvent::MouseButtonPress, QPointF(1, 1), Qt::RightButton, Qt::RightButton, Qt::NoModifier);
    QApplication::sendEvent(&box, &event);
    QCOMPARE(spy.count(), 1);
    QVERIFY(event.isAccepted());
}

void tst_PresetComboBox::keyboardAsksForThePopup_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("F4") << int(Qt::Key_F4) << Qt::KeyboardModifiers(Qt::NoModifier);
    QTest::newRow("Alt+Down") << int(Qt::Key_Down) << Qt::KeyboardModifiers(Qt::AltModifier);
}

void tst_PresetComboBox::keyboardAsksForThePopup()
{
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    PresetComboBox box;
    box.addItem(QStringLiteral("1"));
    const QSignalSpy spy(&box, &PresetComboBox::ShowPopupActivated);
    QTest::keyClick(&box, static_cast<Qt::Key>(key), modifiers);
    QCOMPARE(spy.count(), 1);
    QVERIFY(!box.view()->isVisible());
}

void tst_PresetComboBox::hidePopupDoesNothing()
{
    PresetComboBox box;
    box.addItem(QStringLiteral("1"));
    box.view()->window()->show();
    box.hidePopup();
    QVERIFY(box.view()->isVisible());
    box.view()->window()->hide();
}

void tst_PresetComboBox::boxMayBeDeletedByItsSlot()
{
    QPointer<PresetComboBox> box = new PresetComboBox;
    box->addItem(QStringLiteral("1"));
    connect(box.data(), &PresetComboBox::ShowPopupActivated, this, [box] { delete box.data(); });
    box->showPopup();
    QVERIFY(!box);
}

void tst_PresetComboBox::paintsElidedTextWithoutIcon()
{
    PresetComboBox box;
    box.addItem(longText());
    box.resize(boxSize);
    const QString shown = elidedTo(box, longText(), editFieldOf(box).width());
    QVERIFY(shown != longText());
    QCOMPARE(render(box), expected(shown));
    QVERIFY(render(box) != expected(longText()));

    box.setItemText(0, QStringLiteral("short"));
    QCOMPARE(render(box), expected(QStringLiteral("short")));
}

void tst_PresetComboBox::iconStandsAtTheEndOfTheField_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("16 x 16") << QSize(16, 16);
    QTest::newRow("narrow") << QSize(5, 12);
    QTest::newRow("lower than the field: stays at its top") << QSize(20, 3);
    QTest::newRow("taller than the field: neither scaled nor centred") << QSize(12, 60);
}

void tst_PresetComboBox::iconStandsAtTheEndOfTheField()
{
    QFETCH(QSize, size);
    PresetComboBox box;
    box.addItem(longText());
    box.resize(boxSize);
    const QIcon icon = iconOf(size.width(), size.height());
    box.SetAdditionalIcon(icon);

    const QImage shown = render(box);

    const QRect field = editFieldOf(box);
    const QString text = elidedTo(box, longText(), field.width() - size.width() - 2);
    QCOMPARE(shown, expected(text, icon.pixmap(size)));
    // One pixel is left between the icon and the field's edge, counted without the reference.
    QCOMPARE(shown.pixelColor(field.right() - 1, field.top() + 1), QColor(Qt::red));
    QVERIFY(shown.pixelColor(field.right(), field.top() + 1) != QColor(Qt::red));
    QCOMPARE(shown.pixelColor(field.right() - size.width(), field.top() + 1), QColor(Qt::red));

    box.SetAdditionalIcon(QIcon());
    QCOMPARE(render(box), expected(elidedTo(box, longText(), field.width())));
}

void tst_PresetComboBox::iconTakesEighteenPixelsOfTheText()
{
    const QString text = QStringLiteral("Presets");
    PresetComboBox box;
    box.addItem(text);
    box.resize(boxSize);
    const int fitting = TestSupport::widthThatFits(box, text);
    const auto isElidedAt = [&](int width) {
        box.resize(width, boxSize.height());
        const QImage shown = render(box).copy(0, 0, editFieldOf(box).right() - 17, boxSize.height());
        ReferenceComboBox whole(text, box.size());
        whole.setFocusPolicy(Qt::WheelFocus);
        return shown != render(whole).copy(0, 0, editFieldOf(box).right() - 17, boxSize.height());
    };
    box.SetAdditionalIcon(iconOf(16, 16));
    QVERIFY(isElidedAt(fitting + 17));
    QVERIFY(!isElidedAt(fitting + 18));
}

void tst_PresetComboBox::pixmapIsOneOfHundredPixels()
{
    PresetComboBox box;
    box.addItem(longText());
    box.resize(boxSize);
    const QIcon icon = iconOf(300, 150);
    box.SetAdditionalIcon(icon);
    const QPixmap pixmap = icon.pixmap(100);
    QCOMPARE(pixmap.width(), 100);
    const QString text = elidedTo(box, longText(), editFieldOf(box).width() - 102);
    QCOMPARE(render(box), expected(text, pixmap));
}

void tst_PresetComboBox::iconWithoutPictureCostsTwoPixels()
{
    PresetComboBox box;
    box.addItem(QStringLiteral("Presets"));
    box.resize(TestSupport::widthThatFits(box, QStringLiteral("Presets")) + 1, boxSize.height());
    const QImage without = render(box);
    box.SetAdditionalIcon(QIcon(new EmptyEngine));
    QVERIFY(render(box) != without);
    box.resize(box.width() + 1, box.height());
    const QImage with = render(box);
    box.SetAdditionalIcon(QIcon());
    QCOMPARE(with, render(box));
}

void tst_PresetComboBox::iconIsPaintedInNormalModeInADisabledBox()
{
    QPixmap normal(16, 16);
    normal.fill(Qt::red);
    QPixmap disabled(16, 16);
    disabled.fill(Qt::blue);
    QPixmap on(16, 16);
    on.fill(Qt::green);
    QIcon icon;
    icon.addPixmap(normal, QIcon::Normal, QIcon::Off);
    icon.addPixmap(disabled, QIcon::Disabled, QIcon::Off);
    icon.addPixmap(on, QIcon::Normal, QIcon::On);
    PresetComboBox box;
    box.setEnabled(false);
    box.resize(boxSize);
    box.SetAdditionalIcon(icon);
    const QRect field = editFieldOf(box);
    QCOMPARE(render(box).pixelColor(field.right() - 5, field.top() + 5), QColor(Qt::red));
}

void tst_PresetComboBox::settingAnIconRepaintsAtOnce()
{
    CountingBox box;
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    QTRY_VERIFY(box.paintings > 0);
    box.paintings = 0;
    box.SetAdditionalIcon(iconOf(16, 16));
    QCOMPARE(box.paintings, 1);
}

void tst_PresetComboBox::leavesTheToolTipAlone()
{
    PresetComboBox box;
    box.addItem(longText());
    box.resize(boxSize);
    box.setToolTip(QStringLiteral("from outside"));
    render(box);
    QCOMPARE(box.toolTip(), QStringLiteral("from outside"));
}

void tst_PresetComboBox::wheelAndKeysChooseAsInAnyBox()
{
    auto* box = new PresetComboBox;
    box->addItems({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")});
    TestSupport::ScrollingForm form(box);
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    TestSupport::turnWheelOver(*box);
    QCOMPARE(box->currentIndex(), 1);
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(box->currentIndex(), 2);
}

QTEST_MAIN(tst_PresetComboBox)
#include "tst_PresetComboBox.moc"
