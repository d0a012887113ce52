#pragma once

#include <QPointF>
#include <QRectF>

#include <cmath>
#include <random>

/// Random geometry on a grid of eighths, whose sums and differences are exact; the same in every run.
class RandomGeometry
{
public:
    explicit RandomGeometry(unsigned seed)
        : m_engine(seed)
    {
    }

    /// 0 to @p count - 1.
    int below(int count) { return static_cast<int>(m_engine() % static_cast<unsigned>(count)); }

    bool oneIn(int count) { return below(count) == 0; }

    /// low to high, whole numbers a third of the time.
    double between(int low, int high)
    {
        const double value = low + below((high - low) * 8 + 1) / 8.0;
        return oneIn(3) ? std::floor(value) : value;
    }

    QPointF point(int low, int high)
    {
        const double x = between(low, high);
        return {x, between(low, high)};
    }

    QPointF pointNear(const QRectF& rect, int margin)
    {
        const QRectF area = rect.normalized();
        const double x = between(static_cast<int>(area.left()) - margin, static_cast<int>(area.right()) + margin);
        return {x, between(static_cast<int>(area.top()) - margin, static_cast<int>(area.bottom()) + margin)};
    }

    QRectF rect(int low, int high, int smallest, int largest)
    {
        const QPointF topLeft = point(low, high);
        const double width = between(smallest, largest);
        return {topLeft, QSizeF(width, between(smallest, largest))};
    }

    /// @p rect, or the same area with its points swapped on one axis or on both.
    QRectF mirroredSometimes(const QRectF& rect)
    {
        const int way = below(8);
        QRectF result = rect;
        if (way == 1 || way == 3)
            result = QRectF(result.x() + result.width(), result.y(), -result.width(), result.height());
        if (way == 2 || way == 3)
            result = QRectF(result.x(), result.y() + result.height(), result.width(), -result.height());
        return result;
    }

private:
    std::mt19937 m_engine;
};
