#include <KQt/Ui/HighlightFrame.h>

#include "support/TestHint.h"

#include <QDialog>
#include <QMetaMethod>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <functional>
#include <iterator>
#include <vector>

using Kestrel::Gui::HighlightFrame;
using Kestrel::Gui::WalkthroughHint;
using TestSupport::TestHint;

namespace {

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

HighlightFrame* frameOf(const WalkthroughHint* hint)
{
    return qobject_cast<HighlightFrame*>(hint->getTargetWidget());
}

/// A shown window with a target, an avoid widget that is hidden, and a hint of one page for the target.
struct Stage
{
    explicit Stage(const char* alignment = "bottom", const QSize& size = QSize(400, 400))
    {
        window->resize(size);
        target->setGeometry(100, 160, 60, 32);
        avoid->hide();
        page = hint->addPage(text("name"), text("widget"), text(alignment));
        window->show();
        [[maybe_unused]] const bool exposed = QTest::qWaitForWindowExposed(window);
    }
    ~Stage()
    {
        delete hint;
        delete window;
    }
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    bool start()
    {
        hint->start({target});
        return QTest::qWaitFor([this] { return hint->isVisible(); });
    }

    QPointer<QWidget> window = new QWidget;
    QPointer<QWidget> target = new QWidget(window);
    QPointer<QWidget> avoid = new QWidget(window);
    QPointer<TestHint> hint = new TestHint;
    QWidget* page = nullptr;
};

/// The placement once more: numbers instead of rectangles, one axis after the other.
class Reference
{
public:
    double left, top, width, height;

    static Reference of(const QRect& r)
    {
        return {double(r.left()), double(r.top()), double(r.width()), double(r.height())};
    }
    double right() const { return left + width; }
    double bottom() const { return top + height; }
    bool isEmpty() const { return width <= 0 || height <= 0; }

    bool holds(const Reference& r) const
    {
        return r.left >= left && r.right() <= right() && r.top >= top && r.bottom() <= bottom();
    }
    bool meets(const Reference& r) const
    {
        return !isEmpty() && !r.isEmpty() && r.left < right() && left < r.right() && r.top < bottom() &&
               top < r.bottom();
    }
    Reference at(double x, double y) const { return {x, y, width, height}; }

    static QRect place(const QRect& targetRect, const QRect& windowRect, const QRect& avoidRect, const QSize& hint,
                       const QString& alignment)
    {
        const Reference target = of(targetRect);
        const Reference avoid = of(avoidRect);
        const Reference bounds = {5, 5, windowRect.width() - 10.0, windowRect.height() - 10.0};
        const double w = hint.width();
        const double h = hint.height();
        Reference r = {target.left + (target.width - w) / 2, target.top + (target.height - h) / 2, w, h};
        const bool sideways = alignment == text("left") || alignment == text("right");
        if (alignment == text("left"))
            r.left = target.left - 5 - w;
        if (alignment == text("right"))
            r.left = target.right() + 5;
        if (alignment == text("top"))
            r.top = target.top - 5 - h;
        if (alignment == text("bottom"))
            r.top = target.bottom() + 5;

        if (!bounds.holds(r)) {
            const double low = sideways ? r.top : r.left;
            const double high = sideways ? r.bottom() : r.right();
            const int over = int(std::trunc(high - (sideways ? bounds.bottom() : bounds.right())));
            const int under = int(std::trunc((sideways ? bounds.top : bounds.left) - low));
            const Reference a = sideways ? r.at(r.left, low - over - 5) : r.at(low - over - 5, r.top);
            const Reference b = sideways ? r.at(r.left, low + under + 5) : r.at(low + under + 5, r.top);
            if (over >= 1 && (under < 0 || over < under))
                r = bounds.holds(a) ? a : b;
            else if (under >= 1 && (over < 0 || under <= over))
                r = bounds.holds(b) ? b : a;
        }
        if (r.meets(avoid)) {
            const double low = sideways ? r.top : r.left;
            const int back = int(std::trunc(sideways ? r.bottom() - avoid.top : r.right() - avoid.left));
            const int forth = int(std::trunc(sideways ? avoid.bottom() - r.top : avoid.right() - r.left));
            const Reference a = sideways ? r.at(r.left, low - back - 5) : r.at(low - back - 5, r.top);
            // The vertical place either way.
            const Reference b = r.at(r.left, low + forth + 5);
            const bool preferB = back >= forth;
            r = preferB ? (bounds.holds(b) ? b : a) : (bounds.holds(a) ? a : b);
        }
        return r.rounded().cut(windowRect, avoidRect);
    }

private:
    Reference rounded() const
    {
        const double l = std::floor(left + 0.5);
        const double t = std::floor(top + 0.5);
        return {l, t, std::floor(right() + 0.5) - l, std::floor(bottom() + 0.5) - t};
    }

    QRect cut(const QRect& window, const QRect& avoid) const
    {
        int l = std::max(int(left), 5);
        int t = std::max(int(top), 5);
        int r = std::min(int(right()), window.width() - 5);
        int b = std::min(int(bottom()), window.height() - 5);
        if (l >= r || t >= b)
            return QRect(0, 0, 0, 0);
        const int avoidRight = avoid.x() + avoid.width();
        const int avoidBottom = avoid.y() + avoid.height();
        const bool coversWidth = avoid.x() <= l && avoidRight >= r;
        const bool coversHeight = avoid.y() <= t && avoidBottom >= b;
        if (!avoid.isEmpty() && coversWidth && coversHeight)
            return QRect(0, 0, 0, 0);
        // An edge moves only where the avoid widget takes all of it.
        if (!avoid.isEmpty() && coversWidth) {
            if (avoid.y() <= t)
                t = std::max(t, avoidBottom);
            else if (avoidBottom >= b)
                b = std::min(b, avoid.y());
        }
        if (!avoid.isEmpty() && coversHeight) {
            if (avoid.x() <= l)
                l = std::max(l, avoidRight);
            else if (avoidRight >= r)
                r = std::min(r, avoid.x());
        }
        return QRect(l, t, r - l, b - t);
    }
};

} // namespace

