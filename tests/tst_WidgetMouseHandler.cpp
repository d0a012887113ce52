#include <KQt/Ui/WidgetMouseHandler.h>

#include "support/AllEventTypes.h"
#include "support/EventRecorder.h"

#include <QHoverEvent>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPointer>
#include <QtTest>

#include <functional>
#include <memory>
#include <stdexcept>

using Kestrel::Gui::WidgetMouseHandler;

namespace {

struct Handled
{
    QEvent::Type type;
    const char* signal;
};

// The event behind each signal, as the interface lists them.
constexpr Handled HandledEvents[] = {
    {QEvent::MouseButtonPress, "MouseButtonPressed"},
    {QEvent::MouseButtonRelease, "MouseButtonReleased"},
    {QEvent::MouseMove, "MouseMoved"},
    {QEvent::Enter, "MouseEntered"},
    {QEvent::Leave, "MouseLeaved"},
    {QEvent::HoverMove, "MouseHoverMoved"},
    {QEvent::HoverEnter, "MouseHoverEntered"},
    {QEvent::HoverLeave, "MouseHoverLeaved"},
};

std::unique_ptr<QEvent> makeEvent(QEvent::Type type)
{
    const QPointF at(12, 7);
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        return std::make_unique<QMouseEvent>(type, at, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    case QEvent::HoverMove:
    case QEvent::HoverEnter:
    case QEvent::HoverLeave:
        return std::make_unique<QHoverEvent>(type, at, QPointF(3, 4));
    default:
        return std::make_unique<QEvent>(type);
    }
}

/// Notes each signal of a handler with the event that came along, and calls back.
class SignalRecorder : public QObject
{
public:
    explicit SignalRecorder(WidgetMouseHandler* handler)
    {
        using H = WidgetMouseHandler;
        connect(handler, &H::MouseButtonPressed, this, [this](QMouseEvent* e) { note("MouseButtonPressed", e); });
        connect(handler, &H::MouseButtonReleased, this, [this](QMouseEvent* e) { note("MouseButtonReleased", e); });
        connect(handler, &H::MouseMoved, this, [this](QMouseEvent* e) { note("MouseMoved", e); });
        connect(handler, &H::MouseEntered, this, [this] { note("MouseEntered", nullptr); });
        connect(handler, &H::MouseLeaved, this, [this] { note("MouseLeaved", nullptr); });
        connect(handler, &H::MouseHoverMoved, this, [this](QHoverEvent* e) { note("MouseHoverMoved", e); });
        connect(handler, &H::MouseHoverEntered, this, [this](QHoverEvent* e) { note("MouseHoverEntered", e); });
        connect(handler, &H::MouseHoverLeaved, this, [this](QHoverEvent* e) { note("MouseHoverLeaved", e); });
    }

    int count(const char* name) const { return names.count(QLatin1String(name)); }

    QStringList names;
    QList<QEvent*> events;
    std::function<void(QEvent*)> reaction;

private:
    void note(const char* name, QEvent* event)
    {
        names << QLatin1String(name);
        events << event;
        if (reaction)
            reaction(event);
    }
};

/// A window with a pad inside, so that the pointer can enter and leave the pad without leaving the window.
class PadWindow : public QWidget
{
public:
    explicit PadWindow(bool hoverEvents)
        : pad(this)
    {
        setGeometry(80, 80, 300, 200);
        pad.setGeometry(50, 50, 200, 100);
        pad.setAttribute(Qt::WA_Hover, hoverEvents);
    }

    /// Real pointer motion where there is a pointer, otherwise the window's event.
    void movePointer(const QPoint& at)
    {
        if (QGuiApplication::platformName() == QLatin1String("xcb"))
            QCursor::setPos(mapToGlobal(at));
        else
            QTest::mouseMove(windowHandle(), at);
    }

    /// Brings the pointer into the window, beside the pad. Qt drops a motion that ends where the last one of all did.
    void bringPointer()
    {
        movePointer(outside + QPoint(5, 5));
        movePointer(outside);
    }

    const QPoint outside = {10, 10};
    const QPoint inside = {100, 90};
    EventRecorder pad;
};

} // namespace

