#include <KQt/Ui/SelectionFrameWidget/SelectionFrameGraphicsItem.h>

#include "support/FrameGestures.h"
#include "support/FramePicture.h"
#include "support/FrameReference.h"
#include "support/ProbeFrame.h"
#include "support/RandomGeometry.h"
#include "support/RecordingFrameHandler.h"
#include "support/RectComparison.h"
#include "support/SceneRepaint.h"
#include "support/WarningCatcher.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QtTest>

#include <boost/exception/all.hpp>

#include <cstring>
#include <limits>
#include <memory>
#include <stdexcept>
#include <type_traits>

using namespace Kestrel::Gui;
using PlainFrame = ProbeFrame<QGraphicsItem>;
using PixmapFrame = ProbeFrame<QGraphicsPixmapItem>;
using TextFrame = ProbeFrame<QGraphicsTextItem>;

namespace {

// The two look-ups of the view are private and nothing in the library calls them, but the messages of their failures
// are promised to whoever will. An explicit instantiation may name private members.
template <typename Tag, auto Member>
struct Unlock
{
    friend constexpr auto unlock(Tag) { return Member; }
};
struct ParentView
{
    friend constexpr auto unlock(ParentView);
};
struct ParentViewFrame
{
    friend constexpr auto unlock(ParentViewFrame);
};
struct CursorCheck
{
    friend constexpr auto unlock(CursorCheck);
};
struct SelectionFrameRect
{
    friend constexpr auto unlock(SelectionFrameRect);
};
template struct Unlock<ParentView, &SelectionFrameGraphicsItem<QGraphicsItem>::GetParentView>;
template struct Unlock<ParentViewFrame, &SelectionFrameGraphicsItem<QGraphicsItem>::GetParentViewFrame>;
template struct Unlock<CursorCheck, &SelectionFrameGraphicsItem<QGraphicsItem>::CheckCursor>;
template struct Unlock<SelectionFrameRect, &SelectionFrameGraphicsItem<QGraphicsItem>::GetSelectionFrameRect>;

/// Runs @p check with a null pointer to each of the three item classes.
template <typename Check>
void forEveryItemClass(const Check& check)
{
    check(static_cast<PlainFrame*>(nullptr));
    if (!QTest::currentTestFailed())
        check(static_cast<PixmapFrame*>(nullptr));
    if (!QTest::currentTestFailed())
        check(static_cast<TextFrame*>(nullptr));
}

#if !defined(_MSC_VER) && (defined(__x86_64__) || defined(__i386__))
#define HAS_READABLE_SLOTS
/// The slot of a virtual function in its table, as the Itanium ABI writes it into a pointer to member.
template <typename Function>
size_t tableSlot(Function function)
{
    size_t offset = 0;
    std::memcpy(&offset, &function, sizeof offset);
    return (offset - 1) / sizeof(void*);
}

struct TemplateSlots : SelectionFrameGraphicsItem<QGraphicsItem>
{
    using Base = SelectionFrameGraphicsItem<QGraphicsItem>;
    static QVector<size_t> own()
    {
        return {tableSlot(&Base::UpdateContents), tableSlot(&Base::SetWorkRect), tableSlot(&Base::GetWorkRect),
                tableSlot(&TemplateSlots::AdjustFrame)};
    }
};
#endif

template <typename Action>
QByteArray messageThrownBy(const Action& action)
{
    try {
        action();
    } catch (const std::invalid_argument& error) {
        const QByteArray what = error.what();
        return what.left(what.indexOf('\n'));
    }
    return {};
}

} // namespace

class tst_SelectionFrameGraphicsItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void freshItem();
    void bases();
    void nullHandlerThrows();
    void interfacesHaveTheirSlots();
    void workRectIsStoredOnly();
    void initializeStoresTheWorkRectFirst();
    void placingStepByStep();
    void placingFromTwoPointsAndRelative();
    void placingRandomly();
    void placingUnderATransformedParent();
    void sceneFollowsTheGrowingFrame();
    void boundingRectCoversTheCaption();
    void shapeIsTheFrameAlone();
    void relativeAndAbsolute();
    void degenerateRectangles();
    void parentView();
    void cursorCheck();
    void transparencyIsStoredOnly();
    void handlerIsBorrowed();
    void deletedWithItsScene();
    void deletedByItsHandler();