class tst_WalkthroughHint : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void metaObject();
    void freshHint();
    void pageProperties();
    void hintWithoutPages();
    void startKeepsItsOwnPageOnly();
    void startMakesAFrameAroundAllTargets();
    void startTakesBackTheChoice();
    void startAgainReplacesTheFrame();
    void startAgainAfterFinish();
    void startWithoutTargets();
    void placedByTheEventLoop();
    void livesInTheTopMostParent();
    void livesInTheDialog();
    void stayInTheWindowOnceThere();
    void placedOnEachSide_data();
    void placedOnEachSide();
    void placeAndTextLimit_data() { placedOnEachSide_data(); }
    void placeAndTextLimit();
    void clippedInASmallWindow();
    void windowWithoutRoom();
    void shiftedAwayFromTheRightEdge();
    void movedOffTheAvoidWidget();
    void mixedAxisIsKept();
    void whatCannotBeAvoidedIsCutOff();
    void avoidWidgetElsewhereIsNoObstacle();
    void avoidWidgetMovedUnderTheHint();
    void avoidWidgetThatDoesNotTouchIsIgnored();
    void avoidWidgetReplaced();
    void avoidEventsAreNotConsumed();
    void randomPlacement();
    void sizeHintWithoutExtent();
    void followsTheTargetInOneTurn();
    void followsTheFramesVisibility();
    void visibilityIsIgnoredUntilPlaced();
    void hiddenFrameKeepsTheHintHidden();
    void updateHintPosition();
    void lateReportsOfAnOldFrame();
    void finishSignals_data();
    void finishSignals();
    void finishReleasesTheFrame();
    void finishFromTheCloseEvent();
    void finishInItsSignal();
    void finishDoesNotEndTheApplication();
    void choicesTakenBack();
    void languageChangeLiftsTheLimit();
    void deletingTheHintDeletesTheFrame();
    void deletingTheWindowDeletesBoth();
    void deletingTheFrame();
    void deletingTargets();
    void deletingTheAvoidWidget();
    void deletingThePage();
    void deletedInItsSignal_data();
    void deletedInItsSignal();
    void finishedOrDeletedWhilePlaced_data();
    void finishedOrDeletedWhilePlaced();
    void avoidWidgetDeletedWhilePlaced();
    void targetsInSeveralWindows();
    void chaos();
};

void tst_WalkthroughHint::cleanup()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
    QCOMPARE(TestHint::alive(), 0);
}

void tst_WalkthroughHint::metaObject()
{
    const QMetaObject& metaObject = WalkthroughHint::staticMetaObject;
    QCOMPARE(metaObject.className(), "Kestrel::Gui::WalkthroughHint");
    QCOMPARE(metaObject.superClass(), &QWidget::staticMetaObject);
    const struct
    {
        const char* signature;
        QMetaMethod::MethodType type;
        QMetaMethod::Access access;
    } methods[] = {
        {"hintsDisabledForSession()", QMetaMethod::Signal, QMetaMethod::Public},
        {"hintsDisabledForever()", QMetaMethod::Signal, QMetaMethod::Public},
        {"enableHintsForever()", QMetaMethod::Slot, QMetaMethod::Protected},
        {"disableHintsForever()", QMetaMethod::Slot, QMetaMethod::Protected},
        {"enableHintsForSession()", QMetaMethod::Slot, QMetaMethod::Protected},
        {"disableHintsForSession()", QMetaMethod::Slot, QMetaMethod::Protected},
        {"frameDestroyed()", QMetaMethod::Slot, QMetaMethod::Protected},
        {"frameVisibilityChanged(bool)", QMetaMethod::Slot, QMetaMethod::Private},
        {"frameGeometryChanged(QRect)", QMetaMethod::Slot, QMetaMethod::Private},
        {"avoidGeometryChanged()", QMetaMethod::Slot, QMetaMethod::Private},
    };
    QCOMPARE(metaObject.methodCount() - metaObject.methodOffset(), int(std::size(methods)));
    int index = metaObject.methodOffset();
    for (const auto& expected : methods) {
        const QMetaMethod method = metaObject.method(index++);
        QCOMPARE(method.methodSignature(), QByteArray(expected.signature));
        QCOMPARE(method.methodType(), expected.type);
        QCOMPARE(method.access(), expected.access);
    }
}

void tst_WalkthroughHint::freshHint()
{
    TestHint hint;
    QVERIFY(!hint.parentWidget());
    QVERIFY(!hint.isVisible());
    QVERIFY(!hint.getTargetWidget());
    QCOMPARE(hint.minimumSizeHint(), QSize(0, 0));
    QCOMPARE(WalkthroughHint::widgetPropertyName(), "walkthroughWidget");
    hint.updateHintPosition();
    QVERIFY(!hint.isVisible());
}

void tst_WalkthroughHint::pageProperties()
{
    TestHint hint;
    QWidget* first = hint.addPage(text("n"), text("w"), text("left"), {text("a/b"), text("c/d")});
    QWidget* second = hint.addPage(text("m"), text("v"));
    QCOMPARE(hint.contentWidget(), first);
    QCOMPARE(hint.hintName(), text("n"));
    QCOMPARE(hint.widgetName(), text("w"));
    QCOMPARE(hint.alignment(), text("left"));
    QCOMPARE(hint.conditionList(), QStringList({text("a/b"), text("c/d")}));
    hint.stackedWidget()->setCurrentIndex(1);
    QCOMPARE(hint.contentWidget(), second);
    QCOMPARE(hint.hintName(), text("m"));
    QCOMPARE(hint.widgetName(), text("v"));
    QVERIFY(hint.alignment().isEmpty());
    QVERIFY(hint.conditionList().isEmpty());
    second->setProperty("walkthroughName", 7);
    QCOMPARE(hint.hintName(), text("7"));
    second->setProperty("walkthroughConditionList", text("one/state"));
    QCOMPARE(hint.conditionList(), QStringList({text("one/state")}));
}

void tst_WalkthroughHint::hintWithoutPages()
{
    QWidget window;
    window.resize(300, 300);
    QWidget target(&window);
    window.show();
    auto* hint = new TestHint;
    QVERIFY(!hint->contentWidget());
    QVERIFY(hint->hintName().isEmpty());
    QVERIFY(hint->conditionList().isEmpty());
    hint->start({&target});
    QTRY_VERIFY(hint->isVisible());
    hint->finish();
}

void tst_WalkthroughHint::startKeepsItsOwnPageOnly()
{
    Stage s;
    s.hint->addPage(text("second"), text("w"));
    QWidget* third = s.hint->addPage(text("third"), text("w"));
    s.hint->addPage(text("fourth"), text("w"));
    s.hint->stackedWidget()->setCurrentWidget(third);
    QVERIFY(s.start());
    QCOMPARE(s.hint->stackedWidget()->count(), 1);
    QCOMPARE(s.hint->contentWidget(), third);
    QCOMPARE(s.hint->hintName(), text("third"));
}

