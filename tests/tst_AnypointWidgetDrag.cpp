#include <KQt/Ui/AnypointWidgetDrag.h>

#include "support/AllEventTypes.h"
#include "support/EventRecorder.h"

#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QtTest>

#include <functional>
#include <memory>
#include <utility>

using Kestrel::Gui::AnypointWidgetDrag;

namespace {

constexpr QPoint start(50, 60);
constexpr QPoint pressAt(300, 400);

/// Sends a mouse event to @p target by hand. Only the global position counts.
void send(QObject* target, QEvent::Type type, const QPoint& globalPos, Qt::MouseButton button = Qt::LeftButton)
{
    QMouseEvent event(type, QPointF(1, 1), globalPos, button, button, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event);
}

void press(QObject* target, Qt::MouseButton button = Qt::LeftButton)
{
    send(target, QEvent::MouseButtonPress, pressAt, button);
}
void moveBy(QObject* target, const QPoint& way, Qt::MouseButton button = Qt::LeftButton)
{
    send(target, QEvent::MouseMove, pressAt + way, button);
}
void release(QObject* target, const QPoint& way, Qt::MouseButton button = Qt::LeftButton)
{
    send(target, QEvent::MouseButtonRelease, pressAt + way, button);
}

/// A panel in a window, moved by what happens to itself.
struct Panel
{
    Panel()
    {
        panel->setGeometry(QRect(start, QSize(100, 80)));
        panel->installEventFilter(&drag);
    }

    QWidget window;
    EventRecorder* panel = new EventRecorder(&window);
    AnypointWidgetDrag drag{panel};
};

/// Opens the steps of the gesture.
class OpenDrag : public AnypointWidgetDrag
{
public:
    using AnypointWidgetDrag::AnypointWidgetDrag;
    using AnypointWidgetDrag::ProcessDrag;
    using AnypointWidgetDrag::StartDrag;
    using AnypointWidgetDrag::StopDrag;
};

/// Does something when it is moved.
class MovedWidget : public QWidget
{
public:
    using QWidget::QWidget;
    std::function<void()> moved;

protected:
    void moveEvent(QMoveEvent* /*event*/) override
    {
        if (moved)
            moved();
    }
};

} // namespace

class tst_AnypointWidgetDrag : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void metaObject();
    void endsWithItsParent();
    void installsItselfNowhere();
    void followsFromTheFirstPixel();
    void tellsClicksFromDrags_data();
    void tellsClicksFromDrags();
    void comingBackMakesNoClick();
    void eachGestureStartsAnew();
    void anotherPressKeepsTheVerdict();
    void anyMouseButton_data();
    void anyMouseButton();
    void movesWithoutPressAreIgnored();
    void releaseWithoutPressPasses();
    void otherEventsPass();
    void movesAnotherThanTheWatched();
    void aDraggedButtonIsNotClicked();
    void movesAWindow();
    void subclassDrivesTheGesture();
    void widgetDeletedBeforeThePress();
    void widgetDeletedInMidDrag_data();
    void widgetDeletedInMidDrag();
    void noWidgetAtAll();
    void deletedByTheMove();
    void watchedDeletedByTheMove();
};