private:
    template <typename Item>
    void checkFresh();
    template <typename Item>
    void checkNullHandler();
    template <typename Item>
    void checkPlacing();
    template <typename Item>
    void checkRandomPlacing();
    template <typename Item>
    void checkBounds();
    template <typename Item>
    void checkShape();
    template <typename Item>
    void checkDegenerate();
};

template <typename Item>
void tst_SelectionFrameGraphicsItem::checkFresh()
{
    RecordingFrameHandler handler;
    Item item(&handler);
    // Exactly these three: a text item would bring a flag of its own.
    QCOMPARE(int(item.flags()), 0x803);
    QCOMPARE(item.flags(),
             QGraphicsItem::ItemIsMovable | QGraphicsItem::ItemIsSelectable | QGraphicsItem::ItemSendsGeometryChanges);
    QVERIFY(item.acceptHoverEvents());
    QVERIFY(item.keepAspectRatio());
    QCOMPARE(item.GetTransparency(), 255);
    QVERIFY(item.GetFrameInScene().isNull());
    QVERIFY(item.GetPaintingRect().isNull());
    QVERIFY(item.GetWorkRect().isNull());
    QVERIFY(item.IsBackgroundAlphaChannelNeeded());
    QVERIFY(!item.IsInfoCaptionVisible());
    QVERIFY(!item.parentItem());
    QVERIFY2(handler.calls.isEmpty(), "a fresh item tells nothing yet");

    PlainFrame parent(&handler);
    const auto* child = new Item(&handler, &parent);
    QCOMPARE(child->parentItem(), &parent);
}

void tst_SelectionFrameGraphicsItem::freshItem()
{
    forEveryItemClass([this](auto* item) { checkFresh<std::remove_pointer_t<decltype(item)>>(); });
}

void tst_SelectionFrameGraphicsItem::bases()
{
    static_assert(std::is_base_of_v<QGraphicsItem, SelectionFrameGraphicsItem<QGraphicsItem>>);
    static_assert(std::is_base_of_v<QGraphicsPixmapItem, SelectionFrameGraphicsItem<QGraphicsPixmapItem>>);
    static_assert(std::is_base_of_v<QGraphicsTextItem, SelectionFrameGraphicsItem<QGraphicsTextItem>>);
    static_assert(!std::is_base_of_v<QObject, SelectionFrameGraphicsItem<QGraphicsItem>>);
    static_assert(std::has_virtual_destructor_v<ISelectionFrameEventHandler>);
    static_assert(std::has_virtual_destructor_v<IFrameRenderSource>);
    static_assert(std::is_copy_constructible_v<RecordingFrameHandler>);
    static_assert(std::is_copy_assignable_v<RecordingFrameHandler>);

    // A scene hands items out as QGraphicsItem*, the renderer reads them as IFrameRenderSource: the item comes first.
    RecordingFrameHandler handler;
    PlainFrame item(&handler);
    QCOMPARE(static_cast<void*>(static_cast<QGraphicsItem*>(&item)), static_cast<void*>(&item));
    QGraphicsItem* asItem = &item;
    QCOMPARE(dynamic_cast<IFrameRenderSource*>(asItem), static_cast<IFrameRenderSource*>(&item));
}

template <typename Item>
void tst_SelectionFrameGraphicsItem::checkNullHandler()
{
    QGraphicsScene scene;
    auto* parent = scene.addRect(0, 0, 10, 10);
    try {
        Item item(nullptr, parent);
        QFAIL("a frame without a handler must not be built");
    } catch (const std::invalid_argument& error) {
        QVERIFY(QByteArray(error.what()).startsWith("eventHandler is NULL\n"));
        const auto* boosted = dynamic_cast<const boost::exception*>(&error);
        QVERIFY(boosted);
        const auto* file = boost::get_error_info<boost::throw_file>(*boosted);
        QVERIFY(file);
        QVERIFY(QByteArray(*file).contains("KQt/Ui/SelectionFrameWidget/SelectionFrameGraphicsItem"));
        QVERIFY(boost::get_error_info<boost::throw_line>(*boosted));
        QVERIFY(boost::get_error_info<boost::throw_function>(*boosted));
    }
    QVERIFY2(parent->childItems().isEmpty(), "the half-built item must be gone again");
}