void tst_WalkthroughHint::startMakesAFrameAroundAllTargets()
{
    Stage s;
    auto* other = new QWidget(s.window);
    other->setGeometry(200, 30, 20, 20);
    other->show();
    s.hint->start({s.target, other});
    HighlightFrame* frame = frameOf(s.hint);
    QVERIFY(frame);
    QCOMPARE(frame->parentWidget(), s.window.data());
    QTRY_VERIFY(s.hint->isVisible());
    QCOMPARE(frame->geometry(), QRect(QPoint(97, 27), QPoint(222, 194)));
    // Below the middle of both.
    QCOMPARE(s.hint->geometry(), QRect(130, 200, 60, 40));
}

void tst_WalkthroughHint::startTakesBackTheChoice()
{
    Stage s;
    const QSignalSpy forever(s.hint, &WalkthroughHint::hintsDisabledForever);
    const QSignalSpy session(s.hint, &WalkthroughHint::hintsDisabledForSession);
    s.hint->disableHintsForever();
    s.hint->disableHintsForSession();
    s.hint->start({s.target});
    s.hint->finish();
    QCOMPARE(forever.count() + session.count(), 0);
}

void tst_WalkthroughHint::startAgainReplacesTheFrame()
{
    Stage s;
    QVERIFY(s.start());
    const QPointer<HighlightFrame> old = frameOf(s.hint);
    auto* other = new QWidget(s.window);
    other->setGeometry(200, 30, 20, 20);
    other->show();
    s.hint->start({other});
    QVERIFY(old);
    const QPointer<HighlightFrame> fresh = frameOf(s.hint);
    QVERIFY(fresh != old);
    QTRY_VERIFY(old.isNull());
    // The old frame's late end does not make the hint forget the new one.
    QCOMPARE(frameOf(s.hint), fresh.data());
    QTRY_COMPARE(s.hint->geometry(), QRect(180, 58, 60, 40));
    QVERIFY(s.hint->isVisible());
}

void tst_WalkthroughHint::startAgainAfterFinish()
{
    Stage s;
    QVERIFY(s.start());
    s.hint->finish();
    QVERIFY(!s.hint->isVisible());
    QVERIFY(s.start());
    QVERIFY(frameOf(s.hint));
}

void tst_WalkthroughHint::startWithoutTargets()
{
    for (const QSet<QWidget*>& targets : {QSet<QWidget*>(), QSet<QWidget*>{nullptr}}) {
        TestHint hint;
        hint.addPage(text("n"), text("w"));
        hint.start(targets);
        QCoreApplication::processEvents();
        QVERIFY(hint.getTargetWidget());
        // Placing without a window to be placed in does nothing.
        QVERIFY(QMetaObject::invokeMethod(&hint, "frameGeometryChanged", Q_ARG(QRect, QRect(1, 2, 3, 4))));
        QVERIFY(!hint.isVisible());
        QVERIFY(!hint.parentWidget());
        hint.finish();
        QVERIFY(!hint.getTargetWidget());
    }
}

void tst_WalkthroughHint::placedByTheEventLoop()
{
    Stage s;
    s.hint->start({s.target});
    QVERIFY(!s.hint->parentWidget());
    QVERIFY(!s.hint->isVisible());
    const QSignalSpy placed(frameOf(s.hint), &HighlightFrame::geometryChanged);
    bool placedWithinTheFramesReport = false;
    connect(frameOf(s.hint), &HighlightFrame::geometryChanged, this,
            [&] { placedWithinTheFramesReport = s.hint->parentWidget() != nullptr; });
    QTRY_VERIFY(s.hint->isVisible());
    QCOMPARE(placed.count(), 1);
    QVERIFY(!placedWithinTheFramesReport);
    QCOMPARE(s.hint->parentWidget(), s.window.data());
    QVERIFY(!s.hint->isWindow());
}

void tst_WalkthroughHint::livesInTheTopMostParent()
{
    Stage s;
    auto* box = new QWidget(s.window);
    box->setGeometry(50, 50, 200, 200);
    auto* inner = new QWidget(box);
    inner->setGeometry(40, 40, 50, 20);
    box->show();
    s.hint->start({inner});
    QTRY_VERIFY(s.hint->isVisible());
    QCOMPARE(s.hint->parentWidget(), s.window.data());
    // Frame 87..143 x 87..113 in the window.
    QCOMPARE(s.hint->geometry(), QRect(85, 118, 60, 40));
}

void tst_WalkthroughHint::livesInTheDialog()
{
    Stage s;
    auto* dialog = new QDialog(s.window);
    dialog->resize(300, 200);
    auto* inner = new QWidget(dialog);
    inner->setGeometry(100, 40, 60, 20);
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    s.hint->start({inner});
    QTRY_VERIFY(s.hint->isVisible());
    QCOMPARE(s.hint->parentWidget(), dialog);
    QCOMPARE(frameOf(s.hint)->parentWidget(), dialog);
    QCOMPARE(s.hint->geometry(), QRect(100, 68, 60, 40));
}

void tst_WalkthroughHint::stayInTheWindowOnceThere()
{
    Stage s;
    QVERIFY(s.start());
    Stage other;
    s.hint->start({other.target});
    const QPointer<HighlightFrame> frame = frameOf(s.hint);
    QCOMPARE(frame->parentWidget(), other.window.data());
    QTRY_VERIFY(frame->isVisible());
    QCoreApplication::processEvents();
    QCOMPARE(s.hint->parentWidget(), s.window.data());
    // The frame's window takes the frame away; the hint has none then.
    delete other.window;
    QVERIFY(frame.isNull());
    QVERIFY(!s.hint->getTargetWidget());
    s.hint->finish();
}

void tst_WalkthroughHint::placedOnEachSide_data()
{
    QTest::addColumn<QString>("alignment");
    QTest::addColumn<QPoint>("topLeft");
    // The frame is 66 x 38 at (97, 157), the hint 60 x 40.
    QTest::newRow("left") << text("left") << QPoint(97 - 5 - 60, 156);
    QTest::newRow("right") << text("right") << QPoint(97 + 66 + 5, 156);
    QTest::newRow("top") << text("top") << QPoint(100, 157 - 5 - 40);
    QTest::newRow("bottom") << text("bottom") << QPoint(100, 157 + 38 + 5);
    QTest::newRow("none") << QString() << QPoint(100, 156);
    QTest::newRow("another word") << text("above") << QPoint(100, 156);
    QTest::newRow("capital") << text("Left") << QPoint(100, 156);
    QTest::newRow("blank") << text(" left") << QPoint(100, 156);
}

