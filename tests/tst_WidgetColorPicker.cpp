#include <KQt/Ui/HighlightFrame.h>
#include <KQt/Ui/WidgetColorPicker.h>

#include "support/OnceTrue.h"
#include "support/PixelBoard.h"
#include "support/WarningCatcher.h"
#include "support/WindowSystem.h"

#include <QGuiApplication>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTimer>

#include <QtTest>

#include <memory>
#include <stdexcept>

using Kestrel::Gui::HighlightFrame;
using Kestrel::Gui::WidgetColorPicker;
using TestSupport::onceTrue;
using TestSupport::PixelBoard;
using TestSupport::WarningCatcher;

Q_DECLARE_METATYPE(Qt::MouseButton)

namespace {

bool onDisplay()
{
    return QGuiApplication::platformName() == QLatin1String("xcb");
}

/// Whether windows can be seen, and read from the screen.
bool showsWindows()
{
    return onDisplay() || QGuiApplication::platformName() == QLatin1String("windows");
}

/// Whether a test function compares the colour under a cursor that it has placed.
bool samplesUnderTheCursor(const char* function)
{
    static const QSet<QByteArray> names = {"stopSamplesUnderTheCursor",
                                           "anyKeyPicks",
                                           "anyButtonPicks",
                                           "edgesOfTheTargetBelongToIt",
                                           "secondPickGivesNoColor",
                                           "pickFromTheEndingPressGivesNoColor",
                                           "quittingTheApplicationEnds",
                                           "throwingSlotUndoesEverything",
                                           "swallowWidgetDeletedWhilePicking",
                                           "withoutAPictureOfTheScreenTheWindowIsRead"};
    return names.contains(function);
}

QMouseEvent mouseEvent(QEvent::Type type, const QPoint& global, Qt::MouseButton button = Qt::LeftButton)
{
    return QMouseEvent(type, global, global, global, button, button, Qt::NoModifier);
}

/// A window with a board to pick from and a button beside it, shown and exposed.
struct Scene
{
    QWidget window;
    PixelBoard* board = new PixelBoard(&window);
    QPushButton* button = new QPushButton(&window);
    WidgetColorPicker picker;

    Scene()
    {
        window.setGeometry(200, 150, 400, 300);
        board->setGeometry(20, 30, 200, 100);
        button->setGeometry(300, 30, 60, 40);
        window.show();
        window.activateWindow();
        ready = QTest::qWaitForWindowExposed(&window);
        QCoreApplication::processEvents();
    }

    /// Picks while @p steps run from inside the loop; the cursor is at @p cursor of the board.
    QColor pick(const QPoint& cursor, const std::function<void()>& steps, const QSet<QWidget*>& swallow = {})
    {
        QCursor::setPos(board->mapToGlobal(cursor));
        onceTrue([this] { return picker.pickingInProgress(); }, steps);
        return picker.pick(board, swallow);
    }

    QColor expectedAt(const QPoint& position) const
    {
        const qreal ratio = window.devicePixelRatioF();
        return PixelBoard::colorAt(qRound(position.x() * ratio), qRound(position.y() * ratio));
    }

    bool ready = false;
};

} // namespace

class tst_WidgetColorPicker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    static void initMain();
    void init();
    void cleanup();
    void metaObject();
    void nullTargetGivesNoColor();
    void stopSamplesUnderTheCursor();
    void anyKeyPicks_data();
    void anyKeyPicks();
    void anyButtonPicks_data();
    void anyButtonPicks();
    void cursorOutsideGivesNoColor();
    void edgesOfTheTargetBelongToIt_data();
    void edgesOfTheTargetBelongToIt();
    void pressReachesWhatIsUnderIt();
    void pressOnASwallowWidgetIsSwallowed();
    void swallowingEndsWithPicking();
    void otherEventsPass();
    void doubleClickDoesNotEnd();
    void crossCursorOverTheTargetOnly();
    void targetIsFramedWhilePicking();
    void secondPickGivesNoColor();
    void pickFromTheEndingPressGivesNoColor();
    void lastWindowClosedEnds();
    void quittingTheApplicationEnds();
    void throwingSlotUndoesEverything();
    void overrideCursorOfTheApplicationStays();
    void withoutAPictureOfTheScreenTheWindowIsRead();
    void targetDeletedWhilePicking();
    void targetParentDeletedWhilePicking();
    void swallowWidgetDeletedWhilePicking();
    void pickerDeletedWhilePicking();
    void filterIsGoneAfterwards();
    void overlappingWindowIsSampled();
    void translucentWindowOnTopGivesAnOpaqueColor();
    void realPointerPicksTheExactPixel();
};

