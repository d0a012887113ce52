#pragma once

#include <QImage>
#include <QPainter>
#include <QWidget>

namespace TestSupport {

/// A widget whose every device pixel has a colour of its own: red tells the column and green the row, modulo 256.
class PixelBoard : public QWidget
{
public:
    explicit PixelBoard(QWidget* parent = nullptr)
        : QWidget(parent)
    {
    }

    /// The colour of a device pixel.
    static QColor colorAt(int column, int row) { return {column & 0xff, row & 0xff, 77}; }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        const qreal ratio = devicePixelRatioF();
        QImage image(size() * ratio, QImage::Format_RGB32);
        for (int row = 0; row < image.height(); ++row) {
            for (int column = 0; column < image.width(); ++column)
                image.setPixelColor(column, row, colorAt(column, row));
        }
        image.setDevicePixelRatio(ratio);
        QPainter(this).drawImage(0, 0, image);
    }
};

} // namespace TestSupport
