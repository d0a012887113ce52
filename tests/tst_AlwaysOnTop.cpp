#include <KQt/Ui/AlwaysOnTop.h>

#include <QtTest>
#include <QWidget>

#include <functional>
#include <type_traits>

using Kestrel::Gui::Helpers::AlwaysOnTop;

namespace {

using Getter = std::function<Qt::WindowFlags()>;
using Setter = std::function<void(Qt::WindowFlags)>;

/// A helper as an application derives it.
class Helper : public AlwaysOnTop
{
public:
    explicit Helper(QWidget& widget)
        : AlwaysOnTop(widget)
    {
    }
    Helper(Getter getter, Setter setter)
        : AlwaysOnTop(std::move(getter), std::move(setter))
    {
    }
};

static_assert(!std::is_constructible_v<AlwaysOnTop, QWidget&>, "for derived classes only");
static_assert(!std::is_constructible_v<AlwaysOnTop, Getter, Setter>, "for derived classes only");
static_assert(!std::is_destructible_v<AlwaysOnTop>, "nobody deletes a helper through its base class");
static_assert(std::has_virtual_destructor_v<Helper> && std::is_polymorphic_v<AlwaysOnTop>);
static_assert(std::is_copy_constructible_v<Helper> && std::is_copy_assignable_v<AlwaysOnTop>);

/// A window-like object that counts how it is accessed.
struct CountedFlags
{
    Getter getter()
    {
        return [this] {
            ++reads;
            return flags;
        };
    }
    Setter setter()
    {
        return [this](Qt::WindowFlags newFlags) {
            ++writes;
            flags = newFlags;
        };
    }

    Qt::WindowFlags flags;
    int reads = 0;
    int writes = 0;
};

constexpr Qt::WindowFlags otherFlags = Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnBottomHint;
const Qt::WindowFlags onTop(0x00040000);

} // namespace

class tst_AlwaysOnTop : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheFlagsEachTime();
    void enableAddsTheHint();
    void enableTwiceWritesOnce();
    void disableRemovesTheHint();
    void disableWithoutTheHintWritesNothing();
    void theFlagsWrittenAreThoseReadLast();
    void setAlwaysOnTopDoesEither();
    void emptyFunctionsFailAtTheirFirstUse();
    void copiesActOnTheSameWindow();
    void worksOnAWidget();
    void aWidgetInTheRightStateIsLeftAlone();
};

void tst_AlwaysOnTop::readsTheFlagsEachTime()
{
    CountedFlags window;
    const Helper helper(window.getter(), window.setter());
    QCOMPARE(window.reads, 0);
    QVERIFY(!helper.IsAlwaysOnTop());
    window.flags = otherFlags;
    QVERIFY(!helper.IsAlwaysOnTop());
    window.flags = otherFlags | onTop;
    QVERIFY(helper.IsAlwaysOnTop());
    window.flags = onTop;
    QVERIFY(helper.IsAlwaysOnTop());
    window.flags = ~onTop;
    QVERIFY(!helper.IsAlwaysOnTop());
    QCOMPARE(window.reads, 5);
    QCOMPARE(window.writes, 0);
}

void tst_AlwaysOnTop::enableAddsTheHint()
{
    CountedFlags window;
    window.flags = otherFlags;
    Helper helper(window.getter(), window.setter());
    helper.EnableAlswaysOnTop();
    QCOMPARE(window.flags, otherFlags | onTop);
    QCOMPARE(window.reads, 2);
    QCOMPARE(window.writes, 1);
}

void tst_AlwaysOnTop::enableTwiceWritesOnce()
{
    CountedFlags window;
    Helper helper(window.getter(), window.setter());
    helper.EnableAlswaysOnTop();
    helper.EnableAlswaysOnTop();
    QCOMPARE(window.flags, onTop);
    QCOMPARE(window.writes, 1);
    QCOMPARE(window.reads, 3);
}

void tst_AlwaysOnTop::disableRemovesTheHint()
{
    CountedFlags window;
    window.flags = otherFlags | onTop;
    Helper helper(window.getter(), window.setter());
    helper.DisableAlswaysOnTop();
    QCOMPARE(window.flags, otherFlags);
    QCOMPARE(window.reads, 2);
    QCOMPARE(window.writes, 1);
    helper.DisableAlswaysOnTop();
    QCOMPARE(window.reads, 3);
    QCOMPARE(window.writes, 1);
}

void tst_AlwaysOnTop::disableWithoutTheHintWritesNothing()
{
    CountedFlags window;
    window.flags = otherFlags;
    Helper helper(window.getter(), window.setter());
    helper.DisableAlswaysOnTop();
    QCOMPARE(window.flags, otherFlags);
    QCOMPARE(window.reads, 1);
    QCOMPARE(window.writes, 0);
}

