// Lowering the alpha of a rendered frame's area: the library's function, a plain copy of the same rows, and the
// description of the function carried out pixel by pixel.

#include <KQt/Ui/SelectionFrameWidget/SelectionFrameWidget.h>

#include <QImage>

#include <benchmark/benchmark.h>

#include <cstring>

namespace {

constexpr int Alpha = 100;
const QSize ImageSize(1920, 1080);
const QRect Area(QPoint(0, 0), ImageSize);

QImage picture(QImage::Format format)
{
    QImage image(ImageSize, QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            row[x] = qRgba(x & 0xFF, y & 0xFF, (x + y) & 0xFF, (x * 7 + y * 3) & 0xFF);
    }
    return image.convertToFormat(format);
}

void fillPixelByPixel(QImage& image, const QRect& rect, int alpha)
{
    const QImage alphas = image.convertToFormat(QImage::Format_Alpha8);
    for (int y = rect.top(); y <= rect.bottom(); ++y) {
        for (int x = rect.left(); x <= rect.right(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            const int scaled = static_cast<int>(qAlpha(alphas.pixel(x, y)) * alpha / 255.0);
            image.setPixel(x, y, qRgba(qRed(pixel), qGreen(pixel), qBlue(pixel), scaled));
        }
    }
}

void countBytes(benchmark::State& state, const QImage& image)
{
    state.SetBytesProcessed(state.iterations() * image.sizeInBytes());
}

void library(benchmark::State& state, QImage::Format format)
{
    QImage image = picture(format);
    for (auto _ : state) {
        Kestrel::Gui::FillAlphaCahnnel(image, Area, Alpha);
        benchmark::DoNotOptimize(image.constBits());
        benchmark::ClobberMemory();
    }
    countBytes(state, image);
}

void copyOfRows(benchmark::State& state, QImage::Format format)
{
    const QImage image = picture(format);
    QImage copy(image.size(), image.format());
    const auto rowLength = static_cast<std::size_t>(image.width()) * sizeof(QRgb);
    for (auto _ : state) {
        for (int y = Area.top(); y <= Area.bottom(); ++y)
            std::memcpy(copy.scanLine(y), image.constScanLine(y), rowLength);
        benchmark::DoNotOptimize(copy.constBits());
        benchmark::ClobberMemory();
    }
    countBytes(state, image);
}

void pixelByPixel(benchmark::State& state, QImage::Format format)
{
    QImage image = picture(format);
    for (auto _ : state) {
        fillPixelByPixel(image, Area, Alpha);
        benchmark::DoNotOptimize(image.constBits());
    }
    countBytes(state, image);
}

BENCHMARK_CAPTURE(library, ARGB32, QImage::Format_ARGB32)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(copyOfRows, ARGB32, QImage::Format_ARGB32)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(pixelByPixel, ARGB32, QImage::Format_ARGB32)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(library, ARGB32_Premultiplied, QImage::Format_ARGB32_Premultiplied)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(copyOfRows, ARGB32_Premultiplied, QImage::Format_ARGB32_Premultiplied)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(pixelByPixel, ARGB32_Premultiplied, QImage::Format_ARGB32_Premultiplied)
    ->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