void tst_WalkthroughHint::placedOnEachSide()
{
    QFETCH(QString, alignment);
    QFETCH(QPoint, topLeft);
    Stage s(alignment.toLatin1().constData());
    QVERIFY(s.start());
    QCOMPARE(s.hint->geometry(), QRect(topLeft, QSize(60, 40)));
}

void tst_WalkthroughHint::placeAndTextLimit()
{
    QFETCH(QString, alignment);
    Stage s(alignment.toLatin1().constData());
    QVERIFY(s.start());
    // 655536 and not 65536: texts are laid out against this very number.
    const bool isBeside = alignment == text("left") || alignment == text("right");
    QCOMPARE(s.hint->textLimits, QList<QSize>({isBeside ? QSize(60, 655536) : QSize(655536, 60)}));
}

void tst_WalkthroughHint::clippedInASmallWindow()
{
    Stage s("bottom", QSize(200, 230));
    s.hint->setSizeHint(QSize(500, 500));
    QVERIFY(s.start());
    // From five below the frame to five above the lower edge. Across, the hint was moved to the left until it lay ten
    // from the right edge, and what then stood out on the left was cut off five from there.
    const int width = s.window->width() - 10 - 5;
    QCOMPARE(s.hint->geometry(), QRect(QPoint(5, 200), QPoint(5 + width - 1, s.window->height() - 6)));
    QCOMPARE(s.hint->textLimits.last(), QSize(655536, width));
}

void tst_WalkthroughHint::windowWithoutRoom()
{
    Stage s("bottom");
    QVERIFY(s.start());
    auto* tiny = new QWidget(s.window);
    s.hint->setParent(tiny);
    for (const int extent : {0, 5, 9, 10}) {
        tiny->resize(extent, extent);
        QVERIFY(QMetaObject::invokeMethod(s.hint, "frameGeometryChanged", Q_ARG(QRect, QRect())));
        QCOMPARE(s.hint->geometry(), QRect(0, 0, 0, 0));
    }
}

void tst_WalkthroughHint::shiftedAwayFromTheRightEdge()
{
    Stage s("bottom");
    s.hint->setSizeHint(QSize(120, 40));
    s.target->move(s.window->width() - 70, 160);
    QVERIFY(s.start());
    QCOMPARE(s.hint->geometry(), QRect(s.window->width() - 10 - 120, 200, 120, 40));
    s.target->move(10, 160);
    QTRY_COMPARE(s.hint->geometry(), QRect(10, 200, 120, 40));
}

void tst_WalkthroughHint::movedOffTheAvoidWidget()
{
    Stage s("right");
    s.hint->setAvoidWidget(s.avoid);
    // The hint's place is (168, 156), 60 x 40. Up is nearer than down, then down nearer than up.
    s.avoid->setGeometry(160, 180, 100, 50);
    s.avoid->show();
    QVERIFY(s.start());
    QCOMPARE(s.hint->geometry(), QRect(168, 180 - 5 - 40, 60, 40));
    s.avoid->setGeometry(160, 130, 100, 40);
    s.target->move(101, 160);
    QTRY_COMPARE(s.hint->geometry(), QRect(169, 130 + 40 + 5, 60, 40));
    // The nearer side has no room: the other one.
    s.avoid->setGeometry(160, 170, 100, 225);
    s.target->move(100, 160);
    QTRY_COMPARE(s.hint->geometry(), QRect(168, 170 - 5 - 40, 60, 40));
}

void tst_WalkthroughHint::mixedAxisIsKept()
{
    // Above, below and in the middle, a hint that gives way to the right moves its top by the horizontal distance, not
    // its left edge. It has always been like that, and hints are laid out for it.
    Stage s("bottom");
    s.hint->setAvoidWidget(s.avoid);
    s.avoid->setGeometry(90, 190, 30, 60);
    s.avoid->show();
    QVERIFY(s.start());
    // Place (100, 200), 60 x 40; 70 to the left, 20 to the right: the top goes to 100 + 20 + 5.
    QCOMPARE(s.hint->geometry(), QRect(100, 125, 60, 40));
    // To the left it is the right edge that moves.
    s.avoid->setGeometry(140, 190, 100, 60);
    s.target->move(100, 161);
    QTRY_COMPARE(s.hint->geometry(), QRect(140 - 5 - 60, 201, 60, 40));
}

void tst_WalkthroughHint::whatCannotBeAvoidedIsCutOff()
{
    Stage s("bottom");
    s.hint->setAvoidWidget(s.avoid);
    s.avoid->setGeometry(90, 20, 30, 300);
    s.avoid->show();
    QVERIFY(s.start());
    // Given way to (100, 125), the hint still stands on the avoid widget with its left half.
    QCOMPARE(s.hint->geometry(), QRect(120, 125, 40, 40));
    QCOMPARE(s.hint->textLimits.last(), QSize(655536, 40));
}

void tst_WalkthroughHint::avoidWidgetElsewhereIsNoObstacle()
{
    Stage s("right");
    const QRect undisturbed(168, 156, 60, 40);
    // Hidden.
    s.avoid->setGeometry(160, 180, 100, 50);
    s.hint->setAvoidWidget(s.avoid);
    QVERIFY(s.start());
    QCOMPARE(s.hint->geometry(), undisturbed);
    // In another window.
    Stage other;
    other.avoid->setGeometry(0, 0, 400, 400);
    other.avoid->show();
    s.hint->setAvoidWidget(other.avoid);
    s.hint->updateHintPosition();
    QCOMPARE(s.hint->geometry(), undisturbed);
    // The window itself is not inside the window.
    s.hint->setAvoidWidget(s.window);
    s.hint->updateHintPosition();
    QCOMPARE(s.hint->geometry(), undisturbed);
    // None.
    s.hint->setAvoidWidget(nullptr);
    s.hint->updateHintPosition();
    QCOMPARE(s.hint->geometry(), undisturbed);
    // Deep inside the window.
    auto* box = new QWidget(s.window);
    box->setGeometry(100, 100, 300, 300);
    auto* inner = new QWidget(box);
    inner->setGeometry(60, 80, 100, 50);
    box->show();
    s.hint->setAvoidWidget(inner);
    s.hint->updateHintPosition();
    QCOMPARE(s.hint->geometry(), QRect(168, 135, 60, 40));
}

