#include <KQt/Ui/SelectionFrameWidget/SelectionFrameWidget.h>

#include <KQt/Ui/Check.h>
#include <KQt/Ui/SelectionFrameWidget/IFrameRenderSource.h>
#include <KQt/Ui/SelectionFrameWidget/SelectionFrameGeometry.h>

#include <QEvent>
#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

#include <algorithm>
#include <cstddef>

namespace Kestrel::Gui {

namespace {

constexpr double VeilZ = 0.5;
const QColor InitialVeilColour(0, 0, 0, 200);
constexpr int VeilAlpha = 180;

// Kept opaque at the top of a frame for the caption inside it.
constexpr double CaptionHeight = 20.0;

std::array<QRectF, 4> veilRects(const QRectF& scene, const QRectF& work)
{
    // On purpose for both sides: the distance from the work rect's right edge to the scene's.
    const double sideWidth = scene.width() - scene.x() - work.x() - work.width();
    return {
        QRectF(scene.x(), scene.y(), scene.width(), work.y() - scene.y()),
        QRectF(scene.x(), scene.y() + work.y() + work.height(), scene.width(),
               scene.y() + (scene.height() - work.height() - work.y())),
        QRectF(scene.x(), scene.y() + work.y(), sideWidth, work.height()),
        QRectF(scene.x() + work.x() + work.width(), scene.y() + work.y(), sideWidth, work.height()),
    };
}

QRect renderedArea(const IFrameRenderSource& source)
{
    QRectF frame = source.GetFrameInScene();
    if (source.IsInfoCaptionVisible() && source.IsInfoCaptionInsideFrame())
        frame.setTop(frame.top() + CaptionHeight);
    return Detail::alignedRect(frame).adjusted(0, 0, 1, 1);
}

int scaledAlpha(int pixelAlpha, int alpha)
{
    return static_cast<int>(pixelAlpha * alpha / 255.0) & 0xFF;
}

// A factor that gives, cut off, what value * alpha / 255 gives for every value and alpha of a byte (but 255): the last
// bit added lifts whole quotients above rounding and is too small to lift others to the next whole number. All products
// are exact in single precision.
float alphaFactor(int alpha)
{
    const int parts = alpha * 65536 / 255 + 1;
    return static_cast<float>(parts) / 65536.0F;
}

// Rows of 32-bit pixels with the alpha in the highest byte, in a form of which compilers do several pixels at a time:
// conversions and products of floats have vector instructions everywhere, those of integers have not.
void scaleAlphaOfRows(QImage& image, const QRect& area, int alpha)
{
    const float factor = alphaFactor(alpha);
    const int width = area.width();
    for (int y = area.top(); y <= area.bottom(); ++y) {
        QRgb* row = reinterpret_cast<QRgb*>(image.scanLine(y)) + area.left();
        for (int x = 0; x < width; ++x) {
            const auto pixelAlpha = static_cast<float>(static_cast<qint32>(row[x] >> 24));
            const auto scaled = static_cast<quint32>(static_cast<qint32>(pixelAlpha * factor));
            row[x] = (row[x] & 0x00FFFFFF) | (scaled << 24);
        }
    }
}

bool hasColour(const QImage& image, int x, int y)
{
    return image.pixelFormat().colorModel() != QPixelFormat::Indexed || image.pixelIndex(x, y) < image.colorCount();
}

// An indexed image takes the pixel for an index, as QImage::setPixel() does, and refuses it without a word where it has
// no such colour.
bool takesPixel(const QImage& image, QRgb pixel)
{
    switch (image.format()) {
    case QImage::Format_Mono:
    case QImage::Format_MonoLSB:
        return pixel <= 1;
    case QImage::Format_Indexed8:
        return pixel < static_cast<QRgb>(image.colorCount());
    default:
        return true;
    }
}

QImage alphaOf(const QImage& image)
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    // Its successor, a conversion to Format_Alpha8, may round differently.
    return image.alphaChannel();
    QT_WARNING_POP
}

void scaleAlphaOfPixels(QImage& image, const QRect& area, int alpha)
{
    const QImage alphaImage = alphaOf(image);
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (!hasColour(image, x, y))
                continue;
            const QRgb colour = image.pixel(x, y);
            const int pixelAlpha = scaledAlpha(qRed(alphaImage.pixel(x, y)), alpha);
            const QRgb pixel = qRgba(qRed(colour), qGreen(colour), qBlue(colour), pixelAlpha);
            if (takesPixel(image, pixel))
                image.setPixel(x, y, pixel);
        }
    }
}

} // namespace

