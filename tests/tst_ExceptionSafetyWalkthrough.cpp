#include <KQt/Ui/HighlightFrame.h>
#include <KQt/Ui/WalkthroughController.h>

#include "support/MouseEvents.h"
#include "support/TestHint.h"
#include "support/Thrown.h"
#include "support/Tour.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QState>
#include <QtTest>

#include <algorithm>
#include <memory>

using namespace Kestrel::Gui;
using namespace TestSupport;

namespace {

/// A window with one target.
class Stage : public QWidget
{
public:
    Stage()
    {
        resize(500, 400);
        target->setProperty("walkthroughWidget", str("target"));
        target->setGeometry(100, 100, 90, 30);
    }

    QPushButton* target = new QPushButton(this);
};

bool isActive(WalkthroughController& controller, const char* path)
{
    return controller.configuration().contains(controller.findOrCreateState(str(path)));
}

/// Lets the event loop run until something has been thrown into it, if at all for a second.
template <typename Condition>
bool isThrownWhileWaitingFor(Condition condition)
{
    return isThrownBy([&condition] { (void)QTest::qWaitFor(condition, 1000); });
}

/// A prototype whose copies throw as long as @p onAsked says so.
class FragileHint : public TourHint
{
public:
    FragileHint(const QVector<TourPage>& pages, std::shared_ptr<TourRecord> record, std::shared_ptr<Fuse> onClone,
                std::shared_ptr<Fuse> onAsked)
        : TourHint(pages, record)
        , m_pages(pages)
        , m_record(std::move(record))
        , m_onClone(std::move(onClone))
        , m_onAsked(std::move(onAsked))
    {
    }

    WalkthroughHint* clone() const override
    {
        (*m_onClone)();
        auto* copy = new FragileHint(m_pages, m_record, m_onClone, m_onAsked);
        m_record->copies.append(copy);
        return copy;
    }
    QStackedWidget* stackedWidget() const override
    {
        (*m_onAsked)();
        return TourHint::stackedWidget();
    }

private:
    QVector<TourPage> m_pages;
    std::shared_ptr<TourRecord> m_record;
    std::shared_ptr<Fuse> m_onClone;
    std::shared_ptr<Fuse> m_onAsked;
};

int liveCopies(const Tour& tour)
{
    return static_cast<int>(std::count_if(tour.record->copies.cbegin(), tour.record->copies.cend(),
                                          [](const QPointer<TourHint>& copy) { return !copy.isNull(); }));
}

} // namespace

/// What the application's hints and slots throw during a walkthrough.
class tst_ExceptionSafetyWalkthrough : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void highlightFrame_data();
    void highlightFrame();

    void hintAnnouncesAgain_data();
    void hintAnnouncesAgain();
    void hintClosesAgain();
    void limitingTheText();

    void prototypeStaysTheCallers_data();
    void prototypeStaysTheCallers();
    void failedStart();
    void disablingForEver_data();
    void disablingForEver();
    void lateGroups();
};

void tst_ExceptionSafetyWalkthrough::highlightFrame_data()
{
    QTest::addColumn<bool>("geometry");
    QTest::newRow("geometryChanged") << true;
    QTest::newRow("visibilityChanged") << false;
}

// It tracks its widget as before.
void tst_ExceptionSafetyWalkthrough::highlightFrame()
{
    QFETCH(bool, geometry);
    Fuse fuse; // the frame reports until the stage is gone
    Stage stage;
    stage.show();
    auto* frame = new HighlightFrame(stage.target);
    QVERIFY(QTest::qWaitFor([frame] { return frame->isVisible(); }));
    if (geometry)
        connect(frame, &HighlightFrame::geometryChanged, this, [&fuse] { fuse(); });
    else
        connect(frame, &HighlightFrame::visibilityChanged, this, [&fuse] { fuse(); });
    const auto act = [&] { geometry ? stage.target->move(50, 50) : stage.target->hide(); };
    fuse.arm();
    QVERIFY(isThrownBy(act));

    stage.target->show();
    const QSignalSpy places(frame, &HighlightFrame::geometryChanged);
    stage.target->move(30, 60);
    QCOMPARE(places.size(), 1);
    QCOMPARE(frame->geometry(), stage.target->geometry().adjusted(-3, -3, 3, 3));
    const QSignalSpy visibility(frame, &HighlightFrame::visibilityChanged);
    stage.target->hide();
    QCOMPARE(visibility.size(), 1);
}

