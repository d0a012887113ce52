#include <KQt/Ui/HighlightFrame.h>
#include <KQt/Ui/WidgetColorPicker.h>
#include <KQt/Ui/WidgetColorPickerButton.h>

#include "support/OnceTrue.h"
#include "support/PixelBoard.h"
#include "support/Render.h"
#include "support/WarningCatcher.h"
#include "support/WindowSystem.h"

#include <QGuiApplication>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <QtTest>

#include <memory>
#include <stdexcept>

using Kestrel::Gui::HighlightFrame;
using Kestrel::Gui::WidgetColorPicker;
using Kestrel::Gui::WidgetColorPickerButton;
using TestSupport::onceTrue;
using TestSupport::PixelBoard;
using TestSupport::render;
using TestSupport::WarningCatcher;

namespace {

/// A window with a board and the button that picks from it, shown and exposed.
struct Scene
{
    QWidget window;
    PixelBoard* board = new PixelBoard(&window);
    QPointer<WidgetColorPickerButton> button = new WidgetColorPickerButton(&window);

    Scene()
    {
        window.setGeometry(200, 150, 400, 300);
        board->setGeometry(20, 30, 200, 100);
        button->setGeometry(300, 30, 60, 40);
        button->setTargetWidget(board);
        window.show();
        ready = QTest::qWaitForWindowExposed(&window);
        QCoreApplication::processEvents();
        QCursor::setPos(board->mapToGlobal(QPoint(33, 44)));
    }

    bool picking() const { return button && button->findChild<WidgetColorPicker*>()->pickingInProgress(); }
    void whilePicking(const std::function<void()>& steps)
    {
        onceTrue([this] { return picking(); }, steps);
    }
    QColor expected() const
    {
        const qreal ratio = window.devicePixelRatioF();
        return PixelBoard::colorAt(qRound(33 * ratio), qRound(44 * ratio));
    }
    HighlightFrame* ownFrame() const
    {
        return window.findChild<HighlightFrame*>(QStringLiteral("WidgetColorPickerButtonFrame"));
    }

    bool ready = false;
};

class PlainLook : public QToolButton
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

class tst_WidgetColorPickerButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    static void initMain();
    void metaObject();
    void defaults();
    void enabledWithATargetOnly();
    void clickWithoutTargetDoesNothing();
    void setColorReportsAlwaysAndStyles();
    void setColorWithoutSelfColor();
    void paintsPlainButtonOrToolButton();
    void signalsInOrder();
    void nothingPickedKeepsTheColor();
    void stopPickingStillPicks();
    void framesItselfWhilePicking();
    void noFrameWithoutSelfColor();
    void secondStartDoesNothing();
    void startFromPickingStartedDoesNothing();
    void startFromPickingFinishedPicksAgain();
    void throwingSlotTakesTheFrameAway_data();
    void throwingSlotTakesTheFrameAway();
    void clickOnTheButtonEndsAndDoesNotRestart();
    void buttonDeletedWhilePicking();
    void targetDeletedWhilePicking();
    void deletedFromItsSignals_data();
    void deletedFromItsSignals();
    void realClickOnTheButtonItself();
};

void tst_WidgetColorPickerButton::initMain()
{
    // Exceptions have to pass through the event loop here, and must not pass through a C library's.
    qputenv("QT_NO_GLIB", "1");
}

void tst_WidgetColorPickerButton::metaObject()
{
    const QMetaObject& meta = WidgetColorPickerButton::staticMetaObject;
    QCOMPARE(meta.className(), "Kestrel::Gui::WidgetColorPickerButton");
    QCOMPARE(meta.superClass(), &QToolButton::staticMetaObject);
    QCOMPARE(meta.propertyCount() - meta.propertyOffset(), 1);
    const QMetaProperty property = meta.property(meta.propertyOffset());
    QCOMPARE(property.name(), "changeSelfColor");
    QCOMPARE(property.userType(), int(QMetaType::Bool));
    QVERIFY(property.isReadable() && property.isWritable() && property.isDesignable() && property.isScriptable() &&
            property.isStored() && !property.hasNotifySignal());
    QList<QByteArray> methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods << meta.method(i).methodSignature();
    QCOMPARE(methods, (QList<QByteArray>{"pickingStarted()", "pickingFinished()", "colorChanged(QColor)",
                                         "startPicking()", "stopPicking()"}));
}