void tst_WalkthroughHint::avoidWidgetMovedUnderTheHint()
{
    Stage s("right");
    s.avoid->setGeometry(300, 300, 20, 20);
    s.avoid->show();
    s.hint->setAvoidWidget(s.avoid);
    QVERIFY(s.start());
    QCOMPARE(s.hint->geometry(), QRect(168, 156, 60, 40));
    s.avoid->move(200, 185);
    QCOMPARE(s.hint->geometry(), QRect(168, 140, 60, 40));
    s.avoid->move(200, 300);
    // What no longer touches the hint does not bring it back.
    QCOMPARE(s.hint->geometry(), QRect(168, 140, 60, 40));
    s.avoid->setGeometry(200, 200, 20, 20);
    QCOMPARE(s.hint->geometry(), QRect(168, 140, 60, 40));
    s.avoid->setGeometry(200, 160, 20, 60);
    QCOMPARE(s.hint->geometry(), QRect(168, 115, 60, 40));
}

void tst_WalkthroughHint::avoidWidgetThatDoesNotTouchIsIgnored()
{
    Stage s("right");
    s.avoid->setGeometry(300, 300, 20, 20);
    s.avoid->show();
    s.hint->setAvoidWidget(s.avoid);
    QVERIFY(s.start());
    const int placements = s.hint->textLimits.size();
    s.avoid->move(310, 310);
    s.avoid->resize(30, 30);
    QCOMPARE(s.hint->textLimits.size(), placements);
    // A hidden one neither.
    s.avoid->hide();
    s.avoid->setGeometry(160, 150, 100, 100);
    QMoveEvent move(QPoint(160, 150), QPoint(0, 0));
    QCoreApplication::sendEvent(s.avoid, &move);
    QCOMPARE(s.hint->textLimits.size(), placements);
    // Other events do not place the hint, and neither do other widgets.
    s.avoid->show();
    QCOMPARE(s.hint->textLimits.size(), placements);
    QVERIFY(!s.hint->eventFilter(s.target, &move));
    QCOMPARE(s.hint->textLimits.size(), placements);
    QVERIFY(!s.hint->eventFilter(s.avoid, &move));
    QCOMPARE(s.hint->textLimits.size(), placements + 1);
}

void tst_WalkthroughHint::avoidWidgetReplaced()
{
    Stage s("right");
    auto* second = new QWidget(s.window);
    second->setGeometry(300, 300, 20, 20);
    second->show();
    s.avoid->setGeometry(300, 300, 20, 20);
    s.avoid->show();
    s.hint->setAvoidWidget(s.avoid);
    s.hint->setAvoidWidget(second);
    QVERIFY(s.start());
    s.avoid->setGeometry(160, 180, 100, 50);
    QCOMPARE(s.hint->geometry(), QRect(168, 156, 60, 40));
    delete s.avoid;
    second->setGeometry(160, 180, 100, 50);
    QCOMPARE(s.hint->geometry(), QRect(168, 135, 60, 40));
}

void tst_WalkthroughHint::avoidEventsAreNotConsumed()
{
    Stage s("right");
    s.hint->setAvoidWidget(s.avoid);
    QVERIFY(s.start());
    for (const QEvent::Type type : {QEvent::Move, QEvent::Resize, QEvent::Paint, QEvent::MouseButtonPress}) {
        QEvent event(type);
        QVERIFY(!s.hint->eventFilter(s.avoid, &event));
    }
}

void tst_WalkthroughHint::randomPlacement()
{
    QRandomGenerator random(4711);
    const QStringList alignments = {text("left"), text("top"), text("right"), text("bottom"), QString()};
    Stage s;
    s.hint->setAvoidWidget(s.avoid);
    QVERIFY(s.start());
    int compared = 0;
    int cut = 0;
    int avoided = 0;
    for (int round = 0; round < 5000; ++round) {
        if (round % 10 == 0)
            s.window->resize(random.bounded(60, 700), random.bounded(60, 600));
        const QRect window = s.window->rect();
        s.avoid->setVisible(random.bounded(4));
        s.target->setGeometry(random.bounded(-20, window.width()), random.bounded(-20, window.height()),
                              random.bounded(0, 200), random.bounded(0, 200));
        s.avoid->setGeometry(random.bounded(-50, window.width()), random.bounded(-50, window.height()),
                             random.bounded(0, 300), random.bounded(0, 300));
        s.hint->setSizeHint(QSize(random.bounded(1, 300), random.bounded(1, 300)));
        s.page->setProperty("walkthroughAlignment", alignments.at(random.bounded(alignments.size())));
        s.hint->updateHintPosition();
        const QRect avoid = s.avoid->isVisible() ? s.avoid->geometry() : QRect();
        const QRect expected =
            Reference::place(frameOf(s.hint)->geometry(), window, avoid, s.hint->sizeHint(), s.hint->alignment());
        QVERIFY2(s.hint->geometry() == expected, qPrintable(QString::number(round)));
        const bool isBeside = s.hint->alignment() == text("left") || s.hint->alignment() == text("right");
        QCOMPARE(s.hint->textLimits.last(),
                 isBeside ? QSize(expected.width(), 655536) : QSize(655536, expected.width()));
        if (!expected.isEmpty()) {
            QVERIFY(window.adjusted(5, 5, -5, -5).contains(expected));
            ++compared;
        }
        cut += expected.size() != s.hint->sizeHint();
        avoided += expected != Reference::place(frameOf(s.hint)->geometry(), window, QRect(), s.hint->sizeHint(),
                                                s.hint->alignment());
    }
    // The dice have thrown all that matters.
    QVERIFY2(compared > 2000, qPrintable(QString::number(compared)));
    QVERIFY2(cut > 500, qPrintable(QString::number(cut)));
    QVERIFY2(avoided > 500, qPrintable(QString::number(avoided)));
}

void tst_WalkthroughHint::sizeHintWithoutExtent()
{
    for (const QSize& size : {QSize(), QSize(0, 0), QSize(0, 40)}) {
        Stage s("right");
        s.hint->setSizeHint(size);
        s.hint->start({s.target});
        QTRY_VERIFY(s.hint->parentWidget());
        QCOMPARE(s.hint->size(), QSize(0, 0));
    }
}

