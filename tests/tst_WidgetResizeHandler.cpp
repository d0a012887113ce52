#include <KQt/Ui/WidgetResizeHandler.h>

#include "support/AllEventTypes.h"
#include "support/EventRecorder.h"

#include <QMetaMethod>
#include <QPointer>
#include <QResizeEvent>
#include <QtTest>
#include <QWindow>

#include <memory>
#include <stdexcept>

using Kestrel::Gui::WidgetResizeHandler;

namespace {

using Sizes = QPair<QSize, QSize>;

/// What a handler reported, and each time the frame size that the widget had just then.
class ResizeRecorder : public QObject
{
public:
    ResizeRecorder(WidgetResizeHandler* handler, const QWidget* widget)
    {
        connect(handler, &WidgetResizeHandler::Resized, this, [this, widget](QSize oldSize, QSize newSize) {
            reports << Sizes(oldSize, newSize);
            if (widget)
                frameSizes << widget->frameSize();
        });
    }

    QList<Sizes> reports;
    QList<QSize> frameSizes;
};

} // namespace

class tst_WidgetResizeHandler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void oneSignal();
    void refusesNoParent();
    void belongsToItsObject();
    void resizeReportsTheEventsSizes();
    void resizingReportsOldAndNewSize();
    void everyShowReportsTheFrameSizeTwice();
    void showReportsTheFrameNotTheClientArea();
    void furtherObjectsAreReportedToo();
    void windowsReportResizesOnly();
    void noObjectIsNoShow();
    void nothingIsConsumedOrMarked();
    void everyEventReachesTheWidget();
    void handlerDeletedInItsSlot_data();
    void handlerDeletedInItsSlot();
    void objectDeletedInASlot_data() { handlerDeletedInItsSlot_data(); }
    void objectDeletedInASlot();
};

