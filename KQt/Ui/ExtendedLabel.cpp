#include <KQt/Ui/ExtendedLabel.h>

#include <KQt/Ui/Accessibility/Announcements.h>
#include <KQt/Ui/Accessibility/InstallAccessibility.h>
#include <KQt/Ui/DirectionalText.h>
#include <KQt/Ui/TextEliding.h>

#include <QPointer>

#include <limits>

namespace Kestrel::Gui {

const std::string ExtendedLabel::CLICKABLE = "clickable";

ExtendedLabel::ExtendedLabel(QWidget* parent)
    : QLabel(parent)
    , m_measuredFont(fontMetrics())
{
    Detail::installAccessibility();
}

ExtendedLabel::~ExtendedLabel() = default;

QString ExtendedLabel::GetOriginalText() const
{
    return Detail::withoutDirectionalMarks(m_originalText);
}

void ExtendedLabel::SetOriginalText(const QString& text)
{
    m_originalText = Detail::withDirectionalMarks(text);
    m_wholeWidth = notMeasured;
    updateViewText();
    Detail::announceName(this);
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
    m_viewText = m_clipText ? elidedText(width() - 2 * frameWidth()) : m_originalText;
    // Most resizes leave the text as it is: setting it anew would lay out the label and its surroundings each time.
    if (text() != m_viewText)
        setText(m_viewText);
    if (!m_dynamicTooltip)
        return;
    const QString tip = m_viewText == m_originalText ? QString() : m_originalText;
    if (toolTip() != tip)
        setToolTip(tip);
}

QString ExtendedLabel::elidedText(int available)
{
    // Measured once, a text that fits costs next to nothing at each resize. The width is rounded: where it is just
    // reached, the metrics have the last word.
    if (available > wholeWidth())
        return m_originalText;
    return Detail::elidedText(m_measuredFont, m_originalText, m_elideMode, available);
}

int ExtendedLabel::wholeWidth()
{
    const QFontMetrics metrics = fontMetrics();
    if (m_wholeWidth == notMeasured || m_measuredFont != metrics) {
        m_measuredFont = metrics;
        // Metrics choose among variants even where the longest fits.
        const bool leaveToMetrics = m_originalText.size() > Detail::LongTextSize || Detail::hasVariants(m_originalText);
        m_wholeWidth = leaveToMetrics ? std::numeric_limits<int>::max() : metrics.horizontalAdvance(m_originalText);
    }
    return m_wholeWidth;
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