void tst_AnypointWidgetDrag::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_AnypointWidgetDrag::metaObject()
{
    const QMetaObject& meta = AnypointWidgetDrag::staticMetaObject;
    QCOMPARE(meta.className(), "Kestrel::Gui::AnypointWidgetDrag");
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_AnypointWidgetDrag::endsWithItsParent()
{
    QWidget widget;
    auto parent = std::make_unique<QObject>();
    const QPointer<AnypointWidgetDrag> drag = new AnypointWidgetDrag(&widget, parent.get());
    QCOMPARE(drag->parent(), parent.get());
    parent.reset();
    QVERIFY(!drag);
    QVERIFY(!AnypointWidgetDrag(&widget, nullptr).parent());
}

void tst_AnypointWidgetDrag::installsItselfNowhere()
{
    QWidget window;
    QWidget widget(&window);
    const AnypointWidgetDrag drag(&widget, &widget);
    press(&widget);
    moveBy(&widget, {30, 30});
    QCOMPARE(widget.pos(), QPoint());
}

void tst_AnypointWidgetDrag::followsFromTheFirstPixel()
{
    Panel p;
    press(p.panel);
    QCOMPARE(p.panel->pos(), start);
    for (const QPoint& way : {QPoint(1, 0), QPoint(1, -1), QPoint(9, 3), QPoint(40, -70), QPoint(-200, 5)}) {
        moveBy(p.panel, way);
        QCOMPARE(p.panel->pos(), start + way);
    }
    release(p.panel, {7, 7}); // moves nothing by itself
    QCOMPARE(p.panel->pos(), start + QPoint(-200, 5));
    moveBy(p.panel, {100, 100});
    QCOMPARE(p.panel->pos(), start + QPoint(-200, 5));
}

void tst_AnypointWidgetDrag::tellsClicksFromDrags_data()
{
    QTest::addColumn<QPoint>("way");
    QTest::addColumn<bool>("isDrag");
    QTest::newRow("none") << QPoint(0, 0) << false;
    QTest::newRow("10, 10") << QPoint(10, 10) << false;
    QTest::newRow("-10, -10") << QPoint(-10, -10) << false;
    QTest::newRow("10, -10") << QPoint(10, -10) << false;
    QTest::newRow("11 to the right") << QPoint(11, 0) << true;
    QTest::newRow("11 to the left") << QPoint(-11, 0) << true;
    QTest::newRow("11 down") << QPoint(0, 11) << true;
    QTest::newRow("11 up") << QPoint(0, -11) << true;
    QTest::newRow("far") << QPoint(500, 300) << true;
}

void tst_AnypointWidgetDrag::tellsClicksFromDrags()
{
    QFETCH(QPoint, way);
    QFETCH(bool, isDrag);
    Panel p;
    press(p.panel);
    moveBy(p.panel, way);
    QCOMPARE(p.panel->pos(), start + way); // also by the few pixels of a click
    release(p.panel, way);
    // Only the release of a drag is kept from the widget.
    QCOMPARE(p.panel->count(QEvent::MouseButtonPress), 1);
    QCOMPARE(p.panel->count(QEvent::MouseMove), 1);
    QCOMPARE(p.panel->count(QEvent::MouseButtonRelease), isDrag ? 0 : 1);
}

void tst_AnypointWidgetDrag::comingBackMakesNoClick()
{
    Panel p;
    press(p.panel);
    moveBy(p.panel, {11, 0});
    moveBy(p.panel, {0, 0});
    release(p.panel, {0, 0});
    QCOMPARE(p.panel->pos(), start);
    QCOMPARE(p.panel->count(QEvent::MouseButtonRelease), 0);
}

void tst_AnypointWidgetDrag::eachGestureStartsAnew()
{
    Panel p;
    press(p.panel);
    moveBy(p.panel, {20, 0});
    release(p.panel, {20, 0});
    press(p.panel);
    moveBy(p.panel, {5, 5});
    QCOMPARE(p.panel->pos(), start + QPoint(25, 5));
    release(p.panel, {5, 5});
    QCOMPARE(p.panel->count(QEvent::MouseButtonRelease), 1);
    press(p.panel);
    moveBy(p.panel, {0, -30});
    release(p.panel, {0, -30});
    QCOMPARE(p.panel->count(QEvent::MouseButtonRelease), 1);
}

void tst_AnypointWidgetDrag::anotherPressKeepsTheVerdict()
{
    // Buttons are not told apart: a second one in mid-drag is a new point to hold, and the first release ends it all.
    Panel p;
    press(p.panel);
    moveBy(p.panel, {30, 0});
    send(p.panel, QEvent::MouseButtonPress, pressAt + QPoint(30, 0), Qt::RightButton);
    moveBy(p.panel, {32, 0}, Qt::RightButton);
    QCOMPARE(p.panel->pos(), start + QPoint(32, 0));
    release(p.panel, {32, 0}, Qt::RightButton);
    QCOMPARE(p.panel->count(QEvent::MouseButtonRelease), 0);
    moveBy(p.panel, {90, 0});
    QCOMPARE(p.panel->pos(), start + QPoint(32, 0));
    release(p.panel, {90, 0});
    QCOMPARE(p.panel->count(QEvent::MouseButtonRelease), 1);
}

void tst_AnypointWidgetDrag::anyMouseButton_data()
{
    QTest::addColumn<int>("mouseButton");
    QTest::newRow("left") << int(Qt::LeftButton);
    QTest::newRow("right") << int(Qt::RightButton);
    QTest::newRow("middle") << int(Qt::MiddleButton);
    QTest::newRow("back") << int(Qt::BackButton);
}

void tst_AnypointWidgetDrag::anyMouseButton()
{
    QFETCH(int, mouseButton);
    const auto button = static_cast<Qt::MouseButton>(mouseButton);
    Panel p;
    press(p.panel, button);
    moveBy(p.panel, {15, 15}, button);
    release(p.panel, {15, 15}, button);
    QCOMPARE(p.panel->pos(), start + QPoint(15, 15));
    QCOMPARE(p.panel->count(QEvent::MouseButtonRelease), 0);
}

void tst_AnypointWidgetDrag::movesWithoutPressAreIgnored()
{
    Panel p;
    p.panel->setMouseTracking(true);
    moveBy(p.panel, {50, 50});
    QCOMPARE(p.panel->pos(), start);
    QCOMPARE(p.panel->count(QEvent::MouseMove), 1);
    // Nor do they count for the gesture that follows.
    press(p.panel);
    release(p.panel, {0, 0});
    QCOMPARE(p.panel->count(QEvent::MouseButtonRelease), 1);
}

void tst_AnypointWidgetDrag::releaseWithoutPressPasses()
{
    Panel p;
    release(p.panel, {100, 100});
    QCOMPARE(p.panel->count(QEvent::MouseButtonRelease), 1);
    QCOMPARE(p.panel->pos(), start);
}

void tst_AnypointWidgetDrag::otherEventsPass()
{
    Panel p;
    for (const QEvent::Type type :
         allEventTypesBut({QEvent::MouseButtonPress, QEvent::MouseMove, QEvent::MouseButtonRelease})) {
        QEvent event(type);
        QVERIFY2(!p.drag.eventFilter(p.panel, &event), QByteArray::number(type).constData());
    }
    // A double click is no press.
    send(p.panel, QEvent::MouseButtonDblClick, pressAt);
    moveBy(p.panel, {50, 50});
    QCOMPARE(p.panel->pos(), start);
}

void tst_AnypointWidgetDrag::movesAnotherThanTheWatched()
{
    Panel p;
    EventRecorder handle(p.panel);
    EventRecorder elsewhere;
    for (EventRecorder* watched : {&handle, &elsewhere}) {
        p.panel->move(start);
        watched->installEventFilter(&p.drag);
        press(watched);
        moveBy(watched, {25, -15});
        QCOMPARE(p.panel->pos(), start + QPoint(25, -15));
        QCOMPARE(watched->pos(), QPoint());
        release(watched, {25, -15});
        QCOMPARE(watched->count(QEvent::MouseButtonRelease), 0);
        watched->removeEventFilter(&p.drag);
    }
}

void tst_AnypointWidgetDrag::aDraggedButtonIsNotClicked()
{
    Panel p;
    QPushButton button(p.panel);
    button.resize(60, 30);
    button.installEventFilter(&p.drag);
    QSignalSpy clicked(&button, &QPushButton::clicked);
    press(&button);
    moveBy(&button, {10, 10});
    release(&button, {10, 10});
    QCOMPARE(clicked.count(), 1);
    press(&button);
    moveBy(&button, {11, 0});
    release(&button, {11, 0});
    QCOMPARE(clicked.count(), 1);
}

void tst_AnypointWidgetDrag::movesAWindow()
{
    QWidget window;
    window.setGeometry(120, 130, 200, 100);
    AnypointWidgetDrag drag(&window);
    window.installEventFilter(&drag);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QPoint before = window.pos();
    // A window manager may still be about to put its frame around it.
    QTRY_VERIFY(std::exchange(before, window.pos()) == window.pos() && window.isActiveWindow());
    press(&window);
    moveBy(&window, {33, 22});
    QTRY_COMPARE(window.pos(), before + QPoint(33, 22));
    release(&window, {33, 22});
}

void tst_AnypointWidgetDrag::subclassDrivesTheGesture()
{
    QWidget window;
    QWidget widget(&window);
    widget.move(start);
    OpenDrag drag(&widget);
    QVERIFY(!drag.StopDrag());
    drag.ProcessDrag({1000, 1000});
    QCOMPARE(widget.pos(), start);

    drag.StartDrag(pressAt);
    drag.ProcessDrag(pressAt + QPoint(3, 3));
    QCOMPARE(widget.pos(), start + QPoint(3, 3));
    QVERIFY(!drag.StopDrag());

    drag.StartDrag(pressAt);
    drag.ProcessDrag(pressAt + QPoint(0, 11));
    QVERIFY(drag.StopDrag());
    QVERIFY(!drag.StopDrag());
}

void tst_AnypointWidgetDrag::widgetDeletedBeforeThePress()
{
    EventRecorder handle;
    auto widget = std::make_unique<QWidget>();
    AnypointWidgetDrag drag(widget.get());
    handle.installEventFilter(&drag);
    widget.reset();
    press(&handle);
    moveBy(&handle, {40, 40});
    release(&handle, {40, 40});
    QCOMPARE(handle.count(QEvent::MouseButtonPress), 1);
    QCOMPARE(handle.count(QEvent::MouseMove), 1);
    QCOMPARE(handle.count(QEvent::MouseButtonRelease), 1);
}

void tst_AnypointWidgetDrag::widgetDeletedInMidDrag_data()
{
    QTest::addColumn<QPoint>("way");
    QTest::newRow("right after the press") << QPoint(0, 0);
    QTest::newRow("while it may be a click") << QPoint(4, 4);
    QTest::newRow("while it is a drag") << QPoint(40, 40);
}

void tst_AnypointWidgetDrag::widgetDeletedInMidDrag()
{
    QFETCH(QPoint, way);
    EventRecorder handle;
    auto widget = std::make_unique<QWidget>();
    AnypointWidgetDrag drag(widget.get());
    handle.installEventFilter(&drag);
    press(&handle);
    moveBy(&handle, way);
    widget.reset();
    moveBy(&handle, {90, 90});
    release(&handle, {90, 90});
    // What the user saw moving was dragged, so this is no click; what was gone before has not moved.
    QCOMPARE(handle.count(QEvent::MouseButtonRelease), way == QPoint(40, 40) ? 0 : 1);

    press(&handle);
    moveBy(&handle, {90, 90});
    handle.received.clear();
    release(&handle, {90, 90});
    QCOMPARE(handle.count(QEvent::MouseButtonRelease), 1);
}

void tst_AnypointWidgetDrag::noWidgetAtAll()
{
    EventRecorder handle;
    AnypointWidgetDrag drag(nullptr);
    handle.installEventFilter(&drag);
    press(&handle);
    moveBy(&handle, {40, 40});
    release(&handle, {40, 40});
    QCOMPARE(handle.count(QEvent::MouseButtonRelease), 1);
}

void tst_AnypointWidgetDrag::deletedByTheMove()
{
    EventRecorder handle;
    QWidget window;
    MovedWidget widget(&window);
    widget.show();
    window.show();
    QPointer<AnypointWidgetDrag> drag = new AnypointWidgetDrag(&widget);
    handle.installEventFilter(drag);
    widget.moved = [&] { delete drag; };
    press(&handle);
    moveBy(&handle, {20, 20});
    QVERIFY(!drag);
    release(&handle, {20, 20});
    QCOMPARE(handle.count(QEvent::MouseMove), 1);
    QCOMPARE(handle.count(QEvent::MouseButtonRelease), 1);
}

void tst_AnypointWidgetDrag::watchedDeletedByTheMove()
{
    QWidget window;
    MovedWidget widget(&window);
    widget.show();
    window.show();
    QPointer<EventRecorder> handle = new EventRecorder(&widget);
    AnypointWidgetDrag drag(&widget);
    handle->installEventFilter(&drag);
    widget.moved = [&] { delete handle; };
    press(handle);
    moveBy(handle, {20, 20});
    QVERIFY(!handle);
    QCOMPARE(widget.pos(), QPoint(20, 20));
}

QTEST_MAIN(tst_AnypointWidgetDrag)
#include "tst_AnypointWidgetDrag.moc"
