// Alpha of a picture's part, held against the calculation pixel by pixel.
#include "FuzzApplication.h"

#include <KQt/Ui/SelectionFrameWidget/SelectionFrameWidget.h>

#include <support/AlphaReference.h>

#include <QImage>

#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>
#include <stdexcept>

using Fuzz::require;
using Kestrel::Gui::FillAlphaCahnnel;

namespace {

QImage pictureFrom(FuzzedDataProvider& data)
{
    constexpr int longestSide = 20;
    const auto format = static_cast<QImage::Format>(
        data.ConsumeIntegralInRange<int>(QImage::Format_Invalid, QImage::NImageFormats - 1));
    QImage image(data.ConsumeIntegralInRange(0, longestSide), data.ConsumeIntegralInRange(0, longestSide), format);
    if (image.isNull())
        return image;
    image.fill(0);
    if (image.depth() <= 8 && format != QImage::Format_Alpha8 && format != QImage::Format_Grayscale8) {
        QVector<QRgb> table(1 << image.depth());
        for (QRgb& color : table)
            color = data.ConsumeIntegral<QRgb>();
        image.setColorTable(table);
    }
    for (int y = 0; y < image.height(); ++y) {
        const auto row = data.ConsumeBytes<uchar>(static_cast<std::size_t>(image.bytesPerLine()));
        std::copy(row.begin(), row.end(), image.scanLine(y));
    }
    return image;
}

QRect rectFrom(FuzzedDataProvider& data)
{
    if (data.ConsumeBool()) {
        constexpr int near = 30;
        const auto coordinate = [&data] { return data.ConsumeIntegralInRange(-near, near); };
        const int x = coordinate();
        const int y = coordinate();
        return {QPoint(x, y), QPoint(coordinate(), coordinate())};
    }
    const auto coordinate = [&data] { return data.ConsumeIntegral<int>(); };
    const int x = coordinate();
    const int y = coordinate();
    return {QPoint(x, y), QPoint(coordinate(), coordinate())};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedDataProvider provider(data, size);
    const QRect rect = rectFrom(provider);
    const int alpha =
        provider.ConsumeBool() ? provider.ConsumeIntegral<std::uint8_t>() : provider.ConsumeIntegral<int>();
    QImage image = pictureFrom(provider);
    const QImage before = image.copy();
    try {
        FillAlphaCahnnel(image, rect, alpha);
        require(alpha >= 0 && alpha <= 255);
        if (!image.isNull())
            require(AlphaReference::samePixels(image, AlphaReference::pixelByPixel(before, rect, alpha)));
    } catch (const std::invalid_argument&) {
        require(alpha < 0 || alpha > 255);
        require(image == before);
    }
    return 0;
}