void tst_ExceptionSafetyWalkthrough::hintAnnouncesAgain_data()
{
    QTest::addColumn<bool>("forEver");
    QTest::newRow("for ever") << true;
    QTest::newRow("for the session") << false;
}

void tst_ExceptionSafetyWalkthrough::hintAnnouncesAgain()
{
    QFETCH(bool, forEver);
    Stage stage;
    stage.show();
    auto* hint = new TestHint;
    hint->addPage(str("name"), str("target"), str("bottom"));
    Fuse fuse;
    connect(hint, &WalkthroughHint::hintsDisabledForever, this, [&fuse] { fuse(); });
    connect(hint, &WalkthroughHint::hintsDisabledForSession, this, [&fuse] { fuse(); });
    const QSignalSpy spy(hint,
                         forEver ? &WalkthroughHint::hintsDisabledForever : &WalkthroughHint::hintsDisabledForSession);
    const auto show = [&] {
        hint->start({stage.target});
        return QTest::qWaitFor([hint] { return hint->isVisible(); });
    };
    const auto finish = [&] {
        forEver ? hint->disableHintsForever() : hint->disableHintsForSession();
        hint->finish();
    };
    QVERIFY(show());
    fuse.arm();
    QVERIFY(isThrownBy(finish));
    QVERIFY(!hint->isVisible());
    QVERIFY(!hint->getTargetWidget());

    QVERIFY(show());
    finish();
    QVERIFY(!hint->isVisible());
    QCOMPARE(spy.size(), 1);
}

// The announcement answers the Close event, as the controller has it: QWidget::close() is left by the exception.
void tst_ExceptionSafetyWalkthrough::hintClosesAgain()
{
    class Closer : public QObject
    {
    public:
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            if (event->type() == QEvent::Close)
                static_cast<TestHint*>(watched)->finish();
            return false;
        }
    };

    Stage stage;
    stage.show();
    Closer closer;
    auto* hint = new TestHint;
    hint->addPage(str("name"), str("target"), str("bottom"));
    hint->installEventFilter(&closer);
    Fuse fuse;
    connect(hint, &WalkthroughHint::hintsDisabledForever, this, [&fuse] { fuse(); });
    for (const bool byFinish : {false, true}) {
        const auto close = [&] {
            hint->disableHintsForever();
            if (byFinish)
                hint->finish();
            else
                hint->close();
        };
        hint->start({stage.target});
        QVERIFY(QTest::qWaitFor([hint] { return hint->isVisible(); }));
        fuse.arm();
        QVERIFY(isThrownBy(close));
        QVERIFY(!hint->isVisible());

        hint->start({stage.target});
        QVERIFY(QTest::qWaitFor([hint] { return hint->isVisible(); }));
        close();
        QVERIFY(!hint->isVisible());
    }
}

void tst_ExceptionSafetyWalkthrough::limitingTheText()
{
    class LimitedHint : public TestHint
    {
    public:
        Fuse onLimit;

    protected:
        void limitTextSize(QSize) override { onLimit(); }
    };

    Stage stage;
    stage.show();
    auto* hint = new LimitedHint;
    hint->addPage(str("name"), str("target"), str("bottom"));
    hint->start({stage.target});
    hint->onLimit.arm();
    QVERIFY(isThrownWhileWaitingFor([hint] { return hint->isVisible(); }));
    QVERIFY(!hint->isVisible());
    stage.target->move(60, 60);
    QVERIFY(QTest::qWaitFor([hint] { return hint->isVisible(); }));
}

void tst_ExceptionSafetyWalkthrough::prototypeStaysTheCallers_data()
{
    QTest::addColumn<bool>("cloning");
    QTest::addColumn<int>("callsToPass");
    QTest::newRow("first copy") << true << 0;
    QTest::newRow("second copy") << true << 1;
    // Each hint is asked for its pages many times, while it is made, registered and watched.
    for (int calls = 0; calls < 17; ++calls)
        QTest::addRow("pages, after %d calls", calls) << false << calls;
}