void tst_SelectionFrameGraphicsItem::nullHandlerThrows()
{
    forEveryItemClass([this](auto* item) { checkNullHandler<std::remove_pointer_t<decltype(item)>>(); });
}

void tst_SelectionFrameGraphicsItem::interfacesHaveTheirSlots()
{
#ifdef HAS_READABLE_SLOTS
    // Applications compiled against the library call through these tables; two slots belong to each destructor.
    QCOMPARE(tableSlot(&ISelectionFrameEventHandler::InteractionStateChanged), size_t(2));
    QCOMPARE(tableSlot(&ISelectionFrameEventHandler::FrameChanged), size_t(3));
    QCOMPARE(tableSlot(&ISelectionFrameEventHandler::SetCursor), size_t(4));
    QCOMPARE(tableSlot(&IFrameRenderSource::GetFrameInScene), size_t(2));
    QCOMPARE(tableSlot(&IFrameRenderSource::GetTransparency), size_t(3));
    QCOMPARE(tableSlot(&IFrameRenderSource::IsBackgroundAlphaChannelNeeded), size_t(4));
    QCOMPARE(tableSlot(&IFrameRenderSource::IsInfoCaptionInsideFrame), size_t(5));
    QCOMPARE(tableSlot(&IFrameRenderSource::IsInfoCaptionVisible), size_t(6));
    const QVector<size_t> own = TemplateSlots::own();
    for (int i = 1; i < own.size(); ++i)
        QVERIFY(own.at(i) > own.at(i - 1));
#else
    QSKIP("pointers to members do not tell their slot here");
#endif
}

void tst_SelectionFrameGraphicsItem::workRectIsStoredOnly()
{
    RecordingFrameHandler handler;
    PlainFrame item(&handler);
    item.Initialize(QRectF(0, 0, 100, 100), QRectF(10, 10, 20, 20));
    handler.clear();
    int updates = 0;
    item.onUpdateContents = [&updates] { ++updates; };

    item.SetWorkRect(QRectF(5, 6, 700, 800));

    QCOMPARE(item.GetWorkRect(), QRectF(5, 6, 700, 800));
    QCOMPARE(item.GetFrameInScene(), QRectF(10, 10, 20, 20));
    QCOMPARE(updates, 0);
    QVERIFY(handler.calls.isEmpty());
}

void tst_SelectionFrameGraphicsItem::initializeStoresTheWorkRectFirst()
{
    RecordingFrameHandler handler;
    PlainFrame item(&handler);
    QVector<QRectF> stored;
    item.onSetWorkRect = [&](const QRectF& rect) {
        stored.append(rect);
        QVERIFY(handler.calls.isEmpty());
    };

    item.Initialize(QRectF(100, 50, 400, 200), QRectF(150, 75, 100, 100));

    // Through the virtual function: a text item scales its font with the work rect.
    QCOMPARE(stored, QVector<QRectF>{QRectF(100, 50, 400, 200)});
    QCOMPARE(item.GetWorkRect(), QRectF(100, 50, 400, 200));
    QCOMPARE(item.GetFrameInScene(), QRectF(150, 75, 100, 100));
    QCOMPARE(handler.frames(), QVector<QRectF>{QRectF(0.125, 0.125, 0.25, 0.5)});
}