void tst_WidgetResizeHandler::cleanup()
{
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_WidgetResizeHandler::oneSignal()
{
    const QMetaObject& metaObject = WidgetResizeHandler::staticMetaObject;
    QCOMPARE(metaObject.methodCount() - metaObject.methodOffset(), 1);
    const QMetaMethod method = metaObject.method(metaObject.methodOffset());
    QCOMPARE(method.methodType(), QMetaMethod::Signal);
    QCOMPARE(method.methodSignature(), QByteArray("Resized(QSize,QSize)"));
    QCOMPARE(method.parameterNames(), QList<QByteArray>({"oldSize", "newSize"}));
    QCOMPARE(metaObject.propertyCount(), metaObject.propertyOffset());
    QCOMPARE(metaObject.superClass(), &QObject::staticMetaObject);
}

void tst_WidgetResizeHandler::refusesNoParent()
{
    try {
        const WidgetResizeHandler handler(nullptr);
        QFAIL("no exception");
    } catch (const std::invalid_argument& e) {
        QVERIFY2(QByteArray(e.what()).startsWith("Parent object can't be NULL\n"), e.what());
    }
    QWidget widget;
    QResizeEvent event(QSize(2, 2), QSize(1, 1));
    QVERIFY(QCoreApplication::sendEvent(&widget, &event));
}

void tst_WidgetResizeHandler::belongsToItsObject()
{
    auto object = std::make_unique<QObject>();
    const QPointer<WidgetResizeHandler> handler(new WidgetResizeHandler(object.get()));
    QCOMPARE(handler->parent(), object.get());
    object.reset();
    QVERIFY(handler.isNull());
}

void tst_WidgetResizeHandler::resizeReportsTheEventsSizes()
{
    // The event counts, whatever size the widget has.
    QWidget widget;
    widget.resize(100, 50);
    WidgetResizeHandler handler(&widget);
    const ResizeRecorder recorder(&handler, &widget);
    QResizeEvent event(QSize(30, 40), QSize(10, 20));
    QCoreApplication::sendEvent(&widget, &event);
    QCOMPARE(recorder.reports, QList<Sizes>({Sizes(QSize(10, 20), QSize(30, 40))}));
}

void tst_WidgetResizeHandler::resizingReportsOldAndNewSize()
{
    QWidget window;
    window.resize(300, 200);
    QWidget pad(&window);
    pad.resize(60, 40);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    WidgetResizeHandler handler(&pad);
    const ResizeRecorder recorder(&handler, &pad);
    pad.resize(90, 70);
    pad.resize(20, 70);
    QCOMPARE(recorder.reports,
             QList<Sizes>({Sizes(QSize(60, 40), QSize(90, 70)), Sizes(QSize(90, 70), QSize(20, 70))}));
    pad.resize(20, 70);
    pad.move(5, 5);
    QCOMPARE(recorder.reports.size(), 2);
}

void tst_WidgetResizeHandler::everyShowReportsTheFrameSizeTwice()
{
    QWidget window;
    window.resize(300, 200);
    QWidget pad(&window);
    pad.resize(60, 40);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    pad.hide();

    WidgetResizeHandler handler(&pad);
    const ResizeRecorder recorder(&handler, &pad);
    pad.show();
    QCOMPARE(recorder.reports, QList<Sizes>({Sizes(QSize(60, 40), QSize(60, 40))}));
    pad.hide();
    QCOMPARE(recorder.reports.size(), 1);
    pad.show();
    QCOMPARE(recorder.reports.size(), 2);
    QCOMPARE(recorder.reports.last(), Sizes(QSize(60, 40), QSize(60, 40)));
}

void tst_WidgetResizeHandler::showReportsTheFrameNotTheClientArea()
{
    QWidget window;
    window.resize(300, 200);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    // Deliberately unlike a resize, which reports client sizes.
    if (!QTest::qWaitFor([&window] { return window.frameSize() != window.size(); }, 2000))
        QSKIP("windows have no frames here");

    WidgetResizeHandler handler(&window);
    const ResizeRecorder recorder(&handler, &window);
    QShowEvent show;
    QCoreApplication::sendEvent(&window, &show);
    QCOMPARE(recorder.reports, QList<Sizes>({Sizes(window.frameSize(), window.frameSize())}));
    QVERIFY(recorder.reports.first().first != window.size());

    window.hide();
    window.show();
    QVERIFY(recorder.reports.size() >= 2);
    const Sizes shown = recorder.reports.at(1);
    QCOMPARE(shown, Sizes(recorder.frameSizes.at(1), recorder.frameSizes.at(1)));
}

void tst_WidgetResizeHandler::furtherObjectsAreReportedToo()
{
    QWidget window;
    QWidget first(&window);
    QWidget second(&window);
    second.resize(11, 12);
    WidgetResizeHandler handler(&first);
    second.installEventFilter(&handler);
    const ResizeRecorder recorder(&handler, &second);

    QResizeEvent resize(QSize(7, 8), QSize(5, 6));
    QCoreApplication::sendEvent(&second, &resize);
    QShowEvent show;
    QCoreApplication::sendEvent(&second, &show);
    QCOMPARE(recorder.reports,
             QList<Sizes>({Sizes(QSize(5, 6), QSize(7, 8)), Sizes(second.frameSize(), second.frameSize())}));
}

void tst_WidgetResizeHandler::windowsReportResizesOnly()
{
    QWindow window;
    WidgetResizeHandler handler(&window);
    const ResizeRecorder recorder(&handler, nullptr);
    QShowEvent show;
    QCoreApplication::sendEvent(&window, &show);
    QVERIFY(recorder.reports.isEmpty());

    QResizeEvent resize(QSize(70, 80), QSize(50, 60));
    QCoreApplication::sendEvent(&window, &resize);
    QCOMPARE(recorder.reports, QList<Sizes>({Sizes(QSize(50, 60), QSize(70, 80))}));

    window.resize(400, 300);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.resize(410, 310);
    QTRY_COMPARE(recorder.reports.last().second, QSize(410, 310));
}

void tst_WidgetResizeHandler::noObjectIsNoShow()
{
    QWidget widget;
    WidgetResizeHandler handler(&widget);
    const ResizeRecorder recorder(&handler, nullptr);
    QShowEvent show;
    QVERIFY(!handler.eventFilter(nullptr, &show));
    QObject plain;
    QVERIFY(!handler.eventFilter(&plain, &show));
    QVERIFY(recorder.reports.isEmpty());
    QResizeEvent resize(QSize(2, 2), QSize(1, 1));
    QVERIFY(!handler.eventFilter(nullptr, &resize));
    QCOMPARE(recorder.reports.size(), 1);
}

void tst_WidgetResizeHandler::nothingIsConsumedOrMarked()
{
    QWidget widget;
    WidgetResizeHandler handler(&widget);
    const ResizeRecorder recorder(&handler, &widget);
    QResizeEvent resize(QSize(2, 2), QSize(1, 1));
    QShowEvent show;
    QVector<QEvent*> events = {&resize, &show};
    std::vector<std::unique_ptr<QEvent>> others;
    for (const QEvent::Type type : allEventTypesBut({QEvent::Resize, QEvent::Show})) {
        others.push_back(std::make_unique<QEvent>(type));
        events << others.back().get();
    }
    for (QEvent* event : qAsConst(events)) {
        for (const bool accepted : {true, false}) {
            event->setAccepted(accepted);
            QVERIFY2(!handler.eventFilter(&widget, event), QByteArray::number(event->type()).constData());
            QCOMPARE(event->isAccepted(), accepted);
        }
    }
    // Two of each that are reported, and none of the others.
    QCOMPARE(recorder.reports.size(), 4);
}

void tst_WidgetResizeHandler::everyEventReachesTheWidget()
{
    EventRecorder widget;
    const WidgetResizeHandler handler(&widget);
    QResizeEvent resize(QSize(2, 2), QSize(1, 1));
    QCoreApplication::sendEvent(&widget, &resize);
    QShowEvent show;
    QCoreApplication::sendEvent(&widget, &show);
    QCOMPARE(widget.count(QEvent::Resize), 1);
    QCOMPARE(widget.count(QEvent::Show), 1);
}

void tst_WidgetResizeHandler::handlerDeletedInItsSlot_data()
{
    QTest::addColumn<bool>("show");
    QTest::newRow("resize") << false;
    QTest::newRow("show") << true;
}

void tst_WidgetResizeHandler::handlerDeletedInItsSlot()
{
    QFETCH(bool, show);
    QResizeEvent resizeEvent(QSize(2, 2), QSize(1, 1));
    QShowEvent showEvent;
    EventRecorder widget;
    const QPointer<WidgetResizeHandler> handler(new WidgetResizeHandler(&widget));
    connect(handler, &WidgetResizeHandler::Resized, this, [&handler] { delete handler; });
    QCoreApplication::sendEvent(&widget, show ? static_cast<QEvent*>(&showEvent) : &resizeEvent);
    QVERIFY(!handler);
    QCOMPARE(widget.count(show ? QEvent::Show : QEvent::Resize), 1);
}

void tst_WidgetResizeHandler::objectDeletedInASlot()
{
    QFETCH(bool, show);
    QResizeEvent resizeEvent(QSize(2, 2), QSize(1, 1));
    QShowEvent showEvent;
    const QPointer<QWidget> widget(new QWidget);
    const QPointer<WidgetResizeHandler> handler(new WidgetResizeHandler(widget));
    connect(handler, &WidgetResizeHandler::Resized, this, [&widget] { delete widget; });
    QCoreApplication::sendEvent(widget, show ? static_cast<QEvent*>(&showEvent) : &resizeEvent);
    QVERIFY(!widget);
    QVERIFY(!handler);
}

QTEST_MAIN(tst_WidgetResizeHandler)
#include "tst_WidgetResizeHandler.moc"