void tst_WalkthroughHint::followsTheTargetInOneTurn()
{
    Stage s("bottom");
    QVERIFY(s.start());
    for (int i = 1; i <= 60; ++i) {
        s.target->move(100 + i, 160);
        QCOMPARE(frameOf(s.hint)->geometry(), QRect(97 + i, 157, 66, 38));
        QCoreApplication::processEvents();
        QCOMPARE(s.hint->geometry(), QRect(100 + i, 200, 60, 40));
    }
}

void tst_WalkthroughHint::followsTheFramesVisibility()
{
    Stage s;
    QVERIFY(s.start());
    HighlightFrame* frame = frameOf(s.hint);
    frame->hide();
    Q_EMIT frame->visibilityChanged(false);
    QTRY_VERIFY(!s.hint->isVisible());
    frame->show();
    // The frame as it is counts, not what was reported.
    Q_EMIT frame->visibilityChanged(false);
    QTRY_VERIFY(s.hint->isVisible());
    // Without targets the frame stays, and so does the hint, until somebody finishes it.
    s.target->hide();
    QCoreApplication::processEvents();
    QVERIFY(frame->isVisible());
    QVERIFY(s.hint->isVisible());
}

void tst_WalkthroughHint::visibilityIsIgnoredUntilPlaced()
{
    Stage s;
    s.hint->start({s.target});
    const auto report = [&s] { return QMetaObject::invokeMethod(s.hint, "frameVisibilityChanged", Q_ARG(bool, true)); };
    frameOf(s.hint)->show();
    QVERIFY(report());
    QVERIFY(!s.hint->isVisible());
    // Inside a window already, but not placed.
    s.hint->setParent(s.window);
    QVERIFY(report());
    QVERIFY(!s.hint->isVisible());
    QTRY_VERIFY(s.hint->isVisible());
    // Finished: no frame.
    s.hint->finish();
    QVERIFY(report());
    QVERIFY(!s.hint->isVisible());
    // Started again, it runs only once it has been placed again.
    s.hint->start({s.target});
    frameOf(s.hint)->show();
    QVERIFY(report());
    QVERIFY(!s.hint->isVisible());
}

void tst_WalkthroughHint::hiddenFrameKeepsTheHintHidden()
{
    Stage s;
    s.hint->start({s.target});
    connect(frameOf(s.hint), &HighlightFrame::visibilityChanged, frameOf(s.hint), &QWidget::hide);
    QTRY_VERIFY(s.hint->parentWidget());
    QCoreApplication::processEvents();
    QCOMPARE(s.hint->geometry(), QRect(100, 200, 60, 40));
    QVERIFY(!s.hint->isVisible());
}

void tst_WalkthroughHint::updateHintPosition()
{
    Stage s;
    QVERIFY(s.start());
    s.hint->setSizeHint(QSize(80, 20));
    s.hint->updateHintPosition();
    QCOMPARE(s.hint->geometry(), QRect(90, 200, 80, 20));
    s.hint->hide();
    s.hint->setSizeHint(QSize(60, 40));
    s.hint->updateHintPosition();
    QCOMPARE(s.hint->geometry(), QRect(90, 200, 80, 20));
}

void tst_WalkthroughHint::lateReportsOfAnOldFrame()
{
    Stage s;
    QVERIFY(s.start());
    s.target->move(150, 160);
    s.hint->start({s.target});
    // The old frame's report is in the queue; the new frame has no place yet.
    QCoreApplication::sendPostedEvents(s.hint, QEvent::MetaCall);
    QVERIFY(s.hint->isVisible());
    QCOMPARE(s.hint->geometry(), QRect(100, 200, 60, 40));
    QTRY_COMPARE(s.hint->geometry(), QRect(150, 200, 60, 40));
}

void tst_WalkthroughHint::finishSignals_data()
{
    QTest::addColumn<bool>("disableForever");
    QTest::addColumn<bool>("disableForSession");
    QTest::newRow("none") << false << false;
    QTest::newRow("session") << false << true;
    QTest::newRow("forever") << true << false;
    QTest::newRow("both") << true << true;
}

void tst_WalkthroughHint::finishSignals()
{
    QFETCH(bool, disableForever);
    QFETCH(bool, disableForSession);
    for (const bool started : {false, true}) {
        Stage s;
        if (started)
            QVERIFY(s.start());
        const QSignalSpy forever(s.hint, &WalkthroughHint::hintsDisabledForever);
        const QSignalSpy session(s.hint, &WalkthroughHint::hintsDisabledForSession);
        if (disableForever)
            s.hint->disableHintsForever();
        if (disableForSession)
            s.hint->disableHintsForSession();
        QCOMPARE(forever.count() + session.count(), 0);
        s.hint->finish();
        QCOMPARE(forever.count(), disableForever ? 1 : 0);
        QCOMPARE(session.count(), disableForSession && !disableForever ? 1 : 0);
    }
}

void tst_WalkthroughHint::finishReleasesTheFrame()
{
    Stage s;
    QVERIFY(s.start());
    const QPointer<HighlightFrame> frame = frameOf(s.hint);
    bool visibleWhenAnnounced = true;
    bool framedWhenAnnounced = true;
    s.hint->disableHintsForever();
    connect(s.hint, &WalkthroughHint::hintsDisabledForever, this, [&] {
        visibleWhenAnnounced = s.hint->isVisible();
        framedWhenAnnounced = s.hint->getTargetWidget() != nullptr;
    });
    s.hint->finish();
    QVERIFY(!visibleWhenAnnounced);
    QVERIFY(!framedWhenAnnounced);
    QVERIFY(!s.hint->isVisible());
    QVERIFY(!s.hint->getTargetWidget());
    QVERIFY(frame);
    QTRY_VERIFY(frame.isNull());
    s.target->move(10, 10);
    QCoreApplication::processEvents();
    QVERIFY(!s.hint->isVisible());
}

namespace {

/// Answers the hint's Close event with finish(), as a controller does.
class Finisher : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Close) {
            ++closings;
            static_cast<WalkthroughHint*>(watched)->finish();
        }
        return false;
    }

    int closings = 0;
};

} // namespace

void tst_WalkthroughHint::finishFromTheCloseEvent()
{
    for (const bool byClosing : {true, false}) {
        Stage s;
        QVERIFY(s.start());
        Finisher finisher;
        s.hint->installEventFilter(&finisher);
        s.hint->disableHintsForSession();
        const QSignalSpy session(s.hint, &WalkthroughHint::hintsDisabledForSession);
        if (byClosing)
            s.hint->close();
        else
            s.hint->finish();
        QCOMPARE(finisher.closings, 1);
        QCOMPARE(session.count(), 1);
        QVERIFY(!s.hint->isVisible());
        QVERIFY(!s.hint->getTargetWidget());
        // One finishing is over; the next one announces again what is still chosen.
        s.hint->finish();
        QCOMPARE(session.count(), 2);
    }
}