template <typename Item>
void tst_SelectionFrameGraphicsItem::checkPlacing()
{
    QGraphicsScene scene(0, 0, 1000, 1000);
    RecordingFrameHandler handler;
    auto* item = new Item(&handler);
    scene.addItem(item);
    item->SetWorkRect(QRectF(0, 0, 500, 400));

    QStringList steps;
    item->onAdjustFrame = [&](QRectF& frame) {
        steps << QStringLiteral("adjust");
        QCOMPARE(frame, QRectF(50, 60, 100, 80));
        QVERIFY(item->GetFrameInScene().isNull());
        frame = QRectF(100, 200, 250, 100);
    };
    item->onUpdateContents = [&] {
        steps << QStringLiteral("update");
        QCOMPARE(item->GetFrameInScene(), QRectF(100, 200, 250, 100));
        QVERIFY(handler.calls.isEmpty());
    };
    const bool repainted = schedulesRepaint(scene, [&] { item->SetFrameInScene(QRectF(50, 60, 100, 80)); });

    QVERIFY(repainted);
    QCOMPARE(steps, QStringList({QStringLiteral("adjust"), QStringLiteral("update")}));
    // One call, with the corrected frame.
    QCOMPARE(handler.order(), QVector<int>{RecordingFrameHandler::Frame});
    QCOMPARE(handler.frames().constFirst(), QRectF(0.2, 0.5, 0.5, 0.25));
    // The item begins one caption above its frame.
    const double captionHeight = FramePicture::captionHeight();
    QCOMPARE(item->pos(), QPointF(100, 200 - captionHeight));
    QCOMPARE(item->GetPaintingRect(), QRectF(0, captionHeight, 250, 100));
    QCOMPARE(item->GetFrameInScene(), QRectF(100, 200, 250, 100));
}

void tst_SelectionFrameGraphicsItem::placingStepByStep()
{
    forEveryItemClass([this](auto* item) { checkPlacing<std::remove_pointer_t<decltype(item)>>(); });
}

void tst_SelectionFrameGraphicsItem::placingFromTwoPointsAndRelative()
{
    RecordingFrameHandler handler;
    PlainFrame item(&handler);
    item.SetWorkRect(QRectF(100, 50, 400, 200));

    item.SetFrameInScene(QPointF(10, 20), QPointF(110, 70));
    QCOMPARE(item.GetFrameInScene(), QRectF(10, 20, 100, 50));

    // Swapped points make a mirrored frame, and stay swapped.
    item.SetFrameInScene(QPointF(110, 70), QPointF(10, 20));
    QCOMPARE(item.GetFrameInScene(), QRectF(110, 70, -100, -50));

    item.SetRelativeFrameInScene(QRectF(0.25, 0.5, 0.5, 0.125));
    QCOMPARE(item.GetFrameInScene(), QRectF(200, 150, 200, 25));
    QCOMPARE(handler.frames().constLast(), QRectF(0.25, 0.5, 0.5, 0.125));
    // Placing the same frame again is told again: the work rect may have changed meanwhile.
    handler.clear();
    item.SetFrameInScene(item.GetFrameInScene());
    QCOMPARE(handler.frames().size(), 1);
}

template <typename Item>
void tst_SelectionFrameGraphicsItem::checkRandomPlacing()
{
    RandomGeometry random(1);
    RecordingFrameHandler handler;
    Item item(&handler);
    for (int i = 0; i < 2000; ++i) {
        const QRectF work = random.rect(-300, 300, 1, 900);
        const QRectF frame = random.mirroredSometimes(random.rect(-500, 500, 0, 700));
        handler.clear();
        item.Initialize(work, frame);
        COMPARE_RECTS(item.GetFrameInScene(), frame);
        QCOMPARE(handler.order(), QVector<int>{RecordingFrameHandler::Frame});
        COMPARE_RECTS(handler.frames().constFirst(), FrameReference::relative(frame, work));
        COMPARE_RECTS(item.RelativeFromAbsolute(frame), FrameReference::relative(frame, work));
        if (!frame.isEmpty())
            COMPARE_RECTS(item.AbsoluteFromRelative(item.RelativeFromAbsolute(frame)), frame);
        COMPARE_RECTS(item.GetPaintingRect(), QRectF(0, FramePicture::captionHeight(), frame.width(), frame.height()));
    }
}

