#include <KQt/Ui/AdvancedColorPicker.h>

#include <KQt/Ui/AdvancedColorPickerPopup.h>

#include "support/PopupFinder.h"
#include "support/Render.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMimeData>
#include <QPainter>
#include <QSlider>
#include <QSpinBox>
#include <QStyleOptionButton>
#include <QtTest>

#include <memory>

using Kestrel::Gui::AdvancedColorPicker;
using Kestrel::Gui::AdvancedColorPickerPopup;

namespace {

void dropColor(QWidget* slot, const QColor& color)
{
    QMimeData data;
    data.setColorData(color);
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(slot, &enter);
    QDropEvent drop(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(slot, &drop);
}

} // namespace

class tst_AdvancedColorPicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void metaObjectListsMembersInOrder();
    void newPickerHasAnInvalidColor();
    void popupIsAWindowOfItsOwn();
    void setColorShowsOnButtonAndPopup_data();
    void setColorShowsOnButtonAndPopup();
    void setColorEmitsNothing();
    void setColorRepaints();
    void looksLikeAPlainPushButton();
    void clickOpensThePopup();
    void disabledPickerDoesNotOpen();
    void openingPassesTheColorToThePopup();
    void openingPassesAnInvalidColorToo();
    void popupLiesBelowTheButtonRightEdgesInLine_data();
    void popupLiesBelowTheButtonRightEdgesInLine();
    void popupCanBeOpenedAtAPoint();
    void popupIsNotKeptInsideTheScreen();
    void oneUseTellsStartChangesAndEnd();
    void eachChangeIsSetBeforeItIsTold();
    void theEndIsSetBeforeItIsTold();
    void greyUserSlotsAreAllTheFirstOne();
    void hidingThePickerClosesThePopup();
    void hidingWithoutAPopupTellsNothing();
    void opacityAdjustmentIsAProperty();
    void opacityAdjustmentFitsThePopup();
    void pickersShareTheirUserSlots();

    void eachPolishIsTheOnlyOne();

    void pickerMayDieInTheStart();
    void pickerMayDieInAChange_data();
    void pickerMayDieInAChange();
    void pickerMayDieInTheEnd();
    void pickerMayDieWhileThePopupIsOpen();
    void popupDiesWithThePicker();
    void parentMayBeHiddenOrDeletedWithAnOpenPopup();

private:
    AdvancedColorPickerPopup* popup() const { return TestSupport::onlyWindow<AdvancedColorPickerPopup>(); }
    template <typename Child>
    Child* popupChild(const char* name) const
    {
        return popup()->findChild<Child*>(QLatin1String(name));
    }
    static QAbstractButton* swatch(const AdvancedColorPickerPopup* popup, const char* frame, int index)
    {
        return popup->findChild<QFrame*>(QLatin1String(frame))->findChildren<QAbstractButton*>().at(index);
    }
    QAbstractButton* paletteSwatch(int index) const { return swatch(popup(), "colorButtonsFrame", index); }
    QAbstractButton* userSlot(int index) const { return swatch(popup(), "userSelectedColorsFrame", index); }

    std::unique_ptr<AdvancedColorPicker> m_picker;
};

void tst_AdvancedColorPicker::init()
{
    m_picker = std::make_unique<AdvancedColorPicker>();
    m_picker->setGeometry(300, 40, 60, 30);
}

void tst_AdvancedColorPicker::cleanup()
{
    m_picker.reset();
    QTRY_VERIFY(QApplication::topLevelWidgets().isEmpty());
    // The user colours live as long as the process: grey again for the next test.
    const AdvancedColorPickerPopup popup;
    for (int i = 0; i < 12; ++i)
        dropColor(swatch(&popup, "userSelectedColorsFrame", i), Qt::gray);
}

