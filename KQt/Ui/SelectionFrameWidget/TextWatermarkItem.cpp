#include <KQt/Ui/SelectionFrameWidget/TextWatermarkItem.h>

#include <QAbstractTextDocumentLayout>
#include <QFontMetrics>
#include <QPainter>
#include <QPen>
#include <QScopeGuard>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextOption>

#include <algorithm>
#include <limits>

namespace Kestrel::Gui {

namespace {

// Height of the strip for the caption above the frame. Fixed on purpose, and one more than SelectionFrameItem's.
constexpr double CaptionAllowance = 20.0;

// Longer side of the work rect that font sizes are meant for.
constexpr double ReferenceSide = 640.0;

constexpr double OutlineWidth = 1.0;

// The height of the font's lines becomes its pixel size, which then follows the work rect. A size that no font can have
// (an empty, infinite or undefined work rect) is left out.
QFont scaledFont(const QFont& font, const QRectF& work)
{
    QFont scaled = font;
    scaled.setPixelSize(QFontMetrics(font).height());
    const double side = std::max(work.height(), work.width());
    const double size = scaled.pixelSize() * side / ReferenceSide;
    if (size >= 1 && size <= std::numeric_limits<int>::max())
        scaled.setPixelSize(static_cast<int>(size));
    return scaled;
}

QTextCharFormat textFormat(const QFont& font, const QColor& fill, const QColor& outline)
{
    QTextCharFormat format;
    format.setFont(font);
    format.setTextOutline(QPen(outline, OutlineWidth));
    format.setForeground(fill);
    return format;
}

} // namespace

TextWatermarkItem::TextWatermarkItem(ISelectionFrameEventHandler* eventHandler, QGraphicsItem* parent)
    : SelectionFrameGraphicsItem<QGraphicsTextItem>(eventHandler, parent)
{
    SetKeepAspectRatio(false);
}

TextWatermarkItem::~TextWatermarkItem() = default;

QString TextWatermarkItem::GetText() const
{
    return m_text;
}

void TextWatermarkItem::SetText(const QString& text)
{
    if (text == m_text)
        return;
    m_text = text;
    m_textChanged = true;
    UpdateContents();
}

QColor TextWatermarkItem::GetFillColor() const
{
    return m_fillColor;
}

void TextWatermarkItem::SetFillColor(const QColor& color)
{
    m_fillColor = color;
    UpdateContents();
}

QColor TextWatermarkItem::GetOutlineColor() const
{
    return m_outlineColor;
}

void TextWatermarkItem::SetOutlineColor(const QColor& color)
{
    m_outlineColor = color;
    UpdateContents();
}

QFont TextWatermarkItem::GetFont() const
{
    return m_font;
}

void TextWatermarkItem::SetFont(const QFont& font)
{
    m_font = font;
    UpdateFont();
}

bool TextWatermarkItem::IsBackgroundAlphaChannelNeeded() const
{
    return false;
}

void TextWatermarkItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget)
{
    PaintText(painter, option, widget);
    SelectionFrameGraphicsItem<QGraphicsTextItem>::paint(painter, option, widget);
}

void TextWatermarkItem::UpdateContents()
{
    QTextDocument* content = document();
    content->clear();
    content->setDocumentMargin(0);
    content->setTextWidth(GetPaintingRect().width());
    QTextOption option(Qt::AlignLeft | Qt::AlignTop);
    option.setWrapMode(QTextOption::WordWrap);
    content->setDefaultTextOption(option);
    QTextCursor(content).insertText(m_text, textFormat(font(), m_fillColor, m_outlineColor));
}

void TextWatermarkItem::SetWorkRect(const QRectF& workRect)
{
    SelectionFrameGraphicsItem<QGraphicsTextItem>::SetWorkRect(workRect);
    UpdateFont();
}

void TextWatermarkItem::AdjustFrame(QRectF& sceneFrame)
{
    if (!m_textChanged)
        return;
    m_textChanged = false;
    QTextDocument* content = document();
    content->setTextWidth(sceneFrame.width());
    content->adjustSize();
    const QSizeF needed = content->documentLayout()->documentSize();
    const QRectF work = GetWorkRect();
    sceneFrame.setWidth(std::min(std::max(sceneFrame.width(), needed.width()), work.width()));
    sceneFrame.setHeight(std::min(std::max(sceneFrame.height(), needed.height()), work.height()));
}

void TextWatermarkItem::UpdateFont()
{
    setFont(scaledFont(m_font, GetWorkRect()));
    UpdateContents();
}

void TextWatermarkItem::PaintText(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget)
{
    painter->setRenderHint(QPainter::TextAntialiasing);
    const QFont savedFont = painter->font();
    painter->setFont(font());
    const QBrush savedBrush = painter->brush();
    const QRegion savedClip = painter->clipRegion();
    painter->setClipRect(Detail::alignedRect(GetPaintingRect()));
    painter->setClipping(true);
    const QTransform savedTransform = painter->transform();
    // Objects that the application has put into the text paint themselves, and may throw.
    const auto restore = qScopeGuard([&] {
        painter->setTransform(savedTransform);
        painter->setClipping(false);
        if (!savedClip.isEmpty())
            painter->setClipRegion(savedClip);
        painter->setBrush(savedBrush);
        painter->setFont(savedFont);
    });

    painter->translate(0, CaptionAllowance);
    // The text alone, without the frame. NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QGraphicsTextItem::paint(painter, option, widget); // clazy:exclude=skipped-base-method
}

} // namespace Kestrel::Gui