void tst_SelectionFrameGraphicsItem::placingRandomly()
{
    forEveryItemClass([this](auto* item) { checkRandomPlacing<std::remove_pointer_t<decltype(item)>>(); });
}

void tst_SelectionFrameGraphicsItem::placingUnderATransformedParent()
{
    QGraphicsScene scene(0, 0, 1000, 1000);
    RecordingFrameHandler handler;
    auto* parent = scene.addRect(0, 0, 10, 10);
    parent->setPos(70, 35);
    auto* item = new PlainFrame(&handler, parent);
    item->Initialize(QRectF(0, 0, 400, 400), QRectF(100, 200, 80, 40));
    // The scene is the frame of reference, whatever the item stands in.
    COMPARE_RECTS(item->GetFrameInScene(), QRectF(100, 200, 80, 40));
    QCOMPARE(item->scenePos(), QPointF(100, 200 - FramePicture::captionHeight()));
    COMPARE_RECTS(item->GetPaintingRect(), QRectF(0, FramePicture::captionHeight(), 80, 40));
    COMPARE_RECTS(handler.frames().constLast(), QRectF(0.25, 0.5, 0.2, 0.1));

    auto* scaled = new PlainFrame(&handler);
    scene.addItem(scaled);
    scaled->setScale(2.0);
    scaled->SetFrameInScene(QRectF(100, 200, 80, 40));
    COMPARE_RECTS(scaled->GetFrameInScene(), QRectF(100, 200, 80, 40));
    COMPARE_RECTS(scaled->GetPaintingRect(), QRectF(0, FramePicture::captionHeight() / 2, 40, 20));
}

template <typename Item>
void tst_SelectionFrameGraphicsItem::checkBounds()
{
    RecordingFrameHandler handler;
    Item item(&handler);
    const auto captionOf = [](int x, int y, int w, int h) {
        return FramePicture::captionSize(FramePicture::caption(x, y, w, h));
    };
    item.Initialize(QRectF(0, 0, 1000, 1000), QRectF(20, 100, 600, 200));
    const QSizeF wide = captionOf(2, 10, 60, 20);
    QVERIFY(wide.width() < 600);
    QCOMPARE(item.boundingRect(), QRectF(0, 0, 600, wide.height() + 200));

    item.SetFrameInScene(QRectF(20, 100, 30, 200));
    const QSizeF narrow = captionOf(2, 10, 3, 20);
    QVERIFY(narrow.width() > 30);
    QCOMPARE(item.boundingRect(), QRectF(0, 0, narrow.width(), narrow.height() + 200));

    // Truncated toward zero: -129 of 1000 is -12 %, not -13 %.
    item.SetFrameInScene(QRectF(-129, -9, 19.9, 1099));
    QCOMPARE(item.boundingRect().width(), captionOf(-12, 0, 1, 109).width());
}

void tst_SelectionFrameGraphicsItem::sceneFollowsTheGrowingFrame()
{
    QGraphicsScene scene(0, 0, 4000, 4000);
    for (int y = 0; y < 4000; y += 400) {
        for (int x = 0; x < 4000; x += 200)
            scene.addRect(x, y, 10, 10);
    }
    RecordingFrameHandler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    item->Initialize(QRectF(0, 0, 4000, 4000), QRectF(100, 100, 50, 50));
    QCoreApplication::processEvents();
    QVERIFY(scene.items(QPointF(120, 120)).contains(item));
    QVERIFY(!scene.items(QPointF(3333, 3333)).contains(item));
    // Its origin stays; the scene learns of the new size from the item alone.
    item->SetFrameInScene(QRectF(100, 100, 3800, 3800));
    QVERIFY(scene.items(QPointF(3333, 3333)).contains(item));
}

void tst_SelectionFrameGraphicsItem::boundingRectCoversTheCaption()
{
    forEveryItemClass([this](auto* item) { checkBounds<std::remove_pointer_t<decltype(item)>>(); });
}

