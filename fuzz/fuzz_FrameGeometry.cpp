// Selection frames under any rectangle, ratio and path of the mouse.
#include "FuzzApplication.h"

#include <KQt/Ui/SelectionFrameWidget/SelectionFrameItem.h>

#include <support/FrameGestures.h>
#include <support/RecordingFrameHandler.h>

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QImage>
#include <QPainter>

#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <fuzzer/FuzzedDataProvider.h>
#include <limits>

using namespace Kestrel::Gui;
using Fuzz::require;

namespace {

double numberFrom(FuzzedDataProvider& data)
{
    using Limits = std::numeric_limits<double>;
    static constexpr std::array<double, 14> special = {0,
                                                       -0.0,
                                                       1,
                                                       16,
                                                       Limits::infinity(),
                                                       -Limits::infinity(),
                                                       Limits::quiet_NaN(),
                                                       Limits::denorm_min(),
                                                       Limits::min(),
                                                       Limits::max(),
                                                       -Limits::max(),
                                                       2147483647.0,
                                                       -2147483648.0,
                                                       1e10};
    switch (data.ConsumeIntegralInRange(0, 3)) {
    case 0:
        return special[data.ConsumeIntegralInRange<std::size_t>(0, special.size() - 1)];
    case 1: {
        const auto bits = data.ConsumeIntegral<std::uint64_t>();
        double number = 0;
        std::memcpy(&number, &bits, sizeof(number));
        return number;
    }
    default:
        return data.ConsumeIntegralInRange(-2000, 2000) / 4.0;
    }
}

QPointF pointFrom(FuzzedDataProvider& data)
{
    const double x = numberFrom(data);
    return {x, numberFrom(data)};
}

QRectF rectFrom(FuzzedDataProvider& data)
{
    const QPointF corner = pointFrom(data);
    const double width = numberFrom(data);
    return {corner, QSizeF(width, numberFrom(data))};
}

void calculate(FuzzedDataProvider& data)
{
    const QRectF frame = rectFrom(data);
    const Detail::FrameCorners corners = {frame.topLeft(), frame.bottomRight()};
    const QPointF mouse = pointFrom(data);
    const Detail::FrameZone zone = Detail::zoneAt(mouse, corners);
    require(zone >= Detail::FrameZone::None && zone <= Detail::FrameZone::LeftSide);
    Detail::cursorForZone(zone, corners);
    Detail::isInGrabBand(mouse, corners);
    Detail::cornerPoint(data.ConsumeIntegral<int>(), corners);
    Detail::alignedRect(frame);
    Detail::paintableRect(frame);
    const Detail::SceneEdges edges = Detail::sceneEdges(rectFrom(data));
    const double ratio = numberFrom(data);
    Detail::draggedFrame({corners, mouse}, pointFrom(data), frame.size(), rectFrom(data));
    Detail::hasSameShape(frame, rectFrom(data));
    Detail::withRatioRestored(frame, ratio, edges);
    const auto anyZone = static_cast<Detail::FrameZone>(data.ConsumeIntegralInRange(-2, 7));
    Detail::resizedKeepingRatio(frame, anyZone, mouse, ratio, edges);
    Detail::resizedFreely(frame, anyZone, mouse);
}

void paint(SelectionFrameItem& item)
{
    static QImage picture(64, 64, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&picture);
    item.paint(&painter, nullptr, nullptr);
}

void act(SelectionFrameItem& item, QPointF& mouse, FuzzedDataProvider& data)
{
    switch (data.ConsumeIntegralInRange(0, 9)) {
    case 0:
        item.Initialize(rectFrom(data), rectFrom(data));
        break;
    case 1:
        item.SetRelativeFrameInScene(rectFrom(data));
        break;
    case 2:
        item.SetAspectRatio(numberFrom(data));
        break;
    case 3:
        item.SetKeepAspectRatio(data.ConsumeBool());
        break;
    case 4:
        mouse = pointFrom(data);
        FrameGestures::press(item, mouse);
        break;
    case 5:
        FrameGestures::release(item, mouse);
        break;
    case 6:
        FrameGestures::hover(item, mouse);
        break;
    case 7:
        paint(item);
        break;
    case 8:
        item.scene()->setSceneRect(rectFrom(data));
        break;
    default:
        mouse = pointFrom(data);
        FrameGestures::move(item, mouse);
        break;
    }
}

void playWithItem(FuzzedDataProvider& data)
{
    RecordingFrameHandler handler;
    QGraphicsScene scene(0, 0, 320, 240);
    QGraphicsView view(&scene);
    auto* item = new SelectionFrameItem(&handler);
    scene.addItem(item);
    item->Initialize(QRectF(10, 10, 300, 220), QRectF(50, 50, 100, 80));
    QPointF mouse;
    while (data.remaining_bytes() > 0)
        act(*item, mouse, data);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz::application();
    FuzzedDataProvider provider(data, size);
    if (provider.ConsumeBool())
        calculate(provider);
    else
        playWithItem(provider);
    return 0;
}
