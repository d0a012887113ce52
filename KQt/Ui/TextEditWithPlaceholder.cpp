#include <KQt/Ui/TextEditWithPlaceholder.h>

#include <QApplication>
#include <QPainter>
#include <QPaintEvent>

#include <utility>

namespace Kestrel::Gui {

TextEditWithPlaceholder::TextEditWithPlaceholder(QWidget* parent)
    : QPlainTextEdit(parent)
{
    // A change of the focus repaints the text cursor alone; the hint comes and goes with it.
    connect(qApp, &QApplication::focusChanged, this, &TextEditWithPlaceholder::repaintOnFocusChange);
}

TextEditWithPlaceholder::~TextEditWithPlaceholder() = default;

QString TextEditWithPlaceholder::placeholderText() const
{
    return m_placeholderText;
}

void TextEditWithPlaceholder::setPlaceholderText(const QString& text)
{
    if (m_placeholderText == text)
        return;
    m_placeholderText = text;
    if (hasFocus() || !document()->isEmpty())
        return;
    update();
    viewport()->update(); // the hint is painted here, and updating the editor leaves the viewport as it is
}

void TextEditWithPlaceholder::paintEvent(QPaintEvent* event)
{
    QPlainTextEdit::paintEvent(event);
    const bool hadPlaceholder = std::exchange(m_showsPlaceholder, wantsPlaceholder());
    if (!m_showsPlaceholder) {
        // A new text repaints its own lines alone, and the hint may have had more.
        if (hadPlaceholder && !event->rect().contains(viewport()->rect()))
            viewport()->update();
        return;
    }

    const QRect area = placeholderRect();
    completePlaceholder(area, event->rect());
    paintPlaceholder(area);
    event->accept();
}

void TextEditWithPlaceholder::completePlaceholder(const QRect& area, const QRect& painted)
{
    const bool wasAsked = std::exchange(m_askedToComplete, false);
    // The viewport shows less than the whole area; asking for more than it can show would ask for ever. So would
    // asking again for what the pass that was asked for did not reach: something lies over it.
    const QRect shown = area & viewport()->rect();
    if (wasAsked || shown.isEmpty() || painted.contains(shown))
        return;
    m_askedToComplete = true;
    viewport()->update(area);
}

bool TextEditWithPlaceholder::wantsPlaceholder() const
{
    return !m_placeholderText.isEmpty() && document()->isEmpty() && !hasFocus();
}

QRect TextEditWithPlaceholder::placeholderRect() const
{
    // Left and top are the viewport's, right and bottom the parent's, as the editor's geometry has them: the farther
    // the editor is from its parent's corner, the larger the area. The viewport clips it.
    constexpr int margin = 5;
    QRect area = geometry();
    area.setLeft(margin);
    area.setTop(margin);
    return area;
}

void TextEditWithPlaceholder::paintPlaceholder(const QRect& area)
{
    constexpr int halfOpaque = 128;
    QColor color = palette().brush(QPalette::Current, QPalette::Text).color();
    color.setAlpha(halfOpaque);

    QPainter painter(viewport());
    // Left is left in every layout: mirrored, the hint would lie at the right of the area, which the viewport clips.
    if (painter.layoutDirection() == Qt::RightToLeft)
        painter.setLayoutDirection(Qt::LayoutDirectionAuto);
    const QPen previousPen = painter.pen();
    painter.setPen(color);
    painter.drawText(area, Qt::AlignLeft | Qt::AlignTop, m_placeholderText);
    painter.setPen(previousPen);
}

void TextEditWithPlaceholder::repaintOnFocusChange(QWidget* old, QWidget* now)
{
    if ((old == this || now == this) && !m_placeholderText.isEmpty() && document()->isEmpty())
        viewport()->update();
}

} // namespace Kestrel::Gui