template <typename Item>
void tst_SelectionFrameGraphicsItem::checkShape()
{
    RecordingFrameHandler handler;
    Item item(&handler);
    item.Initialize(QRectF(0, 0, 1000, 1000), QRectF(20, 100, 60, 20));
    QPainterPath expected;
    expected.addRect(item.GetPaintingRect());
    QCOMPARE(item.shape(), expected);
    // A click on the caption strip does not hit the item.
    QVERIFY(!item.contains(QPointF(5, FramePicture::captionHeight() / 2)));
    QVERIFY(item.contains(QPointF(5, FramePicture::captionHeight() + 5)));
}

void tst_SelectionFrameGraphicsItem::shapeIsTheFrameAlone()
{
    forEveryItemClass([this](auto* item) { checkShape<std::remove_pointer_t<decltype(item)>>(); });
}

void tst_SelectionFrameGraphicsItem::relativeAndAbsolute()
{
    RecordingFrameHandler handler;
    PlainFrame item(&handler);
    item.SetWorkRect(QRectF(100, 50, 400, 200));
    QCOMPARE(item.AbsoluteFromRelative(QRectF(0, 0, 1, 1)), QRectF(100, 50, 400, 200));
    QCOMPARE(item.AbsoluteFromRelative(QRectF(-0.5, 2, 0, -1)), QRectF(-100, 450, 0, -200));
    QCOMPARE(item.RelativeFromAbsolute(QRectF(100, 50, 400, 200)), QRectF(0, 0, 1, 1));
    QCOMPARE(item.RelativeFromAbsolute(QRectF(0, 0, 40, 20)), QRectF(-0.25, -0.25, 0.1, 0.1));
    // Empty frames have no relative one, wherever they lie.
    for (const QRectF& empty : {QRectF(), QRectF(200, 100, 0, 10), QRectF(200, 100, 10, 0), QRectF(200, 100, -10, 10),
                                QRectF(200, 100, 10, -10)})
        QCOMPARE(item.RelativeFromAbsolute(empty), QRectF(0, 0, 0, 0));
    QVERIFY(handler.calls.isEmpty());
}

template <typename Item>
void tst_SelectionFrameGraphicsItem::checkDegenerate()
{
    constexpr double infinite = std::numeric_limits<double>::infinity();
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    RecordingFrameHandler handler;
    QGraphicsScene scene(0, 0, 300, 300);
    auto* item = new Item(&handler);
    scene.addItem(item);

    // No guard: the division is performed as it stands.
    item->Initialize(QRectF(), QRectF(10, 20, 30, 40));
    const QRectF relative = item->RelativeFromAbsolute(QRectF(10, 20, 30, 40));
    QVERIFY(std::isinf(relative.x()) && std::isinf(relative.y()));
    QVERIFY(std::isinf(relative.width()) && std::isinf(relative.height()));
    QVERIFY(std::isnan(item->RelativeFromAbsolute(QRectF(0, 0, 30, 40)).x()));
    QCOMPARE(handler.frames().size(), 1);

    const QVector<double> values = {0.0, -50.0, 1e300, infinite, -infinite, none};
    QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (double x : values) {
        for (double width : values) {
            const QRectF strange(x, width, width, x);
            item->SetWorkRect(strange);
            item->SetFrameInScene(QRectF(10, 10, 50, 50));
            (void)item->boundingRect();
            (void)item->shape();
            QVERIFY(!item->IsInfoCaptionVisible());
            item->SetFrameInScene(strange);
            (void)item->boundingRect();
            (void)item->IsInfoCaptionInsideFrame();
            FrameGestures::hover(*item, QPointF(x, width));
            FrameGestures::press(*item, QPointF(20, 20));
            FrameGestures::move(*item, QPointF(x, width));
            FrameGestures::release(*item, QPointF(width, x));
            item->SetRelativeFrameInScene(strange);
        }
    }
    item->Initialize(QRectF(0, 0, 300, 300), QRectF(10, 10, 50, 50));
    QCOMPARE(item->GetFrameInScene(), QRectF(10, 10, 50, 50));
}

void tst_SelectionFrameGraphicsItem::degenerateRectangles()
{
    forEveryItemClass([this](auto* item) { checkDegenerate<std::remove_pointer_t<decltype(item)>>(); });
}