class tst_WidgetMouseHandler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void signalsInOrder();
    void refusesNoParent();
    void belongsToItsWidget();
    void setsNoAttributeOfItsWidget();
    void oneSignalPerEvent_data();
    void oneSignalPerEvent();
    void slotsSeeTheEventAsItCame_data() { oneSignalPerEvent_data(); }
    void slotsSeeTheEventAsItCame();
    void otherEventsPassUntouched();
    void otherObjectsPassUntouched_data() { oneSignalPerEvent_data(); }
    void otherObjectsPassUntouched();
    void secondObjectReceivesItsClicks();
    void propagationDecidesWhetherTheWidgetIsClicked();
    void propagationTakesEffectFromTheNextEvent_data() { oneSignalPerEvent_data(); }
    void propagationTakesEffectFromTheNextEvent();
    void handlerDeletedInItsSlot_data() { oneSignalPerEvent_data(); }
    void handlerDeletedInItsSlot();
    void widgetDeletedInASlot_data() { oneSignalPerEvent_data(); }
    void widgetDeletedInASlot();
    void pointerOverAHoverWidget();
    void pointerOverAPlainWidget();
    void pointerOverATrackingWidget();
    void buttonHeldOverAPlainWidget();
    void swallowedHoverNeverReachesTheWidget();
};

void tst_WidgetMouseHandler::initTestCase()
{
    // Out of the way of every window that the tests open.
    if (QGuiApplication::platformName() == QLatin1String("xcb"))
        QCursor::setPos(1500, 900);
}

void tst_WidgetMouseHandler::cleanup()
{
    initTestCase();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_WidgetMouseHandler::signalsInOrder()
{
    // "Leaved" is misspelt on purpose: applications connect by these names.
    const QStringList expected = {
        QStringLiteral("MouseButtonPressed(QMouseEvent*) event"),
        QStringLiteral("MouseButtonReleased(QMouseEvent*) event"),
        QStringLiteral("MouseMoved(QMouseEvent*) event"),
        QStringLiteral("MouseEntered() "),
        QStringLiteral("MouseLeaved() "),
        QStringLiteral("MouseHoverMoved(QHoverEvent*) event"),
        QStringLiteral("MouseHoverEntered(QHoverEvent*) event"),
        QStringLiteral("MouseHoverLeaved(QHoverEvent*) event"),
    };
    const QMetaObject& metaObject = WidgetMouseHandler::staticMetaObject;
    QStringList actual;
    for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i) {
        const QMetaMethod method = metaObject.method(i);
        QCOMPARE(method.methodType(), QMetaMethod::Signal);
        actual << QString::fromLatin1(method.methodSignature() + ' ' + method.parameterNames().join(','));
    }
    QCOMPARE(actual, expected);
    QCOMPARE(metaObject.propertyCount(), metaObject.propertyOffset());
    QCOMPARE(metaObject.superClass(), &QObject::staticMetaObject);
}

void tst_WidgetMouseHandler::refusesNoParent()
{
    try {
        const WidgetMouseHandler handler(nullptr);
        QFAIL("no exception");
    } catch (const std::invalid_argument& e) {
        QVERIFY2(QByteArray(e.what()).startsWith("Parent object can't be NULL\n"), e.what());
    }
    // Nothing was left behind that would still receive events.
    EventRecorder widget;
    QTest::mouseClick(&widget, Qt::LeftButton);
    QCOMPARE(widget.count(QEvent::MouseButtonPress), 1);
}

void tst_WidgetMouseHandler::belongsToItsWidget()
{
    auto widget = std::make_unique<EventRecorder>();
    QPointer<WidgetMouseHandler> handler(new WidgetMouseHandler(widget.get()));
    QCOMPARE(handler->parent(), widget.get());

    // A handler that is deleted first takes its filter along.
    auto* second = new WidgetMouseHandler(widget.get());
    second->EnableEventPropagation(false);
    delete second;
    QTest::mouseClick(widget.get(), Qt::LeftButton);
    QCOMPARE(widget->count(QEvent::MouseButtonPress), 1);

    widget.reset();
    QVERIFY(handler.isNull());
}

void tst_WidgetMouseHandler::setsNoAttributeOfItsWidget()
{
    QWidget watched;
    const QWidget plain;
    const WidgetMouseHandler handler(&watched);
    for (int attribute = 0; attribute < Qt::WA_AttributeCount; ++attribute) {
        const auto which = static_cast<Qt::WidgetAttribute>(attribute);
        QCOMPARE(watched.testAttribute(which), plain.testAttribute(which));
    }
    QVERIFY(!watched.testAttribute(Qt::WA_Hover));
    QVERIFY(!watched.hasMouseTracking());
}