void tst_WidgetColorPicker::initMain()
{
    // Exceptions have to pass through the event loop here, and must not pass through a C library's.
    qputenv("QT_NO_GLIB", "1");
}

void tst_WidgetColorPicker::init()
{
    QVERIFY(!QGuiApplication::overrideCursor());
    if (samplesUnderTheCursor(QTest::currentTestFunction()))
        SKIP_WITHOUT_PIXELS_UNDER_THE_CURSOR();
}

void tst_WidgetColorPicker::cleanup()
{
    QVERIFY(!QGuiApplication::overrideCursor());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_WidgetColorPicker::metaObject()
{
    const QMetaObject& meta = WidgetColorPicker::staticMetaObject;
    QCOMPARE(meta.className(), "Kestrel::Gui::WidgetColorPicker");
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("stop()"));
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Slot);
}

void tst_WidgetColorPicker::nullTargetGivesNoColor()
{
    WidgetColorPicker picker;
    QVERIFY(!picker.pick(nullptr, {}).isValid());
    QVERIFY(!picker.pickingInProgress());
}

void tst_WidgetColorPicker::stopSamplesUnderTheCursor()
{
    Scene scene;
    QVERIFY(scene.ready);
    for (const QPoint& at : {QPoint(17, 23), QPoint(120, 60)}) {
        // Stopping is no way to cancel.
        const QColor color = scene.pick(at, [&] { scene.picker.stop(); });
        QCOMPARE(color, scene.expectedAt(at));
        QCOMPARE(color.alpha(), 255);
    }
}

void tst_WidgetColorPicker::anyKeyPicks_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("letter") << Qt::Key_A;
    QTest::newRow("Escape, which cancels elsewhere") << Qt::Key_Escape;
    QTest::newRow("Shift") << Qt::Key_Shift;
}

void tst_WidgetColorPicker::anyKeyPicks()
{
    QFETCH(Qt::Key, key);
    Scene scene;
    const QColor color = scene.pick(QPoint(40, 50), [&] {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(scene.button, &event);
    });
    QCOMPARE(color, scene.expectedAt(QPoint(40, 50)));
}

void tst_WidgetColorPicker::anyButtonPicks_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void tst_WidgetColorPicker::anyButtonPicks()
{
    QFETCH(Qt::MouseButton, button);
    Scene scene;
    const QPoint at(60, 70);
    const QColor color = scene.pick(at, [&] {
        QMouseEvent press = mouseEvent(QEvent::MouseButtonPress, scene.board->mapToGlobal(at), button);
        QCoreApplication::sendEvent(scene.board, &press);
    });
    QCOMPARE(color, scene.expectedAt(at));
    QVERIFY(!scene.picker.pickingInProgress());
}

void tst_WidgetColorPicker::cursorOutsideGivesNoColor()
{
    Scene scene;
    QVERIFY(!scene.pick(QPoint(300, 20), [&] { scene.picker.stop(); }).isValid());
}

void tst_WidgetColorPicker::edgesOfTheTargetBelongToIt_data()
{
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<bool>("inside");
    QTest::newRow("top left") << QPoint(0, 0) << true;
    QTest::newRow("bottom right") << QPoint(199, 99) << true;
    QTest::newRow("right of it") << QPoint(200, 50) << false;
    QTest::newRow("above it") << QPoint(50, -1) << false;
}

