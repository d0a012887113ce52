#include <KQt/Ui/SelectionFrameWidget/SelectionFrameCaption.h>

#include <KQt/Ui/SelectionFrameWidget/SelectionFrameGeometry.h>

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QObject>
#include <QPainter>
#include <QPen>
#include <QRectF>
#include <QScreen>

#include <cmath>
#include <limits>

namespace Kestrel::Gui::Detail {

namespace {

const QSizeF CaptionMargin(10.0, 5.0);
constexpr double FramePenWidth = 2.0;

int percent(double fraction)
{
    const double value = fraction * 100.0;
    if (std::isnan(value))
        return 0;
    if (value <= std::numeric_limits<int>::min())
        return std::numeric_limits<int>::min();
    if (value >= std::numeric_limits<int>::max())
        return std::numeric_limits<int>::max();
    return static_cast<int>(value);
}

int resolution(const QPaintDevice* device)
{
    if (device)
        return device->logicalDpiY();
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? qRound(screen->logicalDotsPerInchY()) : 1;
}

QFontMetricsF metrics(const QFont& font, const QPaintDevice* device)
{
    return device ? QFontMetricsF(font, device) : QFontMetricsF(font);
}

QString captionText(const QString& pattern, const CaptionValues& values)
{
    return pattern.arg(QString::number(values[0]), QString::number(values[1]), QString::number(values[2]),
                       QString::number(values[3]));
}

QPen underPen()
{
    return {Qt::black, FramePenWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin};
}

QPen framePen(bool highlighted)
{
    const QColor colour(highlighted ? 0xE86E59 : 0xFFFFFF);
    QPen pen(colour, FramePenWidth, Qt::DashLine, Qt::SquareCap, Qt::BevelJoin);
    pen.setCosmetic(true);
    return pen;
}

} // namespace

QString captionPattern()
{
    // Replaced after translating: a per cent sign right after a place would not survive every translation tool.
    //: Caption above a selection frame: position and size of the frame in per cent of the area it lies in. %1 to %4 are
    //: whole numbers. Each # becomes a per cent sign: keep it after its number. One line, as short as can be: the
    //: caption is cut off at the edge of a narrow area.
    return QObject::tr("Left: %1# Top: %2# Width: %3# Height: %4#").replace(QLatin1Char('#'), QLatin1Char('%'));
}

CaptionValues captionValues(const QRectF& relativeFrame)
{
    return {percent(relativeFrame.x()), percent(relativeFrame.y()), percent(relativeFrame.width()),
            percent(relativeFrame.height())};
}

void CaptionLayout::update(const QString& pattern, const CaptionValues& values, const QFont& font,
                           const QPaintDevice* device)
{
    const int currentResolution = resolution(device);
    if (m_resolution == currentResolution && m_values == values && m_pattern == pattern && m_font == font)
        return;
    m_pattern = pattern;
    m_values = values;
    m_font = font;
    m_resolution = currentResolution;
    m_text = captionText(pattern, values);
    m_size = metrics(font, device).size(Qt::TextSingleLine, m_text) + CaptionMargin;
}

void paintFrame(QPainter& painter, const QRectF& rect, bool highlighted)
{
    const QRectF outline = paintableRect(rect);
    const QPen savedPen = painter.pen();
    const QBrush savedBrush = painter.brush();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(underPen());
    painter.drawRect(outline);
    painter.setPen(framePen(highlighted));
    painter.drawRect(outline);
    painter.setBrush(savedBrush);
    painter.setPen(savedPen);
}

void paintCaption(QPainter& painter, const QRectF& rect, const QString& text, const QFont& font)
{
    const QRectF box = paintableRect(rect);
    const QFont savedFont = painter.font();
    const QPen savedPen = painter.pen();
    const QBrush savedBrush = painter.brush();
    painter.setFont(font);
    painter.setPen(Qt::darkBlue);
    painter.setBrush(Qt::NoBrush);
    painter.fillRect(box, Qt::white);
    painter.drawText(box, Qt::AlignHCenter | Qt::AlignVCenter | Qt::TextSingleLine, text);
    painter.setPen(Qt::black);
    painter.drawRect(box);
    painter.setBrush(savedBrush);
    painter.setPen(savedPen);
    painter.setFont(savedFont);
}

} // namespace Kestrel::Gui::Detail