void tst_AdvancedColorPicker::metaObjectListsMembersInOrder()
{
    const QMetaObject& meta = AdvancedColorPicker::staticMetaObject;
    QCOMPARE(meta.className(), "Kestrel::Gui::AdvancedColorPicker");
    QCOMPARE(meta.superClass(), &QToolButton::staticMetaObject);
    QByteArrayList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        methods << QByteArray(method.methodType() == QMetaMethod::Signal ? "signal "
                              : method.access() == QMetaMethod::Private  ? "private "
                                                                         : "public ") +
                       method.methodSignature();
    }
    QCOMPARE(methods, QByteArrayList({"signal changedColor(QColor)", "signal colorSelectionStarted()",
                                      "signal doneSelectionWithColor(QColor)", "public showPopup()",
                                      "public showPopup(QPoint)", "private colorChanged(QColor)"}));

    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 1);
    const QMetaProperty property = meta.property(meta.propertyOffset());
    QCOMPARE(property.name(), "opacityAdjustmentAvailable");
    QCOMPARE(property.type(), QVariant::Bool);
    QVERIFY(property.isReadable());
    QVERIFY(property.isWritable());
    QVERIFY(property.isDesignable());
    QVERIFY(property.isScriptable());
    QVERIFY(property.isStored());
    QVERIFY(!property.hasNotifySignal());
    QVERIFY(!property.isConstant());
}

void tst_AdvancedColorPicker::newPickerHasAnInvalidColor()
{
    QVERIFY(!m_picker->color().isValid());
    QVERIFY(m_picker->styleSheet().isEmpty());
    QVERIFY(!popup()->color().isValid());
    QWidget parent;
    QCOMPARE((new AdvancedColorPicker(&parent))->parentWidget(), &parent);
}

void tst_AdvancedColorPicker::popupIsAWindowOfItsOwn()
{
    QVERIFY(popup());
    QVERIFY(!popup()->parent());
    QVERIFY(popup()->isHidden());
}

void tst_AdvancedColorPicker::setColorShowsOnButtonAndPopup_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<QString>("styleSheet");
    QTest::addRow("opaque") << QColor(0xab, 0xcd, 0xef)
                            << QStringLiteral("QToolButton:enabled { background-color: #abcdef }");
    QTest::addRow("alpha is not shown") << QColor(255, 0, 0, 51)
                                        << QStringLiteral("QToolButton:enabled { background-color: #ff0000 }");
    QTest::addRow("invalid") << QColor() << QStringLiteral("QToolButton:enabled { background-color: #000000 }");
}

void tst_AdvancedColorPicker::setColorShowsOnButtonAndPopup()
{
    QFETCH(QColor, color);
    QFETCH(QString, styleSheet);
    m_picker->setColor(color);
    QCOMPARE(m_picker->color(), color);
    QCOMPARE(m_picker->color().isValid(), color.isValid());
    QCOMPARE(m_picker->styleSheet(), styleSheet);
    QCOMPARE(popup()->color().rgba(), color.rgba());
}

void tst_AdvancedColorPicker::setColorEmitsNothing()
{
    QSignalSpy started(m_picker.get(), &AdvancedColorPicker::colorSelectionStarted);
    QSignalSpy changed(m_picker.get(), &AdvancedColorPicker::changedColor);
    QSignalSpy done(m_picker.get(), &AdvancedColorPicker::doneSelectionWithColor);
    for (const QColor& color : {QColor(Qt::white), QColor(Qt::red), QColor(1, 2, 3, 100), QColor(Qt::gray), QColor()})
        m_picker->setColor(color);
    m_picker->showPopup();
    for (const QColor& color : {QColor(Qt::white), QColor(Qt::red), QColor(1, 2, 3, 100), QColor(Qt::gray), QColor()})
        m_picker->setColor(color);
    QCOMPARE(started.count(), 1);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(done.count(), 0);
}

void tst_AdvancedColorPicker::setColorRepaints()
{
    m_picker->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_picker.get()));
    m_picker->setColor(Qt::red);
    // Styles shade a button: the hue is what they keep.
    const auto hue = [this] { return TestSupport::render(*m_picker).pixelColor(m_picker->rect().center()).hue(); };
    QCOMPARE(hue(), QColor(Qt::red).hue());
    m_picker->setColor(Qt::blue);
    QCOMPARE(hue(), QColor(Qt::blue).hue());
    // The colour stands for something that can be chosen.
    m_picker->setEnabled(false);
    QVERIFY(hue() != QColor(Qt::blue).hue());
}