void tst_WidgetColorPicker::edgesOfTheTargetBelongToIt()
{
    QFETCH(QPoint, at);
    QFETCH(bool, inside);
    Scene scene;
    const QColor color = scene.pick(at, [&] { scene.picker.stop(); });
    QCOMPARE(color.isValid(), inside);
    if (inside)
        QCOMPARE(color, scene.expectedAt(at));
}

void tst_WidgetColorPicker::pressReachesWhatIsUnderIt()
{
    Scene scene;
    QSignalSpy pressed(scene.button, &QPushButton::pressed);
    const QPoint global = scene.button->mapToGlobal(QPoint(10, 10));
    const QColor color = scene.pick(scene.board->mapFromGlobal(global),
                                    [&] { QTest::mousePress(scene.button, Qt::LeftButton, {}, QPoint(10, 10)); });
    QVERIFY(!color.isValid());
    QCOMPARE(pressed.count(), 1);
}

void tst_WidgetColorPicker::pressOnASwallowWidgetIsSwallowed()
{
    Scene scene;
    QSignalSpy pressed(scene.button, &QPushButton::pressed);
    scene.pick(QPoint(5, 5), [&] { QTest::mousePress(scene.button, Qt::LeftButton, {}, QPoint(10, 10)); },
               {scene.window.focusProxy(), scene.button});
    QCOMPARE(pressed.count(), 0);
    QVERIFY(!scene.picker.pickingInProgress());
}

void tst_WidgetColorPicker::swallowingEndsWithPicking()
{
    Scene scene;
    scene.pick(QPoint(5, 5), [&] { scene.picker.stop(); }, {scene.button});
    QSignalSpy pressed(scene.button, &QPushButton::pressed);
    QTest::mousePress(scene.button, Qt::LeftButton);
    QCOMPARE(pressed.count(), 1);
}

void tst_WidgetColorPicker::otherEventsPass()
{
    Scene scene;
    QSignalSpy released(scene.button, &QPushButton::released);
    scene.pick(QPoint(5, 5),
               [&] {
                   QTest::keyRelease(scene.button, Qt::Key_A);
                   QMouseEvent release =
                       mouseEvent(QEvent::MouseButtonRelease, scene.button->mapToGlobal(QPoint(5, 5)));
                   QCoreApplication::sendEvent(scene.button, &release);
                   QVERIFY(scene.picker.pickingInProgress());
                   scene.picker.stop();
               },
               {scene.button});
}

void tst_WidgetColorPicker::doubleClickDoesNotEnd()
{
    Scene scene;
    scene.pick(QPoint(5, 5), [&] {
        QMouseEvent doubleClick = mouseEvent(QEvent::MouseButtonDblClick, scene.board->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(scene.board, &doubleClick);
        QVERIFY(scene.picker.pickingInProgress());
        scene.picker.stop();
    });
}

void tst_WidgetColorPicker::crossCursorOverTheTargetOnly()
{
    Scene scene;
    scene.pick(QPoint(5, 5), [&] {
        const auto moveTo = [&](const QPoint& at) {
            QMouseEvent move = mouseEvent(QEvent::MouseMove, scene.board->mapToGlobal(at), Qt::NoButton);
            QCoreApplication::sendEvent(scene.board, &move);
        };
        QVERIFY(!QGuiApplication::overrideCursor());
        moveTo(QPoint(10, 10));
        QVERIFY(QGuiApplication::overrideCursor());
        QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::CrossCursor);
        moveTo(QPoint(11, 10));
        moveTo(QPoint(200, 10)); // one pixel past the right edge; a second override would still be there
        QVERIFY(!QGuiApplication::overrideCursor());
        moveTo(QPoint(199, 10));
        QVERIFY(QGuiApplication::overrideCursor());
        scene.picker.stop();
        QVERIFY(!QGuiApplication::overrideCursor());
    });
}