void tst_WidgetMouseHandler::oneSignalPerEvent_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("signal");
    for (const Handled& handled : HandledEvents)
        QTest::newRow(handled.signal) << static_cast<int>(handled.type) << QString::fromLatin1(handled.signal);
}

void tst_WidgetMouseHandler::oneSignalPerEvent()
{
    QFETCH(int, type);
    QFETCH(QString, signal);
    QWidget widget;
    WidgetMouseHandler handler(&widget);
    SignalRecorder recorder(&handler);
    const auto event = makeEvent(static_cast<QEvent::Type>(type));
    const bool carriesEvent = event->type() != QEvent::Enter && event->type() != QEvent::Leave;

    // Propagation is on by default; the event's state before it does not count.
    for (const bool acceptedBefore : {true, false}) {
        event->setAccepted(acceptedBefore);
        QCOMPARE(handler.eventFilter(&widget, event.get()), false);
        QCOMPARE(event->isAccepted(), false);
    }
    handler.EnableEventPropagation(false);
    for (const bool acceptedBefore : {true, false}) {
        event->setAccepted(acceptedBefore);
        QCOMPARE(handler.eventFilter(&widget, event.get()), true);
        QCOMPARE(event->isAccepted(), true);
    }
    handler.EnableEventPropagation(true);
    QCOMPARE(handler.eventFilter(&widget, event.get()), false);
    QCOMPARE(event->isAccepted(), false);

    QCOMPARE(recorder.names, QStringList({signal, signal, signal, signal, signal}));
    for (const QEvent* reported : qAsConst(recorder.events))
        QCOMPARE(reported, carriesEvent ? event.get() : nullptr);
}

void tst_WidgetMouseHandler::slotsSeeTheEventAsItCame()
{
    QFETCH(int, type);
    QWidget widget;
    WidgetMouseHandler handler(&widget);
    SignalRecorder recorder(&handler);
    const auto event = makeEvent(static_cast<QEvent::Type>(type));

    for (const bool propagate : {true, false}) {
        handler.EnableEventPropagation(propagate);
        for (const bool acceptedBefore : {true, false}) {
            bool acceptedInSlot = !acceptedBefore;
            recorder.reaction = [&](QEvent*) {
                acceptedInSlot = event->isAccepted();
                event->setAccepted(propagate); // what the slot decides is overruled
            };
            event->setAccepted(acceptedBefore);
            QCOMPARE(handler.eventFilter(&widget, event.get()), !propagate);
            QCOMPARE(acceptedInSlot, acceptedBefore);
            QCOMPARE(event->isAccepted(), !propagate);
        }
    }
}

void tst_WidgetMouseHandler::otherEventsPassUntouched()
{
    QWidget widget;
    WidgetMouseHandler handler(&widget);
    handler.EnableEventPropagation(false);
    SignalRecorder recorder(&handler);
    const auto types =
        allEventTypesBut({QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseMove, QEvent::Enter,
                          QEvent::Leave, QEvent::HoverMove, QEvent::HoverEnter, QEvent::HoverLeave});
    QVERIFY(types.size() > 400);
    for (const QEvent::Type type : types) {
        QEvent event(type);
        for (const bool accepted : {true, false}) {
            event.setAccepted(accepted);
            QVERIFY2(!handler.eventFilter(&widget, &event), QByteArray::number(type).constData());
            QCOMPARE(event.isAccepted(), accepted);
        }
    }
    QVERIFY(recorder.names.isEmpty());
}

void tst_WidgetMouseHandler::otherObjectsPassUntouched()
{
    QFETCH(int, type);
    QWidget widget;
    QWidget child(&widget);
    WidgetMouseHandler handler(&widget);
    handler.EnableEventPropagation(false);
    SignalRecorder recorder(&handler);
    const auto event = makeEvent(static_cast<QEvent::Type>(type));
    for (const bool accepted : {true, false}) {
        event->setAccepted(accepted);
        QVERIFY(!handler.eventFilter(&child, event.get()));
        QCOMPARE(event->isAccepted(), accepted);
    }
    QVERIFY(recorder.names.isEmpty());
}