void tst_ExceptionSafetyWalkthrough::prototypeStaysTheCallers()
{
    QFETCH(bool, cloning);
    QFETCH(int, callsToPass);
    Stage stage;
    stage.show();
    WalkthroughController controller;
    QVERIFY(QTest::qWaitFor([&] { return isActive(controller, "probe/ready"); }));

    const Tour tour;
    const auto onClone = std::make_shared<Fuse>();
    const auto onAsked = std::make_shared<Fuse>();
    const QPointer<TourHint> prototype =
        new FragileHint({simplePage("a", "target"), simplePage("b", "other")}, tour.record, onClone, onAsked);
    (cloning ? onClone : onAsked)->arm(callsToPass);
    QVERIFY(isThrownBy([&] { controller.addHints(prototype); }));
    QCOMPARE(liveCopies(tour), 0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(prototype);

    controller.addHints(prototype);
    QCOMPARE(liveCopies(tour), 2);
    controller.gotoState(str("a/ready"));
    controller.gotoState(str("a/finished"));
    controller.gotoState(str("a/ready"));
    stage.target->hide();
    stage.target->show();
    QVERIFY(QTest::qWaitFor([&] { return tour.record->log.contains(str("start a")); }));
    QCOMPARE(tour.record->log, {str("start a")});
}

// A start that fails has not happened: nothing shows, and the next change tries again.
void tst_ExceptionSafetyWalkthrough::failedStart()
{
    Stage stage;
    WalkthroughController controller;
    Tour tour;
    Fuse fuse;
    tour.record->onStart = [&fuse](TourHint*) { fuse(); };
    controller.addHints(tour.prototype({simplePage("a", "target")}));
    fuse.arm();
    stage.show();
    QVERIFY(isThrownWhileWaitingFor([&fuse] { return !fuse.isArmed(); }));
    QVERIFY(!tour.hint(0)->getTargetWidget());
    for (int i = 0; i < 10; ++i)
        QCoreApplication::processEvents();
    QVERIFY(!tour.hint(0)->isVisible());

    stage.target->hide();
    stage.target->show();
    QVERIFY(QTest::qWaitFor([&] { return tour.hint(0)->isVisible(); }));
    tour.hint(0)->finish();
    QVERIFY(!tour.hint(0)->isVisible());
    QVERIFY(isActive(controller, "a/finished"));
}

void tst_ExceptionSafetyWalkthrough::disablingForEver_data()
{
    QTest::addColumn<bool>("byUser");
    QTest::newRow("closed by the user") << true;
    QTest::newRow("finished by a click on the target") << false;
}

// The slot that stores the user's choice throws: the hint is gone and hints are off all the same, and on again when
// they are switched on.
void tst_ExceptionSafetyWalkthrough::disablingForEver()
{
    QFETCH(bool, byUser);
    Stage stage;
    WalkthroughController controller;
    const Tour tour;
    controller.addHints(tour.prototype({simplePage("a", "target")}));
    Fuse fuse;
    connect(&controller, &WalkthroughController::hintsDisabledForever, this, [&fuse] { fuse(); });
    const QSignalSpy spy(&controller, &WalkthroughController::hintsDisabledForever);
    stage.show();
    QVERIFY(QTest::qWaitFor([&] { return tour.hint(0)->isVisible(); }));
    QMetaObject::invokeMethod(tour.hint(0), "disableHintsForever", Qt::DirectConnection);
    fuse.arm();
    QVERIFY(isThrownBy([&] {
        if (byUser)
            tour.hint(0)->close();
        else
            sendMouse(stage.target, QEvent::MouseButtonPress, QPoint(3, 3), Qt::LeftButton, Qt::LeftButton);
    }));
    QVERIFY(!tour.hint(0)->isVisible());
    QVERIFY(isActive(controller, "a/finished"));
    QCOMPARE(spy.size(), 0);

    controller.gotoState(str("a/ready"));
    QVERIFY(QTest::qWaitFor([&] { return tour.hint(0)->isVisible(); }));
}

// While groups that are new are entered the states of the others are silent, but no longer.
void tst_ExceptionSafetyWalkthrough::lateGroups()
{
    WalkthroughController controller;
    QAbstractState* early = controller.findOrCreateState(str("early/one"));
    QVERIFY(QTest::qWaitFor([&] { return controller.configuration().contains(early); }));
    QAbstractState* late = controller.findOrCreateState(str("late/one"));
    connect(late->parentState(), &QState::entered, this, [] { throw Thrown(); });
    QVERIFY(isThrownBy([&] { controller.gotoState(late); }));
    QVERIFY(!early->signalsBlocked());
    QVERIFY(!early->parentState()->signalsBlocked());
}

QTEST_MAIN(tst_ExceptionSafetyWalkthrough)
#include "tst_ExceptionSafetyWalkthrough.moc"
