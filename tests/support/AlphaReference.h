#pragma once

#include "support/WarningCatcher.h"

#include <QImage>
#include <QRect>

#include <algorithm>
#include <cstring>

/// A second calculation of FillAlphaCahnnel(), to hold the library's against.
namespace AlphaReference {

inline QImage alphaOf(const QImage& image)
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    return image.alphaChannel();
    QT_WARNING_POP
}

/// Pixel by pixel, as it is described; the messages of setPixel() on paletted pictures are swallowed.
inline QImage pixelByPixel(const QImage& source, const QRect& rect, int alpha)
{
    const TestSupport::WarningCatcher swallowed;
    QImage image = source.copy();
    const QImage alphas = alphaOf(image);
    for (int y = std::max(rect.top(), 0); y <= std::min(rect.bottom(), image.height() - 1); ++y) {
        for (int x = std::max(rect.left(), 0); x <= std::min(rect.right(), image.width() - 1); ++x) {
            const int a = qRed(alphas.pixel(x, y));
            const QRgb color = image.pixel(x, y);
            image.setPixel(x, y, qRgba(qRed(color), qGreen(color), qBlue(color), int(a * alpha / 255.0)));
        }
    }
    return image;
}

/// The pixels alone; the bits that pad a line may be anything.
inline bool samePixels(const QImage& a, const QImage& b)
{
    if (a.size() != b.size() || a.format() != b.format() || a.colorTable() != b.colorTable())
        return false;
    const int whole = a.width() * a.depth() / 8;
    for (int y = 0; y < a.height(); ++y) {
        if (std::memcmp(a.constScanLine(y), b.constScanLine(y), static_cast<size_t>(whole)) != 0)
            return false;
        if (a.depth() == 1) {
            for (int x = 0; x < a.width(); ++x) {
                if (a.pixelIndex(x, y) != b.pixelIndex(x, y))
                    return false;
            }
        }
    }
    return true;
}

} // namespace AlphaReference