class SelectionFrameWidget::VeilStrip : public QGraphicsRectItem
{
public:
    VeilStrip(std::shared_ptr<VeilStrips> strips, std::size_t index)
        : m_strips(std::move(strips))
        , m_index(index)
    {
        (*m_strips)[m_index] = this;
    }
    ~VeilStrip() override { (*m_strips)[m_index] = nullptr; }

private:
    std::shared_ptr<VeilStrips> m_strips;
    std::size_t m_index;
};

SelectionFrameWidget::SelectionFrameWidget(QWidget* parent, QWindow* window)
    : QGraphicsView(parent)
    , m_scene(new QGraphicsScene(this))
{
    setScene(m_scene);
    m_scene->setSceneRect(rect());
    setStyleSheet(QStringLiteral("background: transparent"));
    window->installEventFilter(this);
    CreateVeil();
}

SelectionFrameWidget::~SelectionFrameWidget() = default;

void SelectionFrameWidget::EnableEditMode(bool enable)
{
    m_editMode = enable;
}

void SelectionFrameWidget::SetBGColor(QColor color)
{
    color.setAlpha(VeilAlpha);
    for (QGraphicsRectItem* strip : *m_veil) {
        if (strip)
            strip->setBrush(color);
    }
}

void SelectionFrameWidget::SetWorkRect(QRectF work)
{
    m_workRect = work;
    const std::array<QRectF, 4> rects = veilRects(sceneRect(), work);
    for (std::size_t i = 0; i < rects.size(); ++i) {
        if (QGraphicsRectItem* strip = (*m_veil)[i])
            strip->setRect(rects[i]);
    }
}

QImage SelectionFrameWidget::RenderToImage()
{
    QImage image(size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    if (image.isNull() || !m_scene)
        return image;
    {
        QPainter painter(&image);
        m_scene->render(&painter, QRectF(), QRectF(), Qt::KeepAspectRatio);
    }
    const QList<QGraphicsItem*> shown = items();
    for (QGraphicsItem* item : shown) {
        const auto* source = dynamic_cast<const IFrameRenderSource*>(item);
        if (source && source->IsBackgroundAlphaChannelNeeded())
            FillAlphaCahnnel(image, renderedArea(*source), 255 - source->GetTransparency());
    }
    return image;
}

bool SelectionFrameWidget::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (!m_editMode)
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        mousePressEvent(static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::MouseButtonRelease:
        mouseReleaseEvent(static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::MouseButtonDblClick:
        return true;
    case QEvent::MouseMove:
        mouseMoveEvent(static_cast<QMouseEvent*>(event));
        return false;
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::HoverEnter:
    case QEvent::HoverLeave:
    case QEvent::HoverMove:
        this->event(event);
        return false;
    default:
        return false;
    }
}

void SelectionFrameWidget::CreateVeil()
{
    for (std::size_t i = 0; i < m_veil->size(); ++i) {
        auto* strip = new VeilStrip(m_veil, i);
        strip->setPen(Qt::NoPen);
        strip->setBrush(InitialVeilColour);
        strip->setZValue(VeilZ);
        m_scene->addItem(strip);
    }
}

void FillAlphaCahnnel(QImage& image, const QRect& rect, int alpha)
{
    if (alpha < 0 || alpha > 255)
        KQTUI_THROW_INVALID_ARGUMENT("Alpha Value must be in [0; 255] range");
    // By the edges: QRect::intersected() would turn an inverted rect over and take the largest one there is for null.
    const QRect area(QPoint(std::max(rect.left(), 0), std::max(rect.top(), 0)),
                     QPoint(std::min(rect.right(), image.width() - 1), std::min(rect.bottom(), image.height() - 1)));
    if (area.isEmpty())
        return;
    const bool fast = image.format() == QImage::Format_ARGB32 || image.format() == QImage::Format_ARGB32_Premultiplied;
    if (!fast)
        scaleAlphaOfPixels(image, area, alpha);
    else if (alpha != 255) // 255 changes nothing and needs no copy of a shared image
        scaleAlphaOfRows(image, area, alpha);
}

} // namespace Kestrel::Gui