void tst_WidgetColorPickerButton::defaults()
{
    WidgetColorPickerButton button;
    QVERIFY(!button.color().isValid());
    QVERIFY(!button.targetWidget());
    QVERIFY(!button.isEnabled());
    QCOMPARE(button.property("changeSelfColor"), QVariant(true));
}

void tst_WidgetColorPickerButton::enabledWithATargetOnly()
{
    WidgetColorPickerButton button;
    QWidget first;
    {
        QWidget second;
        button.setTargetWidget(&first);
        QVERIFY(button.isEnabled());
        QCOMPARE(button.targetWidget(), &first);
        button.setTargetWidget(nullptr);
        QVERIFY(!button.isEnabled());
        button.setTargetWidget(&second);
    }
    QVERIFY(!button.isEnabled()); // a deleted target is none
    QVERIFY(!button.targetWidget());
    {
        QWidget third;
        button.setTargetWidget(&third);
        button.setTargetWidget(&first);
    }
    QVERIFY(button.isEnabled()); // an earlier target's death is nothing to it
}

void tst_WidgetColorPickerButton::clickWithoutTargetDoesNothing()
{
    WidgetColorPickerButton button;
    QSignalSpy started(&button, &WidgetColorPickerButton::pickingStarted);
    button.click();
    button.startPicking();
    QCOMPARE(started.count(), 0);
}

void tst_WidgetColorPickerButton::setColorReportsAlwaysAndStyles()
{
    WidgetColorPickerButton button;
    QSignalSpy changed(&button, &WidgetColorPickerButton::colorChanged);
    button.setColor(QColor(1, 2, 3, 4));
    button.setColor(QColor(1, 2, 3, 4));
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.first().first().value<QColor>(), QColor(1, 2, 3, 4));
    QCOMPARE(button.color(), QColor(1, 2, 3, 4));
    QCOMPARE(button.styleSheet(), QStringLiteral("QToolButton { background-color: #010203 }"));
}

void tst_WidgetColorPickerButton::setColorWithoutSelfColor()
{
    WidgetColorPickerButton button;
    button.setProperty("changeSelfColor", false);
    QSignalSpy changed(&button, &WidgetColorPickerButton::colorChanged);
    button.setColor(Qt::red);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(button.color(), QColor(Qt::red));
    QCOMPARE(button.styleSheet(), QString());
}

void tst_WidgetColorPickerButton::paintsPlainButtonOrToolButton()
{
    WidgetColorPickerButton button;
    QToolButton toolButton;
    PlainLook plain;
    for (QToolButton* each : {&toolButton, static_cast<QToolButton*>(&button), static_cast<QToolButton*>(&plain)}) {
        each->setText(QStringLiteral("Text"));
        each->setEnabled(true);
        each->resize(70, 30);
    }
    QVERIFY(render(toolButton) != render(plain));
    QCOMPARE(render(button), render(plain));
    button.setProperty("changeSelfColor", false);
    QCOMPARE(render(button), render(toolButton));

    button.setProperty("changeSelfColor", true);
    button.setColor(Qt::red);
    plain.setStyleSheet(button.styleSheet());
    QCOMPARE(render(button), render(plain));
}

void tst_WidgetColorPickerButton::signalsInOrder()
{
    SKIP_WITHOUT_PIXELS_UNDER_THE_CURSOR();
    Scene scene;
    QVERIFY(scene.ready);
    QStringList order;
    connect(scene.button, &WidgetColorPickerButton::pickingStarted, this, [&] {
        order << QStringLiteral("started");
        QVERIFY(!scene.picking());
    });
    connect(scene.button, &WidgetColorPickerButton::pickingFinished, this, [&] {
        order << QStringLiteral("finished");
        QVERIFY(!scene.button->color().isValid());
        QVERIFY(scene.ownFrame()); // goes after the signal
    });
    connect(scene.button, &WidgetColorPickerButton::colorChanged, this, [&](const QColor& color) {
        order << color.name();
        QVERIFY(!scene.ownFrame());
    });
    scene.whilePicking([&] { QTest::keyPress(&scene.window, Qt::Key_Space); });
    scene.button->click();
    QCOMPARE(order, (QStringList{QStringLiteral("started"), QStringLiteral("finished"), scene.expected().name()}));
    QCOMPARE(scene.button->color(), scene.expected());
}