void tst_AdvancedColorPicker::looksLikeAPlainPushButton()
{
    m_picker->setText(QStringLiteral("not shown"));
    for (const bool colored : {false, true}) {
        if (colored)
            m_picker->setColor(QColor(20, 140, 60));
        QImage expected(m_picker->size(), QImage::Format_ARGB32_Premultiplied);
        expected.fill(Qt::transparent);
        QPainter painter(&expected);
        QStyleOptionButton option;
        option.initFrom(m_picker.get());
        m_picker->ensurePolished();
        m_picker->style()->drawControl(QStyle::CE_PushButton, &option, &painter, m_picker.get());
        painter.end();
        QImage seen(m_picker->size(), QImage::Format_ARGB32_Premultiplied);
        seen.fill(Qt::transparent);
        m_picker->render(&seen, {}, {}, {});
        QCOMPARE(seen, expected);
    }
}

void tst_AdvancedColorPicker::clickOpensThePopup()
{
    m_picker->show();
    QSignalSpy started(m_picker.get(), &AdvancedColorPicker::colorSelectionStarted);
    QTest::mouseClick(m_picker.get(), Qt::LeftButton);
    QVERIFY(popup()->isVisible());
    QCOMPARE(started.count(), 1);
}

void tst_AdvancedColorPicker::disabledPickerDoesNotOpen()
{
    m_picker->show();
    m_picker->setEnabled(false);
    QTest::mouseClick(m_picker.get(), Qt::LeftButton);
    QVERIFY(!popup()->isVisible());
}

void tst_AdvancedColorPicker::openingPassesTheColorToThePopup()
{
    m_picker->setColor(Qt::red);
    popup()->setColor(Qt::blue);
    QVector<QPair<bool, QColor>> atStart;
    connect(m_picker.get(), &AdvancedColorPicker::colorSelectionStarted, this, [&] {
        atStart.append({popup()->isVisible(), popup()->color()});
    });
    m_picker->showPopup();
    // It is told first, then the popup gets its colour and is shown.
    QCOMPARE(atStart.size(), 1);
    QVERIFY(!atStart.first().first);
    QCOMPARE(atStart.first().second, QColor(Qt::blue));
    QCOMPARE(popup()->color(), QColor(Qt::red));
}

void tst_AdvancedColorPicker::openingPassesAnInvalidColorToo()
{
    m_picker->showPopup();
    QVERIFY(popup()->isVisible());
    QVERIFY(!popup()->color().isValid());
}

void tst_AdvancedColorPicker::popupLiesBelowTheButtonRightEdgesInLine_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addRow("left to right") << Qt::LeftToRight;
    QTest::addRow("right to left") << Qt::RightToLeft;
}

void tst_AdvancedColorPicker::popupLiesBelowTheButtonRightEdgesInLine()
{
    QFETCH(Qt::LayoutDirection, direction);
    m_picker->setLayoutDirection(direction);
    m_picker->show();
    // Some systems have no window as small as this one wants to be.
    const QPoint buttonBottomRight = m_picker->mapToGlobal(QPoint(m_picker->width(), m_picker->height()));
    const int width = popup()->width();
    m_picker->showPopup();
    QCOMPARE(popup()->width(), width);
    QCOMPARE(popup()->pos(), buttonBottomRight - QPoint(width, 0));
}

void tst_AdvancedColorPicker::popupCanBeOpenedAtAPoint()
{
    m_picker->show();
    const QPoint topRight = m_picker->mapToGlobal(QPoint(7, 11));
    m_picker->showPopup(QPoint(7, 11));
    QVERIFY(popup()->isVisible());
    QCOMPARE(popup()->pos(), topRight - QPoint(popup()->width(), 0));
}

void tst_AdvancedColorPicker::popupIsNotKeptInsideTheScreen()
{
    if (QGuiApplication::platformName() != QLatin1String("offscreen"))
        QSKIP("a window manager may move windows");
    m_picker->showPopup(QPoint(-2000, -3000));
    QCOMPARE(popup()->pos(), m_picker->mapToGlobal(QPoint(-2000 - popup()->width(), -3000)));
}

