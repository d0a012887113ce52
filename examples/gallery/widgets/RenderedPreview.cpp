#include "widgets/RenderedPreview.h"

#include <QPainter>

namespace Gallery {

namespace {

constexpr int tileSize = 8;

void paintChequers(QPainter& painter, const QRect& area)
{
    painter.fillRect(area, Qt::white);
    for (int y = 0; y * tileSize < area.height(); ++y) {
        for (int x = y % 2; x * tileSize < area.width(); x += 2) {
            const QRect tile(area.left() + x * tileSize, area.top() + y * tileSize, tileSize, tileSize);
            painter.fillRect(tile & area, Qt::lightGray);
        }
    }
}

} // namespace

RenderedPreview::RenderedPreview(QWidget* parent)
    : QWidget(parent)
{
    constexpr QSize smallest(160, 112);
    setMinimumSize(smallest);
}

void RenderedPreview::setImage(const QImage& image)
{
    m_image = image;
    // Inside frames the rendered colours are not multiplied with the alpha, whatever the format says.
    m_image.reinterpretAsFormat(QImage::Format_ARGB32);
    update();
}

QSize RenderedPreview::sizeHint() const
{
    return {200, 140};
}

void RenderedPreview::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event)
    if (m_image.isNull())
        return;
    const QRect area(QPoint(), m_image.size().scaled(size(), Qt::KeepAspectRatio));
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    paintChequers(painter, area);
    painter.drawImage(area, m_image);
}

} // namespace Gallery