void tst_WidgetColorPickerButton::nothingPickedKeepsTheColor()
{
    Scene scene;
    scene.button->setColor(Qt::darkCyan);
    QSignalSpy changed(scene.button, &WidgetColorPickerButton::colorChanged);
    QSignalSpy finished(scene.button, &WidgetColorPickerButton::pickingFinished);
    QCursor::setPos(scene.window.mapToGlobal(QPoint(5, 5)));
    scene.whilePicking([&] { QTest::mousePress(&scene.window, Qt::LeftButton, {}, QPoint(5, 5)); });
    scene.button->startPicking();
    QCOMPARE(finished.count(), 1);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(scene.button->color(), QColor(Qt::darkCyan));
}

void tst_WidgetColorPickerButton::stopPickingStillPicks()
{
    SKIP_WITHOUT_PIXELS_UNDER_THE_CURSOR();
    Scene scene;
    scene.whilePicking([&] {
        scene.button->stopPicking();
        QVERIFY(!scene.ownFrame());
    });
    scene.button->startPicking();
    QCOMPARE(scene.button->color(), scene.expected());
}

void tst_WidgetColorPickerButton::framesItselfWhilePicking()
{
    Scene scene;
    scene.whilePicking([&] {
        QVERIFY(scene.ownFrame());
        QTRY_VERIFY(scene.ownFrame()->isVisible());
        QVERIFY(scene.ownFrame()->geometry().contains(scene.button->geometry()));
        QCOMPARE(scene.window.findChildren<HighlightFrame*>().size(), 2); // and the target
        scene.button->stopPicking();
    });
    scene.button->startPicking();
    QVERIFY(scene.window.findChildren<HighlightFrame*>().isEmpty());
}

void tst_WidgetColorPickerButton::noFrameWithoutSelfColor()
{
    SKIP_WITHOUT_PIXELS_UNDER_THE_CURSOR();
    Scene scene;
    scene.button->setProperty("changeSelfColor", false);
    scene.whilePicking([&] {
        QVERIFY(!scene.ownFrame());
        scene.button->stopPicking();
    });
    scene.button->startPicking();
    QCOMPARE(scene.button->color(), scene.expected());
}

void tst_WidgetColorPickerButton::secondStartDoesNothing()
{
    Scene scene;
    QSignalSpy started(scene.button, &WidgetColorPickerButton::pickingStarted);
    scene.whilePicking([&] {
        scene.button->startPicking();
        QVERIFY(scene.picking());
        scene.button->stopPicking();
    });
    scene.button->startPicking();
    QCOMPARE(started.count(), 1);
}

void tst_WidgetColorPickerButton::startFromPickingStartedDoesNothing()
{
    SKIP_WITHOUT_PIXELS_UNDER_THE_CURSOR();
    Scene scene;
    QSignalSpy started(scene.button, &WidgetColorPickerButton::pickingStarted);
    connect(scene.button, &WidgetColorPickerButton::pickingStarted, this, [&] {
        if (started.count() < 5) // would go on for ever
            scene.button->startPicking();
    });
    scene.whilePicking([&] { scene.button->stopPicking(); });
    scene.button->startPicking();
    QCOMPARE(started.count(), 1);
    QCOMPARE(scene.button->color(), scene.expected());
}

void tst_WidgetColorPickerButton::startFromPickingFinishedPicksAgain()
{
    SKIP_WITHOUT_PIXELS_UNDER_THE_CURSOR();
    Scene scene;
    QSignalSpy started(scene.button, &WidgetColorPickerButton::pickingStarted);
    QSignalSpy changed(scene.button, &WidgetColorPickerButton::colorChanged);
    connect(scene.button, &WidgetColorPickerButton::pickingFinished, this, [&] {
        if (started.count() > 1)
            return;
        scene.whilePicking([&] { scene.button->stopPicking(); });
        scene.button->startPicking();
    });
    scene.whilePicking([&] { scene.button->stopPicking(); });
    scene.button->startPicking();
    QCOMPARE(started.count(), 2);
    QCOMPARE(changed.count(), 2);
    QVERIFY(scene.window.findChildren<HighlightFrame*>().isEmpty());
}

void tst_WidgetColorPickerButton::throwingSlotTakesTheFrameAway_data()
{
    QTest::addColumn<bool>("whilePicking");
    QTest::newRow("while picking") << true;
    QTest::newRow("when picking starts") << false;
}