void tst_SelectionFrameGraphicsItem::parentView()
{
    RecordingFrameHandler handler;
    using Item = SelectionFrameGraphicsItem<QGraphicsItem>;
    const auto viewOf = [](Item& item) { return (item.*unlock(ParentView()))(); };
    const auto viewFrameOf = [](Item& item) { return (item.*unlock(ParentViewFrame()))(); };
    PlainFrame loose(&handler);
    QCOMPARE(messageThrownBy([&] { viewOf(loose); }), QByteArray("Scene is not specified"));
    QCOMPARE(messageThrownBy([&] { viewFrameOf(loose); }), QByteArray("Scene is not specified"));

    QGraphicsScene scene;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    QCOMPARE(messageThrownBy([&] { viewOf(*item); }), QByteArray("Parent view is not specified for the scene"));
    QCOMPARE(messageThrownBy([&] { viewFrameOf(*item); }), QByteArray("Parent view is not specified for the scene"));

    QGraphicsView first(&scene);
    first.resize(320, 240);
    {
        const QGraphicsView second(&scene);
        QCOMPARE(viewOf(*item), &first);
    }
    QCOMPARE(viewFrameOf(*item), QRectF(0, 0, first.frameRect().width(), first.frameRect().height()));
    // The order of the links: without a scene the missing view is not reached.
    scene.removeItem(item);
    QCOMPARE(messageThrownBy([&] { viewOf(*item); }), QByteArray("Scene is not specified"));
    delete item;
}

void tst_SelectionFrameGraphicsItem::cursorCheck()
{
    RecordingFrameHandler handler;
    PlainFrame item(&handler);
    item.Initialize(QRectF(0, 0, 500, 500), QRectF(100, 100, 100, 100));
    QCOMPARE((item.*unlock(SelectionFrameRect()))(), item.GetPaintingRect());
    const auto asked = [&] {
        handler.clear();
        (static_cast<SelectionFrameGraphicsItem<QGraphicsItem>&>(item).*unlock(CursorCheck()))();
        return handler.cursors();
    };
    QCOMPARE(asked(), QVector<int>{Qt::ArrowCursor});
    FrameGestures::press(item, QPointF(150, 150));
    QCOMPARE(asked(), QVector<int>{Qt::ArrowCursor});
    FrameGestures::release(item, QPointF(150, 150));
    FrameGestures::press(item, QPointF(200, 150));
    QCOMPARE(asked(), QVector<int>{Qt::SizeAllCursor});
    FrameGestures::release(item, QPointF(200, 150));
    QCOMPARE(asked(), QVector<int>{Qt::ArrowCursor});
}

void tst_SelectionFrameGraphicsItem::transparencyIsStoredOnly()
{
    QGraphicsScene scene(0, 0, 300, 300);
    RecordingFrameHandler handler;
    auto* item = new PlainFrame(&handler);
    scene.addItem(item);
    item->Initialize(QRectF(0, 0, 300, 300), QRectF(50, 50, 100, 100));
    const QImage before = FramePicture::pictureOf(*item);
    handler.clear();
    // Not range-checked: the renderer takes what it is given.
    for (int value : {0, 128, 255, -7, 100000}) {
        QVERIFY(!schedulesRepaint(scene, [&] { item->SetTransparency(value); }));
        QCOMPARE(item->GetTransparency(), value);
    }
    QVERIFY(handler.calls.isEmpty());
    QCOMPARE(FramePicture::pictureOf(*item), before);
}

void tst_SelectionFrameGraphicsItem::handlerIsBorrowed()
{
    struct Counted : RecordingFrameHandler
    {
        explicit Counted(int* alive)
            : m_alive(alive)
        {
            ++*m_alive;
        }
        ~Counted() override { --*m_alive; }
        Q_DISABLE_COPY(Counted)
        int* m_alive;
    };
    int alive = 0;
    auto handler = std::make_unique<Counted>(&alive);
    {
        PlainFrame item(handler.get());
        item.SetFrameInScene(QRectF(0, 0, 10, 10));
        handler->clear();
    }
    QCOMPARE(alive, 1);
    QVERIFY2(handler->calls.isEmpty(), "going away is not told");

    // A handler may go in the same breath as its frame, as long as it goes last.
    auto item = std::make_unique<PlainFrame>(handler.get());
    item.reset();
    handler.reset();
    QCOMPARE(alive, 0);
}