void tst_WalkthroughHint::finishInItsSignal()
{
    Stage s;
    QVERIFY(s.start());
    s.hint->disableHintsForever();
    const QSignalSpy forever(s.hint, &WalkthroughHint::hintsDisabledForever);
    connect(s.hint, &WalkthroughHint::hintsDisabledForever, s.hint, [&s] { s.hint->finish(); });
    s.hint->finish();
    QCOMPARE(forever.count(), 1);
}

void tst_WalkthroughHint::finishDoesNotEndTheApplication()
{
    Stage s;
    QVERIFY(s.start());
    s.window->hide();
    const QSignalSpy lastClosed(qApp, &QGuiApplication::lastWindowClosed);
    // Told only while the application's own loop runs.
    QTimer::singleShot(0, s.hint, [&s] {
        s.hint->finish();
        TestHint neverStarted;
        neverStarted.finish();
        QCoreApplication::quit();
    });
    QCoreApplication::exec();
    QVERIFY(!s.hint->getTargetWidget());
    QCOMPARE(lastClosed.count(), 0);
}

void tst_WalkthroughHint::choicesTakenBack()
{
    TestHint hint;
    const QSignalSpy forever(&hint, &WalkthroughHint::hintsDisabledForever);
    const QSignalSpy session(&hint, &WalkthroughHint::hintsDisabledForSession);
    hint.disableHintsForever();
    hint.disableHintsForSession();
    hint.enableHintsForever();
    hint.finish();
    QCOMPARE(forever.count(), 0);
    QCOMPARE(session.count(), 1);
    hint.enableHintsForSession();
    hint.finish();
    QCOMPARE(session.count(), 1);
}

void tst_WalkthroughHint::languageChangeLiftsTheLimit()
{
    TestHint hint;
    QEvent languageChange(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&hint, &languageChange);
    QCOMPARE(hint.textLimits, QList<QSize>({QSize(655536, 655536)}));
    QEvent fontChange(QEvent::FontChange);
    QCoreApplication::sendEvent(&hint, &fontChange);
    QCOMPARE(hint.textLimits.size(), 1);
}

void tst_WalkthroughHint::deletingTheHintDeletesTheFrame()
{
    for (const bool placed : {false, true}) {
        Stage s;
        s.hint->start({s.target});
        if (placed)
            QTRY_VERIFY(s.hint->isVisible());
        const QPointer<HighlightFrame> frame = frameOf(s.hint);
        delete s.hint;
        QVERIFY(frame.isNull());
        QVERIFY(s.target);
        s.target->move(5, 5);
        QCoreApplication::processEvents();
    }
}

void tst_WalkthroughHint::deletingTheWindowDeletesBoth()
{
    Stage s;
    QVERIFY(s.start());
    const QPointer<HighlightFrame> frame = frameOf(s.hint);
    delete s.window;
    QVERIFY(frame.isNull());
    QVERIFY(s.hint.isNull());

    // Before the first placement the hint is nobody's child.
    Stage early;
    early.hint->start({early.target});
    delete early.window;
    QVERIFY(early.hint);
    QVERIFY(!early.hint->getTargetWidget());
    QCoreApplication::processEvents();
    QVERIFY(!early.hint->isVisible());
}

void tst_WalkthroughHint::deletingTheFrame()
{
    Stage s;
    QVERIFY(s.start());
    delete frameOf(s.hint);
    QVERIFY(!s.hint->getTargetWidget());
    const QRect geometry = s.hint->geometry();
    s.hint->updateHintPosition();
    s.target->move(10, 10);
    QCoreApplication::processEvents();
    QCOMPARE(s.hint->geometry(), geometry);
    QVERIFY(QMetaObject::invokeMethod(s.hint, "frameVisibilityChanged", Q_ARG(bool, false)));
    QVERIFY(s.hint->isVisible());
    s.hint->finish();
    QVERIFY(!s.hint->isVisible());
}

void tst_WalkthroughHint::deletingTargets()
{
    Stage s;
    auto* other = new QWidget(s.window);
    other->setGeometry(200, 30, 20, 20);
    other->show();
    s.hint->start({s.target, other});
    QTRY_VERIFY(s.hint->isVisible());
    delete other;
    QTRY_COMPARE(s.hint->geometry(), QRect(100, 200, 60, 40));
    delete s.target;
    QCoreApplication::processEvents();
    s.hint->updateHintPosition();
    QCOMPARE(s.hint->geometry(), QRect(100, 200, 60, 40));
}

void tst_WalkthroughHint::deletingTheAvoidWidget()
{
    Stage s("right");
    s.avoid->setGeometry(160, 180, 100, 50);
    s.avoid->show();
    s.hint->setAvoidWidget(s.avoid);
    QVERIFY(s.start());
    QCOMPARE(s.hint->geometry(), QRect(168, 135, 60, 40));
    delete s.avoid;
    s.hint->updateHintPosition();
    QCOMPARE(s.hint->geometry(), QRect(168, 156, 60, 40));
    s.hint->setAvoidWidget(s.target);
    delete s.target;
    s.hint->setAvoidWidget(nullptr);
}

void tst_WalkthroughHint::deletingThePage()
{
    Stage s("right");
    QVERIFY(s.start());
    delete s.page;
    QVERIFY(!s.hint->contentWidget());
    QVERIFY(s.hint->widgetName().isEmpty());
    s.target->move(101, 160);
    QTRY_COMPARE(s.hint->geometry(), QRect(101, 156, 60, 40));
    s.hint->finish();
    QVERIFY(s.start());
}

void tst_WalkthroughHint::deletedInItsSignal_data()
{
    QTest::addColumn<bool>("forever");
    QTest::newRow("session") << false;
    QTest::newRow("forever") << true;
}

void tst_WalkthroughHint::deletedInItsSignal()
{
    QFETCH(bool, forever);
    Stage s;
    QVERIFY(s.start());
    if (forever)
        s.hint->disableHintsForever();
    else
        s.hint->disableHintsForSession();
    connect(s.hint, &WalkthroughHint::hintsDisabledForever, this, [&s] { delete s.hint; });
    connect(s.hint, &WalkthroughHint::hintsDisabledForSession, this, [&s] { delete s.hint; });
    s.hint->finish();
    QVERIFY(s.hint.isNull());
}