void tst_WidgetMouseHandler::secondObjectReceivesItsClicks()
{
    QWidget widget;
    EventRecorder other;
    WidgetMouseHandler handler(&widget);
    handler.EnableEventPropagation(false);
    other.installEventFilter(&handler);
    SignalRecorder recorder(&handler);
    QTest::mouseClick(&other, Qt::LeftButton);
    QCOMPARE(other.count(QEvent::MouseButtonPress), 1);
    QCOMPARE(other.count(QEvent::MouseButtonRelease), 1);
    QVERIFY(recorder.names.isEmpty());
}

void tst_WidgetMouseHandler::propagationDecidesWhetherTheWidgetIsClicked()
{
    EventRecorder widget;
    WidgetMouseHandler handler(&widget);
    const SignalRecorder recorder(&handler);
    const QStringList click = {QStringLiteral("MouseButtonPressed"), QStringLiteral("MouseButtonReleased")};

    QTest::mouseClick(&widget, Qt::LeftButton);
    QCOMPARE(recorder.names, click);
    QCOMPARE(widget.count(QEvent::MouseButtonPress), 1);
    QCOMPARE(widget.count(QEvent::MouseButtonRelease), 1);

    handler.EnableEventPropagation(false);
    QTest::mouseClick(&widget, Qt::LeftButton);
    QCOMPARE(recorder.names, click + click);
    QCOMPARE(widget.count(QEvent::MouseButtonPress), 1);
    QCOMPARE(widget.count(QEvent::MouseButtonRelease), 1);

    handler.EnableEventPropagation(true);
    QTest::mouseClick(&widget, Qt::LeftButton);
    QCOMPARE(recorder.names, click + click + click);
    QCOMPARE(widget.count(QEvent::MouseButtonPress), 2);
}

void tst_WidgetMouseHandler::propagationTakesEffectFromTheNextEvent()
{
    QFETCH(int, type);
    EventRecorder widget;
    WidgetMouseHandler handler(&widget);
    SignalRecorder recorder(&handler);
    const auto eventType = static_cast<QEvent::Type>(type);

    // Switched off from inside the slot: this event still arrives, the next one does not.
    recorder.reaction = [&](QEvent*) { handler.EnableEventPropagation(false); };
    QCoreApplication::sendEvent(&widget, makeEvent(eventType).get());
    QCOMPARE(widget.count(eventType), 1);
    QCoreApplication::sendEvent(&widget, makeEvent(eventType).get());
    QCOMPARE(widget.count(eventType), 1);

    // And back on.
    recorder.reaction = [&](QEvent*) { handler.EnableEventPropagation(true); };
    QCoreApplication::sendEvent(&widget, makeEvent(eventType).get());
    QCOMPARE(widget.count(eventType), 1);
    QCoreApplication::sendEvent(&widget, makeEvent(eventType).get());
    QCOMPARE(widget.count(eventType), 2);
    QCOMPARE(recorder.names.size(), 4);
}

void tst_WidgetMouseHandler::handlerDeletedInItsSlot()
{
    QFETCH(int, type);
    const auto eventType = static_cast<QEvent::Type>(type);
    for (const bool propagate : {true, false}) {
        EventRecorder widget;
        QPointer<WidgetMouseHandler> handler(new WidgetMouseHandler(&widget));
        handler->EnableEventPropagation(propagate);
        SignalRecorder recorder(handler);
        recorder.reaction = [&](QEvent*) { delete handler; };

        QCoreApplication::sendEvent(&widget, makeEvent(eventType).get());
        QVERIFY(!handler);
        QCOMPARE(recorder.names.size(), 1);
        QCOMPARE(widget.count(eventType), propagate ? 1 : 0);
    }
}

void tst_WidgetMouseHandler::widgetDeletedInASlot()
{
    QFETCH(int, type);
    for (const bool propagate : {true, false}) {
        QPointer<QWidget> widget(new QWidget);
        QPointer<WidgetMouseHandler> handler(new WidgetMouseHandler(widget));
        handler->EnableEventPropagation(propagate);
        // A second handler sees the event first and marks it as ignored: Qt asks the receiver of an ignored event on.
        const QPointer<WidgetMouseHandler> first(new WidgetMouseHandler(widget));
        SignalRecorder recorder(handler);
        recorder.reaction = [&](QEvent*) { delete widget; };

        const auto event = makeEvent(static_cast<QEvent::Type>(type));
        QCoreApplication::sendEvent(widget, event.get());
        QVERIFY(!widget);
        QVERIFY(!handler);
        QVERIFY(!first);
        QCOMPARE(recorder.names.size(), 1);
        QVERIFY2(event->isAccepted(), "nothing is left for Qt to ask");
    }
}

