#pragma once

#include <QPaintDevice>
#include <QPaintEngine>
#include <QStringList>

namespace TestSupport {

/// A device that keeps the texts that are painted on it, and nothing else.
class PaintedTexts : public QPaintDevice
{
public:
    PaintedTexts()
        : m_engine(m_texts)
    {
    }

    const QStringList& texts() const { return m_texts; }

    QPaintEngine* paintEngine() const override { return &m_engine; }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        constexpr int side = 4000; // pixels, larger than anything that a test paints
        constexpr int millimetres = 1000;
        constexpr int resolution = 96;
        switch (metric) {
        case PdmWidth:
        case PdmHeight:
            return side;
        case PdmWidthMM:
        case PdmHeightMM:
            return millimetres;
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return resolution;
        case PdmDepth:
            return 32;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default:
            return 0;
        }
    }

private:
    class Engine : public QPaintEngine
    {
    public:
        explicit Engine(QStringList& texts)
            : QPaintEngine(AllFeatures)
            , m_texts(texts)
        {
        }

        bool begin(QPaintDevice* /*device*/) override { return true; }
        bool end() override { return true; }
        void updateState(const QPaintEngineState& /*state*/) override {}
        void drawPixmap(const QRectF& /*to*/, const QPixmap& /*pixmap*/, const QRectF& /*from*/) override {}
        void drawImage(const QRectF& /*to*/, const QImage& /*image*/, const QRectF& /*from*/,
                       Qt::ImageConversionFlags /*flags*/) override
        {
        }
        void drawTiledPixmap(const QRectF& /*to*/, const QPixmap& /*pixmap*/, const QPointF& /*from*/) override {}
        void drawPath(const QPainterPath& /*path*/) override {}
        void drawPolygon(const QPointF* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
        void drawPolygon(const QPoint* /*points*/, int /*count*/, PolygonDrawMode /*mode*/) override {}
        void drawTextItem(const QPointF& /*at*/, const QTextItem& item) override { m_texts << item.text(); }
        Type type() const override { return User; }

    private:
        QStringList& m_texts;
    };

    QStringList m_texts;
    mutable Engine m_engine;
};

} // namespace TestSupport
