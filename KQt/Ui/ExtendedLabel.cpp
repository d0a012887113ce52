#include <KQt/Ui/ExtendedLabel.h>

#include <KQt/Ui/DirectionalText.h>

#include <QPointer>

namespace Kestrel::Gui {

const std::string ExtendedLabel::CLICKABLE = "clickable";

ExtendedLabel::ExtendedLabel(QWidget* parent)
    : QLabel(parent)
{
}

ExtendedLabel::~ExtendedLabel() = default;

QString ExtendedLabel::GetOriginalText() const
{
    return Detail::withoutDirectionalMarks(m_originalText);
}

void ExtendedLabel::SetOriginalText(const QString& text)
{
    m_originalText = Detail::withDirectionalMarks(text);
    updateViewText();
}

bool ExtendedLabel::GetClipText() const
{
    return m_clipText;
}

void ExtendedLabel::SetClipText(bool clip)
{
    m_clipText = clip;
    updateViewText();
}

bool ExtendedLabel::IsClickable() const
{
    return m_clickable;
}

void ExtendedLabel::SetClickable(bool clickable)
{
    if (m_clickable == clickable)
        return;
    m_clickable = clickable;
    Q_EMIT ClickableChanged(m_clickable);
}

bool ExtendedLabel::dynamicTooltip() const
{
    return m_dynamicTooltip;
}

void ExtendedLabel::SetDynamicTooltip(bool dynamic)
{
    m_dynamicTooltip = dynamic;
}

void ExtendedLabel::SetElideMode(Qt::TextElideMode mode)
{
    m_elideMode = mode;
}

void ExtendedLabel::updateViewText()
{
    m_viewText =
        m_clipText ? fontMetrics().elidedText(m_originalText, m_elideMode, width() - 2 * frameWidth()) : m_originalText;
    // Most resizes leave the text as it is: setting it anew would lay out the label and its surroundings each time.
    if (text() != m_viewText)
        setText(m_viewText);
    if (!m_dynamicTooltip)
        return;
    const QString tip = m_viewText == m_originalText ? QString() : m_originalText;
    if (toolTip() != tip)
        setToolTip(tip);
}

void ExtendedLabel::mousePressEvent(QMouseEvent* event)
{
    const QPointer<ExtendedLabel> self(this); // a slot may delete the label
    if (m_clickable)
        Q_EMIT clicked();
    if (self)
        QLabel::mousePressEvent(event);
}

void ExtendedLabel::resizeEvent(QResizeEvent* event)
{
    updateViewText();
    QLabel::resizeEvent(event);
}

} // namespace Kestrel::Gui