void tst_WidgetMouseHandler::pointerOverAHoverWidget()
{
    PadWindow window(true);
    WidgetMouseHandler handler(&window.pad);
    const SignalRecorder recorder(&handler);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    window.bringPointer();
    window.movePointer(window.inside);
    QTRY_COMPARE(recorder.count("MouseHoverEntered"), 1);
    for (int move = 1; move <= 3; ++move) {
        const int before = recorder.count("MouseHoverMoved");
        window.movePointer(window.inside + QPoint(10 * move, 0));
        QTRY_VERIFY(recorder.count("MouseHoverMoved") > before);
    }
    window.movePointer(window.outside);
    QTRY_COMPARE(recorder.count("MouseHoverLeaved"), 1);

    QStringList hover = recorder.names.filter(QStringLiteral("Hover"));
    QCOMPARE(hover.takeFirst(), QStringLiteral("MouseHoverEntered"));
    QCOMPARE(hover.takeLast(), QStringLiteral("MouseHoverLeaved"));
    QCOMPARE(hover.count(QStringLiteral("MouseHoverMoved")), hover.size());
    QCOMPARE(recorder.count("MouseEntered"), 1);
    QCOMPARE(recorder.count("MouseLeaved"), 1);
    QVERIFY(window.pad.count(QEvent::HoverMove) >= 3);
}

void tst_WidgetMouseHandler::pointerOverAPlainWidget()
{
    PadWindow window(false);
    WidgetMouseHandler handler(&window.pad);
    const SignalRecorder recorder(&handler);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    window.bringPointer();
    window.movePointer(window.inside);
    QTRY_COMPARE(recorder.count("MouseEntered"), 1);
    window.movePointer(window.inside + QPoint(10, 0));
    window.movePointer(window.outside);
    QTRY_COMPARE(recorder.count("MouseLeaved"), 1);
    QCOMPARE(recorder.names, QStringList({QStringLiteral("MouseEntered"), QStringLiteral("MouseLeaved")}));
}

void tst_WidgetMouseHandler::pointerOverATrackingWidget()
{
    PadWindow window(false);
    window.pad.setMouseTracking(true);
    WidgetMouseHandler handler(&window.pad);
    const SignalRecorder recorder(&handler);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    window.bringPointer();
    window.movePointer(window.inside);
    QTRY_COMPARE(recorder.count("MouseEntered"), 1);
    const int before = recorder.count("MouseMoved");
    window.movePointer(window.inside + QPoint(10, 0));
    QTRY_VERIFY(recorder.count("MouseMoved") > before);
    QVERIFY(recorder.names.filter(QStringLiteral("Hover")).isEmpty());
}

void tst_WidgetMouseHandler::buttonHeldOverAPlainWidget()
{
    PadWindow window(false);
    WidgetMouseHandler handler(&window.pad);
    const SignalRecorder recorder(&handler);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, window.inside);
    QTest::mouseMove(window.windowHandle(), window.inside + QPoint(10, 0));
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, window.inside + QPoint(10, 0));
    QTRY_COMPARE(recorder.count("MouseButtonReleased"), 1);
    QCOMPARE(recorder.count("MouseButtonPressed"), 1);
    QVERIFY(recorder.count("MouseMoved") >= 1);
    QVERIFY(recorder.names.filter(QStringLiteral("Hover")).isEmpty());
}

void tst_WidgetMouseHandler::swallowedHoverNeverReachesTheWidget()
{
    PadWindow window(true);
    WidgetMouseHandler handler(&window.pad);
    handler.EnableEventPropagation(false);
    const SignalRecorder recorder(&handler);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    window.bringPointer();
    window.movePointer(window.inside);
    QTRY_COMPARE(recorder.count("MouseHoverEntered"), 1);
    window.movePointer(window.outside);
    QTRY_COMPARE(recorder.count("MouseHoverLeaved"), 1);
    for (const Handled& handled : HandledEvents)
        QCOMPARE(window.pad.count(handled.type), 0);
}

QTEST_MAIN(tst_WidgetMouseHandler)
#include "tst_WidgetMouseHandler.moc"