namespace {

/// Does something to itself when its text is limited or its size changes.
class UnrulyHint : public TestHint
{
public:
    std::function<void()> whenLimited;
    std::function<void()> whenResized;

protected:
    void limitTextSize(QSize size) override
    {
        TestHint::limitTextSize(size);
        if (whenLimited)
            whenLimited();
    }
    void resizeEvent(QResizeEvent* event) override
    {
        TestHint::resizeEvent(event);
        if (whenResized)
            whenResized();
    }
};

} // namespace

void tst_WalkthroughHint::finishedOrDeletedWhilePlaced_data()
{
    QTest::addColumn<QString>("what");
    QTest::newRow("finished") << text("finish");
    QTest::newRow("deleted") << text("delete");
    QTest::newRow("frame deleted") << text("frame");
    QTest::newRow("target deleted") << text("target");
}

void tst_WalkthroughHint::finishedOrDeletedWhilePlaced()
{
    QFETCH(QString, what);
    Stage s;
    const QPointer<UnrulyHint> hint = new UnrulyHint;
    hint->addPage(text("n"), text("w"), text("right"));
    hint->whenLimited = [&] {
        if (what == text("finish"))
            hint->finish();
        else if (what == text("frame"))
            delete hint->getTargetWidget();
        else if (what == text("target"))
            delete s.target;
        else
            delete hint;
    };
    hint->start({s.target});
    QTRY_VERIFY(!hint || !hint->textLimits.isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(hint && hint->isVisible(), what == text("target"));
    QCOMPARE(hint.isNull(), what == text("delete"));
    if (hint)
        hint->whenLimited = nullptr;
    delete hint;
}

void tst_WalkthroughHint::avoidWidgetDeletedWhilePlaced()
{
    Stage s;
    const QPointer<UnrulyHint> hint = new UnrulyHint;
    hint->addPage(text("n"), text("w"), text("right"));
    s.avoid->setGeometry(300, 300, 20, 20);
    s.avoid->show();
    hint->setAvoidWidget(s.avoid);
    hint->start({s.target});
    QTRY_VERIFY(hint->isVisible());
    hint->whenLimited = [&s] { delete s.avoid; };
    // Only sent, for Qt itself goes on with a widget that it moves.
    s.avoid->blockSignals(false);
    hint->setGeometry(290, 290, 50, 50);
    QMoveEvent move(QPoint(300, 300), QPoint(0, 0));
    QCoreApplication::sendEvent(s.avoid, &move);
    QVERIFY(s.avoid.isNull());
    QCOMPARE(hint->geometry(), QRect(168, 156, 60, 40));
    hint->whenLimited = nullptr;
}

void tst_WalkthroughHint::targetsInSeveralWindows()
{
    Stage s;
    Stage other;
    s.hint->start({s.target, other.target});
    QTRY_VERIFY(s.hint->isVisible());
    QWidget* window = s.hint->parentWidget();
    QVERIFY(window == s.window || window == other.window);
    QCOMPARE(frameOf(s.hint)->parentWidget(), window);
    // The one inside the frame's window counts; both stand at the same place of theirs.
    QCOMPARE(s.hint->geometry(), QRect(100, 200, 60, 40));
    QWidget* counted = window == s.window ? s.target : other.target;
    counted->setParent(window == s.window ? other.window : s.window);
    counted->show();
    QCoreApplication::processEvents();
    s.hint->finish();
    QCoreApplication::processEvents();
}

void tst_WalkthroughHint::chaos()
{
    QRandomGenerator random(815);
    std::vector<QPointer<QWidget>> windows(3);
    std::vector<QPointer<QWidget>> widgets(8);
    QPointer<TestHint> hint;
    const auto anyWindow = [&]() -> QWidget* {
        QPointer<QWidget>& window = windows.at(random.bounded(int(windows.size())));
        if (!window) {
            window = new QWidget;
            window->resize(300, 200);
            window->show();
        }
        return window;
    };
    const auto anyParent = [&](const QWidget* child) -> QWidget* {
        QWidget* parent = widgets.at(random.bounded(int(widgets.size())));
        return parent && parent != child && !(child && child->isAncestorOf(parent)) ? parent : anyWindow();
    };
    for (int step = 0; step < 10000; ++step) {
        QPointer<QWidget>& widget = widgets.at(random.bounded(int(widgets.size())));
        if (!widget)
            widget = new QWidget(anyParent(nullptr));
        if (!hint) {
            hint = new TestHint;
            hint->addPage(text("n"), text("w"), random.bounded(2) ? text("left") : text("bottom"));
        }
        switch (random.bounded(14)) {
        case 0:
        case 1:
            widget->move(random.bounded(-50, 300), random.bounded(-50, 200));
            break;
        case 2:
            widget->resize(random.bounded(100), random.bounded(100));
            break;
        case 3:
            widget->setVisible(random.bounded(2));
            break;
        case 4:
            widget->setParent(anyParent(widget));
            widget->show();
            break;
        case 5:
            delete widget;
            break;
        case 6:
            hint->setAvoidWidget(random.bounded(4) ? widget.data() : nullptr);
            break;
        case 7: {
            QSet<QWidget*> targets;
            for (const QPointer<QWidget>& target : widgets) {
                if (target && random.bounded(2))
                    targets << target;
            }
            hint->start(targets);
            break;
        }
        case 8:
            if (random.bounded(4) == 0)
                hint->finish();
            break;
        case 9:
            if (random.bounded(20) == 0)
                delete windows.at(random.bounded(int(windows.size())));
            break;
        case 10:
            if (random.bounded(20) == 0)
                delete hint;
            break;
        case 11:
            if (random.bounded(10) == 0)
                delete hint->getTargetWidget();
            break;
        case 12:
            hint->updateHintPosition();
            break;
        default:
            anyWindow()->resize(random.bounded(1, 400), random.bounded(1, 300));
        }
        if (random.bounded(3) == 0)
            QCoreApplication::processEvents();
        QVERIFY(!hint || !hint->getTargetWidget() || !hint->getTargetWidget()->isWindow() ||
                !hint->getTargetWidget()->isVisible());
    }
    delete hint;
    for (const QPointer<QWidget>& window : windows)
        delete window;
    QVERIFY(std::all_of(widgets.cbegin(), widgets.cend(), [](const QPointer<QWidget>& w) { return w.isNull(); }));
}

QTEST_MAIN(tst_WalkthroughHint)
#include "tst_WalkthroughHint.moc"
