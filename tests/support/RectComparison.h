#pragma once

#include <QRectF>
#include <QtTest>

#include <algorithm>
#include <cmath>

namespace RectComparison {

inline bool nearly(double a, double b)
{
    if (std::isnan(a) || std::isnan(b))
        return std::isnan(a) && std::isnan(b);
    return a == b || std::abs(a - b) <= 1e-9 * std::max({1.0, std::abs(a), std::abs(b)});
}

inline bool nearly(const QRectF& a, const QRectF& b)
{
    return nearly(a.x(), b.x()) && nearly(a.y(), b.y()) && nearly(a.width(), b.width()) &&
           nearly(a.height(), b.height());
}

inline QByteArray text(const QRectF& rect)
{
    return '(' + QByteArray::number(rect.x(), 'g', 17) + ' ' + QByteArray::number(rect.y(), 'g', 17) + ' ' +
           QByteArray::number(rect.width(), 'g', 17) + " x " + QByteArray::number(rect.height(), 'g', 17) + ')';
}

} // namespace RectComparison

/// Equal up to the rounding of a few divisions; @p context is a QByteArray that tells the case.
#define COMPARE_RECTS_IN(actual, expected, context)                                                                    \
    do {                                                                                                               \
        const QRectF actualRect = (actual);                                                                            \
        const QRectF expectedRect = (expected);                                                                        \
        /* The words only where they are needed: random checks come here a hundred thousand times. */                  \
        if (!RectComparison::nearly(actualRect, expectedRect))                                                         \
            QFAIL(("got " + RectComparison::text(actualRect) + ", expected " + RectComparison::text(expectedRect) +    \
                   ' ' + (context))                                                                                    \
                      .constData());                                                                                   \
    } while (false)

#define COMPARE_RECTS(actual, expected) COMPARE_RECTS_IN(actual, expected, QByteArray())