void tst_AdvancedColorPicker::oneUseTellsStartChangesAndEnd()
{
    m_picker->setColor(Qt::white);
    QStringList told;
    connect(m_picker.get(), &AdvancedColorPicker::colorSelectionStarted, this,
            [&] { told << QStringLiteral("start"); });
    connect(m_picker.get(), &AdvancedColorPicker::changedColor, this,
            [&](const QColor& c) { told << c.name(QColor::HexArgb); });
    connect(m_picker.get(), &AdvancedColorPicker::doneSelectionWithColor, this,
            [&](const QColor& c) { told << QStringLiteral("done ") + c.name(QColor::HexArgb); });
    m_picker->showPopup();
    popupChild<QLineEdit>("colorEdit")->setText(QStringLiteral("#102030"));
    popupChild<QSlider>("opacitySlider")->setValue(0);
    popup()->hide();
    QCOMPARE(told, QStringList({QStringLiteral("start"), QStringLiteral("#ff102030"), QStringLiteral("#00102030"),
                                QStringLiteral("done #00102030")}));
    QCOMPARE(m_picker->color(), popup()->color());

    told.clear();
    m_picker->showPopup();
    popup()->hide();
    QCOMPARE(told, QStringList({QStringLiteral("start"), QStringLiteral("done #00102030")}));
}

void tst_AdvancedColorPicker::eachChangeIsSetBeforeItIsTold()
{
    QColor seen;
    connect(m_picker.get(), &AdvancedColorPicker::changedColor, this,
            [&](const QColor& c) { seen = c == m_picker->color() ? c : QColor(); });
    m_picker->showPopup();
    QTest::mouseClick(paletteSwatch(70), Qt::LeftButton);
    QVERIFY(seen.isValid());
    QCOMPARE(m_picker->color(), seen);
    QCOMPARE(m_picker->styleSheet(), QStringLiteral("QToolButton:enabled { background-color: %1 }").arg(seen.name()));
}

void tst_AdvancedColorPicker::theEndIsSetBeforeItIsTold()
{
    m_picker->setColor(Qt::white);
    QColor seen;
    connect(m_picker.get(), &AdvancedColorPicker::doneSelectionWithColor, this,
            [&](const QColor& c) { seen = c == m_picker->color() ? c : QColor(); });
    m_picker->showPopup();
    popup()->setColor(QColor(3, 2, 1));
    popup()->hide();
    QCOMPARE(seen, QColor(3, 2, 1));
}

// Choosing sets the colour, setting a colour checks the first slot that has it: of equal slots the first one is chosen.
void tst_AdvancedColorPicker::greyUserSlotsAreAllTheFirstOne()
{
    m_picker->setColor(Qt::white);
    m_picker->showPopup();
    QTest::mouseClick(userSlot(5), Qt::LeftButton);
    QCOMPARE(m_picker->color(), QColor(Qt::gray));
    QVERIFY(userSlot(0)->isChecked());
    QVERIFY(!userSlot(5)->isChecked());
}

void tst_AdvancedColorPicker::hidingThePickerClosesThePopup()
{
    m_picker->setColor(Qt::red);
    m_picker->show();
    m_picker->showPopup();
    QSignalSpy done(m_picker.get(), &AdvancedColorPicker::doneSelectionWithColor);
    m_picker->hide();
    QVERIFY(!popup()->isVisible());
    QCOMPARE(done.count(), 1);
    QCOMPARE(done.first().first().value<QColor>(), QColor(Qt::red));
}

void tst_AdvancedColorPicker::hidingWithoutAPopupTellsNothing()
{
    m_picker->show();
    QSignalSpy done(m_picker.get(), &AdvancedColorPicker::doneSelectionWithColor);
    m_picker->hide();
    QCOMPARE(done.count(), 0);
}