void tst_AlwaysOnTop::theFlagsWrittenAreThoseReadLast()
{
    // The flags change between the question and the answer: what the second reading gives is kept.
    int reads = 0;
    Qt::WindowFlags written;
    Helper enabling([&] { return ++reads == 1 ? Qt::WindowFlags(Qt::Dialog) : Qt::WindowFlags(Qt::Tool); },
                    [&](Qt::WindowFlags flags) { written = flags; });
    enabling.EnableAlswaysOnTop();
    QCOMPARE(written, Qt::Tool | onTop);

    reads = 0;
    Helper disabling([&] { return (++reads == 1 ? Qt::WindowFlags(Qt::Dialog) : Qt::WindowFlags(Qt::Tool)) | onTop; },
                     [&](Qt::WindowFlags flags) { written = flags; });
    disabling.DisableAlswaysOnTop();
    QCOMPARE(written, Qt::WindowFlags(Qt::Tool));
}

void tst_AlwaysOnTop::setAlwaysOnTopDoesEither()
{
    CountedFlags window;
    window.flags = otherFlags;
    Helper helper(window.getter(), window.setter());
    helper.SetAlwaysOnTop(false);
    QCOMPARE(window.writes, 0);
    helper.SetAlwaysOnTop(true);
    QCOMPARE(window.flags, otherFlags | onTop);
    helper.SetAlwaysOnTop(true);
    QCOMPARE(window.writes, 1);
    helper.SetAlwaysOnTop(false);
    QCOMPARE(window.flags, otherFlags);
    QCOMPARE(window.writes, 2);
}

void tst_AlwaysOnTop::emptyFunctionsFailAtTheirFirstUse()
{
    CountedFlags window;
    Helper noGetter(Getter(), window.setter());
    QVERIFY_EXCEPTION_THROWN(noGetter.IsAlwaysOnTop(), std::bad_function_call);
    QVERIFY_EXCEPTION_THROWN(noGetter.EnableAlswaysOnTop(), std::bad_function_call);
    QVERIFY_EXCEPTION_THROWN(noGetter.DisableAlswaysOnTop(), std::bad_function_call);
    QVERIFY_EXCEPTION_THROWN(noGetter.SetAlwaysOnTop(true), std::bad_function_call);
    QCOMPARE(window.writes, 0);

    Helper noSetter(window.getter(), Setter());
    QVERIFY(!noSetter.IsAlwaysOnTop());
    noSetter.DisableAlswaysOnTop(); // nothing to write
    QVERIFY_EXCEPTION_THROWN(noSetter.EnableAlswaysOnTop(), std::bad_function_call);
    window.flags = onTop;
    noSetter.EnableAlswaysOnTop();
    QVERIFY_EXCEPTION_THROWN(noSetter.DisableAlswaysOnTop(), std::bad_function_call);
}

void tst_AlwaysOnTop::copiesActOnTheSameWindow()
{
    CountedFlags window;
    CountedFlags otherWindow;
    Helper original(window.getter(), window.setter());
    Helper copy(original);
    copy.EnableAlswaysOnTop();
    QVERIFY(original.IsAlwaysOnTop());
    original.DisableAlswaysOnTop();
    QVERIFY(!copy.IsAlwaysOnTop());

    Helper assigned(otherWindow.getter(), otherWindow.setter());
    assigned = original;
    assigned.EnableAlswaysOnTop();
    QVERIFY(original.IsAlwaysOnTop());
    QCOMPARE(window.flags, onTop);
    QCOMPARE(otherWindow.reads + otherWindow.writes, 0);
}

void tst_AlwaysOnTop::worksOnAWidget()
{
    QWidget widget(nullptr, Qt::Dialog | Qt::WindowCloseButtonHint);
    const Qt::WindowFlags before = widget.windowFlags();
    Helper helper(widget);
    QVERIFY(!helper.IsAlwaysOnTop());

    helper.EnableAlswaysOnTop();
    QCOMPARE(widget.windowFlags(), before | Qt::WindowStaysOnTopHint);
    QVERIFY(helper.IsAlwaysOnTop());

    widget.setWindowFlag(Qt::WindowStaysOnTopHint, false);
    QVERIFY2(!helper.IsAlwaysOnTop(), "what others change is seen");

    Helper copy(helper);
    copy.SetAlwaysOnTop(true);
    QVERIFY(helper.IsAlwaysOnTop());
    helper.SetAlwaysOnTop(false);
    QCOMPARE(widget.windowFlags(), before);
}

void tst_AlwaysOnTop::aWidgetInTheRightStateIsLeftAlone()
{
    // Writing window flags hides a visible window and makes it anew.
    QWidget widget;
    Helper helper(widget);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    helper.DisableAlswaysOnTop();
    QVERIFY(widget.isVisible());

    helper.EnableAlswaysOnTop();
    QVERIFY(!widget.isVisible());
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    const WId window = widget.winId();
    helper.EnableAlswaysOnTop();
    QVERIFY(widget.isVisible());
    QCOMPARE(widget.winId(), window);
}

QTEST_MAIN(tst_AlwaysOnTop)
#include "tst_AlwaysOnTop.moc"