void tst_WidgetColorPicker::targetIsFramedWhilePicking()
{
    Scene scene;
    QPointer<HighlightFrame> frame;
    QRect framed;
    scene.pick(QPoint(5, 5), [&] {
        frame = scene.window.findChild<HighlightFrame*>();
        QVERIFY(frame);
        QTRY_VERIFY(frame->isVisible());
        framed = frame->geometry();
        scene.picker.stop();
        QVERIFY(!frame);
    });
    QVERIFY(framed.contains(scene.board->geometry()));
    QVERIFY(!scene.window.findChild<HighlightFrame*>());
}

void tst_WidgetColorPicker::secondPickGivesNoColor()
{
    Scene scene;
    QColor second = Qt::red;
    const QColor first = scene.pick(QPoint(8, 9), [&] {
        second = scene.picker.pick(scene.board, {});
        QVERIFY(scene.picker.pickingInProgress());
        scene.picker.stop();
    });
    QVERIFY(!second.isValid());
    QCOMPARE(first, scene.expectedAt(QPoint(8, 9)));
}

void tst_WidgetColorPicker::pickFromTheEndingPressGivesNoColor()
{
    Scene scene;
    bool returned = false;
    connect(scene.button, &QPushButton::pressed, this, [&] {
        QVERIFY(!scene.picker.pick(scene.board, {}).isValid());
        returned = true;
    });
    const QColor color =
        scene.pick(QPoint(8, 9), [&] { QTest::mousePress(scene.button, Qt::LeftButton, {}, QPoint(10, 10)); });
    QVERIFY(returned);
    QCOMPARE(color, scene.expectedAt(QPoint(8, 9)));
}

void tst_WidgetColorPicker::lastWindowClosedEnds()
{
    Scene scene;
    qApp->setQuitOnLastWindowClosed(false);
    bool returned = false;
    QTimer::singleShot(0, &scene.window, [&] {
        scene.pick(QPoint(8, 9), [&] { scene.window.close(); });
        returned = true;
        QCoreApplication::quit();
    });
    // The application reports its last window's closing only while its own loop runs.
    QCoreApplication::exec();
    QVERIFY(returned);
    QVERIFY(!scene.picker.pickingInProgress());
    qApp->setQuitOnLastWindowClosed(true);
}

void tst_WidgetColorPicker::quittingTheApplicationEnds()
{
    Scene scene;
    QColor color;
    QTimer::singleShot(0, &scene.window, [&] {
        color = scene.pick(QPoint(8, 9), [&] {
            QMouseEvent move = mouseEvent(QEvent::MouseMove, scene.board->mapToGlobal(QPoint(8, 9)), Qt::NoButton);
            QCoreApplication::sendEvent(scene.board, &move);
            QVERIFY(QGuiApplication::overrideCursor());
            QCoreApplication::quit();
        });
        QVERIFY(!QGuiApplication::overrideCursor());
        QVERIFY(!scene.window.findChild<HighlightFrame*>());
    });
    QCoreApplication::exec();
    QCOMPARE(color, scene.expectedAt(QPoint(8, 9))); // as every other end
}

void tst_WidgetColorPicker::throwingSlotUndoesEverything()
{
#ifdef Q_OS_WIN
    QSKIP("no exception passes through the window procedures of this system's event loop");
#endif
    Scene scene;
    bool thrown = false;
    const WarningCatcher qtComplains;
    try {
        scene.pick(QPoint(8, 9), [&] {
            QMouseEvent move = mouseEvent(QEvent::MouseMove, scene.board->mapToGlobal(QPoint(8, 9)), Qt::NoButton);
            QCoreApplication::sendEvent(scene.board, &move);
            QVERIFY(QGuiApplication::overrideCursor());
            throw std::runtime_error("slot");
        });
    } catch (const std::runtime_error&) {
        thrown = true;
    }
    QVERIFY(thrown);
    QVERIFY(!QGuiApplication::overrideCursor());
    QVERIFY(!scene.picker.pickingInProgress());
    QVERIFY(!scene.window.findChild<HighlightFrame*>());
    QMouseEvent move = mouseEvent(QEvent::MouseMove, scene.board->mapToGlobal(QPoint(8, 9)), Qt::NoButton);
    QCoreApplication::sendEvent(scene.board, &move);
    QVERIFY(!QGuiApplication::overrideCursor()); // the filter is gone
    QCOMPARE(scene.pick(QPoint(8, 9), [&] { scene.picker.stop(); }), scene.expectedAt(QPoint(8, 9)));
}