void tst_AdvancedColorPicker::opacityAdjustmentIsAProperty()
{
    // Visibility counts: with a closed popup nothing is visible.
    QCOMPARE(m_picker->property("opacityAdjustmentAvailable"), QVariant(false));
    m_picker->showPopup();
    QCOMPARE(m_picker->property("opacityAdjustmentAvailable"), QVariant(true));
    QVERIFY(m_picker->setProperty("opacityAdjustmentAvailable", false));
    QVERIFY(!m_picker->opacityAdjustmentAvailable());
    QVERIFY(!popupChild<QFrame>("opacityFrame")->isVisible());
    QVERIFY(!popupChild<QSpinBox>("opacityEdit")->isVisible());
    m_picker->setOpacityAdjustmentAvailable(true);
    QVERIFY(m_picker->opacityAdjustmentAvailable());
    QVERIFY(popupChild<QSpinBox>("opacityEdit")->isVisible());
}

void tst_AdvancedColorPicker::opacityAdjustmentFitsThePopup()
{
    const int row = popupChild<QFrame>("opacityFrame")->sizeHint().height();
    const QSize full = popup()->size();
    m_picker->setOpacityAdjustmentAvailable(false);
    QCOMPARE(popup()->size(), full - QSize(0, row + 6));
    m_picker->showPopup();
    QCOMPARE(popup()->size(), full - QSize(0, row + 6));
    m_picker->setOpacityAdjustmentAvailable(true);
    QCOMPARE(popup()->size(), full);
}

void tst_AdvancedColorPicker::pickersShareTheirUserSlots()
{
    m_picker->showPopup();
    AdvancedColorPickerPopup* const first = popup();
    AdvancedColorPicker second;
    AdvancedColorPickerPopup* other = nullptr;
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* const window : windows) {
        auto* const found = qobject_cast<AdvancedColorPickerPopup*>(window);
        other = found && found != first ? found : other;
    }
    if (!other)
        QFAIL("the second picker has no popup");
    const auto slotPixel = [](AdvancedColorPickerPopup* popup) {
        QAbstractButton* const slot = swatch(popup, "userSelectedColorsFrame", 3);
        return TestSupport::render(*slot).pixelColor(slot->rect().center());
    };

    dropColor(swatch(first, "userSelectedColorsFrame", 3), QColor(12, 34, 56));
    QCOMPARE(slotPixel(first), QColor(12, 34, 56));
    QVERIFY(slotPixel(other) != QColor(12, 34, 56));
    second.showPopup();
    QCOMPARE(slotPixel(other), QColor(12, 34, 56));
}

// With the picker's own calls too, nothing is polished a second time before it is seen.
void tst_AdvancedColorPicker::eachPolishIsTheOnlyOne()
{
    struct Counter : QObject
    {
        QHash<QObject*, int> polished;
        QHash<QObject*, int> polishedAgain;
        QHash<QObject*, int> painted;
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            if (event->type() == QEvent::Polish)
                ++polished[watched];
            else if (event->type() == QEvent::StyleChange && polished.contains(watched))
                ++polishedAgain[watched];
            else if (event->type() == QEvent::Paint)
                ++painted[watched];
            return false;
        }
    } counter;
    m_picker.reset();
    qApp->installEventFilter(&counter);
    m_picker = std::make_unique<AdvancedColorPicker>();
    m_picker->setColor(Qt::red);
    m_picker->setOpacityAdjustmentAvailable(true);
    m_picker->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_picker.get()));
    m_picker->setColor(Qt::blue);
    m_picker->showPopup();
    AdvancedColorPickerPopup* const window = popup();
    QTRY_VERIFY(counter.painted.value(window) > 0);
    qApp->removeEventFilter(&counter);
    const auto widgets = window->findChildren<QWidget*>();
    for (QWidget* const widget : widgets) {
        QVERIFY2(counter.polished.value(widget) == 1, qPrintable(widget->objectName()));
        QVERIFY2(counter.polishedAgain.value(widget) == 0, qPrintable(widget->objectName()));
    }
}

void tst_AdvancedColorPicker::pickerMayDieInTheStart()
{
    connect(m_picker.get(), &AdvancedColorPicker::colorSelectionStarted, this, [this] { m_picker.reset(); });
    m_picker->showPopup();
    QVERIFY(!m_picker);
    QVERIFY(!popup());
}