void tst_WidgetColorPickerButton::throwingSlotTakesTheFrameAway()
{
    SKIP_WITHOUT_PIXELS_UNDER_THE_CURSOR();
    QFETCH(bool, whilePicking);
#ifdef Q_OS_WIN
    if (whilePicking)
        QSKIP("no exception passes through the window procedures of this system's event loop");
#endif
    Scene scene;
    const WarningCatcher qtComplains;
    const auto fail = [] { throw std::runtime_error("slot"); };
    QMetaObject::Connection connection;
    if (whilePicking)
        scene.whilePicking(fail);
    else
        connection = connect(scene.button, &WidgetColorPickerButton::pickingStarted, this, fail);
    bool thrown = false;
    try {
        scene.button->startPicking();
    } catch (const std::runtime_error&) {
        thrown = true;
    }
    QVERIFY(thrown);
    QVERIFY(scene.window.findChildren<HighlightFrame*>().isEmpty());

    disconnect(connection);
    scene.whilePicking([&] { scene.button->stopPicking(); });
    scene.button->startPicking();
    QCOMPARE(scene.button->color(), scene.expected());
}

void tst_WidgetColorPickerButton::clickOnTheButtonEndsAndDoesNotRestart()
{
    Scene scene;
    QSignalSpy started(scene.button, &WidgetColorPickerButton::pickingStarted);
    QSignalSpy pressed(scene.button, &WidgetColorPickerButton::pressed);
    scene.whilePicking([&] { QTest::mouseClick(scene.button, Qt::LeftButton); });
    scene.button->startPicking();
    QCOMPARE(started.count(), 1);
    QCOMPARE(pressed.count(), 0);
    QVERIFY(!scene.picking());
}

void tst_WidgetColorPickerButton::buttonDeletedWhilePicking()
{
    Scene scene;
    scene.whilePicking([&] { delete scene.button.data(); });
    scene.button->startPicking();
    QVERIFY(!scene.button);
    QVERIFY(scene.window.findChildren<HighlightFrame*>().isEmpty());
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_WidgetColorPickerButton::targetDeletedWhilePicking()
{
    Scene scene;
    QSignalSpy finished(scene.button, &WidgetColorPickerButton::pickingFinished);
    scene.whilePicking([&] { delete scene.board; });
    scene.button->startPicking();
    QCOMPARE(finished.count(), 1);
    QVERIFY(!scene.button->color().isValid());
    QVERIFY(!scene.button->isEnabled());
}

void tst_WidgetColorPickerButton::deletedFromItsSignals_data()
{
    QTest::addColumn<QString>("signal");
    QTest::newRow("started") << QStringLiteral("started");
    QTest::newRow("finished") << QStringLiteral("finished");
    QTest::newRow("changed") << QStringLiteral("changed");
}

void tst_WidgetColorPickerButton::deletedFromItsSignals()
{
    QFETCH(QString, signal);
    if (signal == QLatin1String("changed"))
        SKIP_WITHOUT_PIXELS_UNDER_THE_CURSOR();
    Scene scene;
    const auto removeButton = [&] { delete scene.button.data(); };
    if (signal == QLatin1String("started"))
        connect(scene.button, &WidgetColorPickerButton::pickingStarted, this, removeButton);
    else if (signal == QLatin1String("finished"))
        connect(scene.button, &WidgetColorPickerButton::pickingFinished, this, removeButton);
    else
        connect(scene.button, &WidgetColorPickerButton::colorChanged, this, removeButton);
    if (signal != QLatin1String("started"))
        scene.whilePicking([&] { scene.button->stopPicking(); });
    scene.button->startPicking();
    QVERIFY(!scene.button);
    QVERIFY(scene.window.findChildren<HighlightFrame*>().isEmpty());
}

void tst_WidgetColorPickerButton::realClickOnTheButtonItself()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        QSKIP("needs a window system with a real pointer");
    Scene scene;
    QSignalSpy started(scene.button, &WidgetColorPickerButton::pickingStarted);
    QSignalSpy finished(scene.button, &WidgetColorPickerButton::pickingFinished);
    const QPoint native = scene.button->mapToGlobal(QPoint(30, 20)) * scene.window.devicePixelRatioF();
    const auto click = [native] {
        QProcess::startDetached(QStringLiteral("xdotool"),
                                {QStringLiteral("mousemove"), QString::number(native.x()), QString::number(native.y()),
                                 QStringLiteral("click"), QStringLiteral("1")});
    };
    scene.whilePicking(click); // the first click starts, this one ends
    click();
    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(started.count(), 1);
    QVERIFY(!scene.button->color().isValid());
}

QTEST_MAIN(tst_WidgetColorPickerButton)
#include "tst_WidgetColorPickerButton.moc"