void tst_WidgetColorPicker::overrideCursorOfTheApplicationStays()
{
    Scene scene;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto endOver = [&scene](const QPoint& at) {
        scene.pick(at, [&scene, at] {
            QMouseEvent move = mouseEvent(QEvent::MouseMove, scene.board->mapToGlobal(at), Qt::NoButton);
            QCoreApplication::sendEvent(scene.board, &move);
            scene.picker.stop();
            scene.picker.stop(); // a second time takes no more away
        });
    };
    for (const QPoint& at : {QPoint(8, 9), QPoint(300, 9)}) {
        endOver(at);
        QVERIFY(QGuiApplication::overrideCursor());
        QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    QGuiApplication::restoreOverrideCursor();
}

void tst_WidgetColorPicker::withoutAPictureOfTheScreenTheWindowIsRead()
{
    if (showsWindows())
        QSKIP("needs a window system that gives no picture, as the offscreen one where nothing is shown");
    Scene scene;
    scene.window.hide();
    for (const QPoint& at : {QPoint(8, 9), QPoint(199, 99)}) {
        const QColor color = scene.pick(at, [&] { scene.picker.stop(); });
        QCOMPARE(color, scene.expectedAt(at));
        QCOMPARE(color.alpha(), 255);
    }
}

void tst_WidgetColorPicker::targetDeletedWhilePicking()
{
    Scene scene;
    const QColor color = scene.pick(QPoint(8, 9), [&] { delete scene.board; });
    QVERIFY(!color.isValid());
    QVERIFY(!scene.window.findChild<HighlightFrame*>());
}

void tst_WidgetColorPicker::targetParentDeletedWhilePicking()
{
    WidgetColorPicker picker;
    auto window = std::make_unique<QWidget>();
    auto* board = new PixelBoard(window.get());
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    onceTrue([&] { return picker.pickingInProgress(); }, [&] { window.reset(); });
    QVERIFY(!picker.pick(board, {}).isValid());
}

void tst_WidgetColorPicker::swallowWidgetDeletedWhilePicking()
{
    Scene scene;
    const QColor color =
        scene.pick(QPoint(8, 9),
                   [&] {
                       delete scene.button;
                       QMouseEvent press = mouseEvent(QEvent::MouseButtonPress, scene.board->mapToGlobal(QPoint(8, 9)));
                       QCoreApplication::sendEvent(scene.board, &press);
                   },
                   {scene.button});
    QCOMPARE(color, scene.expectedAt(QPoint(8, 9)));
}

void tst_WidgetColorPicker::pickerDeletedWhilePicking()
{
    Scene scene;
    auto picker = std::make_unique<WidgetColorPicker>();
    QCursor::setPos(scene.board->mapToGlobal(QPoint(8, 9)));
    onceTrue([&] { return picker && picker->pickingInProgress(); },
             [&] {
                 QMouseEvent move = mouseEvent(QEvent::MouseMove, scene.board->mapToGlobal(QPoint(8, 9)), Qt::NoButton);
                 QCoreApplication::sendEvent(scene.board, &move);
                 QVERIFY(QGuiApplication::overrideCursor());
                 picker.reset();
                 QVERIFY(!QGuiApplication::overrideCursor());
             });
    QVERIFY(!picker->pick(scene.board, {}).isValid());
    QVERIFY(!picker);
    QVERIFY(!scene.window.findChild<HighlightFrame*>());
}

void tst_WidgetColorPicker::filterIsGoneAfterwards()
{
    Scene scene;
    scene.pick(QPoint(5, 5), [&] { scene.picker.stop(); });
    QMouseEvent move = mouseEvent(QEvent::MouseMove, scene.board->mapToGlobal(QPoint(10, 10)), Qt::NoButton);
    QCoreApplication::sendEvent(scene.board, &move);
    QVERIFY(!QGuiApplication::overrideCursor());
    // Outside a picking the filter lets everything pass and changes nothing.
    QVERIFY(!scene.picker.eventFilter(scene.board, &move));
    QVERIFY(!QGuiApplication::overrideCursor());
}

void tst_WidgetColorPicker::overlappingWindowIsSampled()
{
    if (!showsWindows())
        QSKIP("needs a window system that shows overlapping windows");
    Scene scene;
    QWidget over(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    over.setStyleSheet(QStringLiteral("background: #123456"));
    over.setGeometry(QRect(scene.board->mapToGlobal(QPoint(50, 50)), QSize(40, 30)));
    over.show();
    QVERIFY(QTest::qWaitForWindowExposed(&over));
    QColor color;
    QTRY_COMPARE((color = scene.pick(QPoint(60, 60), [&] { scene.picker.stop(); })), QColor(0x12, 0x34, 0x56));
    QCOMPARE(scene.pick(QPoint(10, 10), [&] { scene.picker.stop(); }), scene.expectedAt(QPoint(10, 10)));
}

void tst_WidgetColorPicker::translucentWindowOnTopGivesAnOpaqueColor()
{
    if (!onDisplay())
        QSKIP("needs a window system that shows translucent windows");
    Scene scene;
    QWidget over(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    over.setAttribute(Qt::WA_TranslucentBackground);
    over.setStyleSheet(QStringLiteral("background: rgba(200, 100, 50, 128)"));
    over.setGeometry(QRect(scene.board->mapToGlobal(QPoint(50, 50)), QSize(40, 30)));
    over.show();
    QVERIFY(QTest::qWaitForWindowExposed(&over));
    const QPoint global = scene.board->mapToGlobal(QPoint(60, 60));
    const auto onScreen = [&] {
        return QColor(
            QGuiApplication::primaryScreen()->grabWindow(0, global.x(), global.y(), 1, 1).toImage().pixel(0, 0));
    };
    QTRY_VERIFY(onScreen() != scene.expectedAt(QPoint(60, 60)));
    const QColor color = scene.pick(QPoint(60, 60), [&] { scene.picker.stop(); });
    QCOMPARE(color, onScreen());
    QCOMPARE(color.alpha(), 255);
}

void tst_WidgetColorPicker::realPointerPicksTheExactPixel()
{
    if (!onDisplay())
        QSKIP("needs a window system with a real pointer");
    Scene scene;
    const qreal ratio = scene.window.devicePixelRatioF();
    const QPoint origin = scene.board->mapToGlobal(QPoint(0, 0)) * ratio;
    // Odd device pixels too: at ratio 2 one unit is four pixels of different colours.
    for (const QPoint& pixel : {QPoint(31, 41), QPoint(32, 41), QPoint(31, 42), QPoint(33, 40), QPoint(34, 43),
                                QPoint(35, 44), QPoint(90, 80)}) {
        const QPoint native = origin + pixel;
        onceTrue([&] { return scene.picker.pickingInProgress(); },
                 [native] {
                     QProcess::startDetached(QStringLiteral("xdotool"),
                                             {QStringLiteral("mousemove"), QString::number(native.x()),
                                              QString::number(native.y()), QStringLiteral("click"),
                                              QStringLiteral("1")});
                 });
        QCOMPARE(scene.picker.pick(scene.board, {}), PixelBoard::colorAt(pixel.x(), pixel.y()));
    }
}

QTEST_MAIN(tst_WidgetColorPicker)
#include "tst_WidgetColorPicker.moc"