void tst_AdvancedColorPicker::pickerMayDieInAChange_data()
{
    QTest::addColumn<QString>("how");
    for (const char* const how : {"typing", "slider", "percentage", "swatch", "second swatch", "user slot"})
        QTest::addRow("%s", how) << QString::fromLatin1(how);
}

void tst_AdvancedColorPicker::pickerMayDieInAChange()
{
    QFETCH(QString, how);
    m_picker->setColor(Qt::white);
    m_picker->show();
    m_picker->showPopup();
    if (how == QLatin1String("second swatch"))
        QTest::mouseClick(paletteSwatch(30), Qt::LeftButton);
    QPointer<AdvancedColorPickerPopup> window(popup());
    int told = 0;
    connect(m_picker.get(), &AdvancedColorPicker::changedColor, this, [&] {
        ++told;
        m_picker.reset();
    });
    connect(m_picker.get(), &AdvancedColorPicker::doneSelectionWithColor, this, [&] { ++told; });
    if (how == QLatin1String("typing"))
        QTest::keyClicks(popupChild<QLineEdit>("colorEdit"), QStringLiteral("\b\b\b\b\b\bfff"));
    else if (how == QLatin1String("slider"))
        QTest::keyClick(popupChild<QSlider>("opacitySlider"), Qt::Key_PageDown);
    else if (how == QLatin1String("percentage"))
        QTest::keyClick(popupChild<QSpinBox>("opacityEdit"), Qt::Key_Down);
    else if (how == QLatin1String("user slot"))
        QTest::mouseClick(userSlot(2), Qt::LeftButton);
    else
        QTest::mouseClick(paletteSwatch(31), Qt::LeftButton);
    QCOMPARE(told, 1);
    QVERIFY(!m_picker);
    QVERIFY(!window || !window->isVisible());
    QTRY_VERIFY(!window);
}

void tst_AdvancedColorPicker::pickerMayDieInTheEnd()
{
    m_picker->show();
    m_picker->showPopup();
    QPointer<AdvancedColorPickerPopup> window(popup());
    connect(m_picker.get(), &AdvancedColorPicker::doneSelectionWithColor, this, [this] { m_picker.reset(); });
    window->hide();
    QVERIFY(!m_picker);
    QTRY_VERIFY(!window);

    init();
    m_picker->show();
    m_picker->showPopup();
    connect(m_picker.get(), &AdvancedColorPicker::doneSelectionWithColor, m_picker.get(),
            [picker = m_picker.get()] { picker->deleteLater(); });
    m_picker.release()->hide();
    QTRY_VERIFY(!popup());
}

void tst_AdvancedColorPicker::pickerMayDieWhileThePopupIsOpen()
{
    m_picker->show();
    m_picker->showPopup();
    QSignalSpy done(m_picker.get(), &AdvancedColorPicker::doneSelectionWithColor);
    m_picker.reset();
    QCOMPARE(done.count(), 0);
    QVERIFY(!popup());
    QVERIFY(!QApplication::activePopupWidget());
}

void tst_AdvancedColorPicker::popupDiesWithThePicker()
{
    const QPointer<AdvancedColorPickerPopup> window(popup());
    QVERIFY(window);
    m_picker.reset();
    QVERIFY(!window);
}

void tst_AdvancedColorPicker::parentMayBeHiddenOrDeletedWithAnOpenPopup()
{
    auto parent = std::make_unique<QWidget>();
    m_picker->setParent(parent.get());
    parent->show();
    m_picker->show();
    m_picker->showPopup();
    const QPointer<AdvancedColorPickerPopup> window(popup());
    QSignalSpy done(m_picker.get(), &AdvancedColorPicker::doneSelectionWithColor);
    parent->hide();
    QCOMPARE(done.count(), 1);
    QVERIFY(!window->isVisible());
    parent->show();
    m_picker->showPopup();
    QVERIFY(window->isVisible());
    Q_UNUSED(m_picker.release()) // its parent deletes it
    parent.reset();
    QVERIFY(!window);
}

QTEST_MAIN(tst_AdvancedColorPicker)
#include "tst_AdvancedColorPicker.moc"