void tst_SelectionFrameGraphicsItem::deletedWithItsScene()
{
    struct Counted : PlainFrame
    {
        Counted(ISelectionFrameEventHandler* handler, int* alive)
            : PlainFrame(handler)
            , m_alive(alive)
        {
            ++*m_alive;
        }
        ~Counted() override { --*m_alive; }
        int* m_alive;
    };
    RecordingFrameHandler handler;
    int alive = 0;
    {
        QGraphicsScene scene;
        auto* item = new Counted(&handler, &alive);
        scene.addItem(item);
        item->Initialize(QRectF(0, 0, 100, 100), QRectF(0, 0, 50, 50));
        FrameGestures::press(*item, QPointF(25, 25));
        QCOMPARE(alive, 1);
    }
    QCOMPARE(alive, 0);

    // In the middle of a gesture through a view, too.
    QGraphicsScene scene(0, 0, 200, 200);
    QGraphicsView view(&scene);
    view.resize(220, 220);
    auto* item = new Counted(&handler, &alive);
    scene.addItem(item);
    item->Initialize(QRectF(0, 0, 200, 200), QRectF(50, 50, 100, 100));
    const QPoint inside = view.mapFromScene(QPointF(100, 100));
    QTest::mousePress(view.viewport(), Qt::LeftButton, {}, inside);
    QVERIFY(item->IsInfoCaptionVisible());
    delete item;
    QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, inside);
    QCOMPARE(alive, 0);
}

void tst_SelectionFrameGraphicsItem::deletedByItsHandler()
{
    // A host may take the frame away in answer to any message of it.
    struct Deleting : ISelectionFrameEventHandler
    {
        void InteractionStateChanged() override { count(); }
        void FrameChanged(const QRectF&) override { count(); }
        void SetCursor(Qt::CursorShape) override { count(); }
        void count()
        {
            if (--messagesLeft == 0)
                item.reset();
        }
        std::unique_ptr<PlainFrame> item;
        int messagesLeft = 0;
    };
    QGraphicsScene scene(0, 0, 1000, 1000);
    const QVector<QVector<QPointF>> gestures = {
        {{150, 150}, {160, 160}}, {{200, 150}, {230, 150}}, {{100, 100}, {50, 50}}, {{50, 50}, {60, 60}}};
    int deletions = 0;
    for (const QVector<QPointF>& gesture : gestures) {
        for (int message = 1; message < 12; ++message) {
            Deleting handler;
            handler.item = std::make_unique<PlainFrame>(&handler);
            scene.addItem(handler.item.get());
            handler.item->Initialize(QRectF(0, 0, 500, 400), QRectF(100, 100, 100, 100));
            handler.messagesLeft = message;
            const auto stillThere = [&handler] { return handler.item != nullptr; };
            if (stillThere())
                FrameGestures::hover(*handler.item, QPointF(150, 150), QEvent::GraphicsSceneHoverEnter);
            if (stillThere())
                FrameGestures::press(*handler.item, gesture.first());
            if (stillThere())
                FrameGestures::move(*handler.item, gesture.last());
            if (stillThere())
                FrameGestures::release(*handler.item, gesture.last());
            if (stillThere())
                handler.item->SetAspectRatio(2.0);
            if (stillThere())
                FrameGestures::leave(*handler.item, QPointF(0, 0));
            deletions += stillThere() ? 0 : 1;
        }
    }
    QVERIFY(deletions > 20);
    QVERIFY(scene.items().isEmpty());
}

QTEST_MAIN(tst_SelectionFrameGraphicsItem)
#include "tst_SelectionFrameGraphicsItem.moc"
