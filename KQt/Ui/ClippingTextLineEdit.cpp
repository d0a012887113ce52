#include <KQt/Ui/ClippingTextLineEdit.h>

#include <KQt/Ui/Accessibility/InstallAccessibility.h>
#include <KQt/Ui/DirectionalText.h>
#include <KQt/Ui/TextEliding.h>

#include <QPointer>

namespace Kestrel::Gui {

ClippingTextLineEdit::ClippingTextLineEdit(QWidget* parent)
    : QLineEdit(parent)
{
    Detail::installAccessibility();
}

ClippingTextLineEdit::~ClippingTextLineEdit() = default;

QString ClippingTextLineEdit::GetOriginalText() const
{
    return Detail::withoutDirectionalMarks(m_originalText);
}

void ClippingTextLineEdit::SetOriginalText(const QString& text)
{
    m_originalText = Detail::withDirectionalMarks(text);
    updateViewText();
}

void ClippingTextLineEdit::updateViewText()
{
    // The whole width, frame included: the ellipsis may lie under the frame's inner edge.
    m_viewText = m_editing ? m_originalText : Detail::elidedText(fontMetrics(), m_originalText, Qt::ElideRight, width());
    showViewText();
}

void ClippingTextLineEdit::showViewText()
{
    setText(m_viewText);
    m_keptText = text();
    setToolTip(m_viewText == m_originalText ? QString() : m_originalText);
    setCursorPosition(0);
}

void ClippingTextLineEdit::focusInEvent(QFocusEvent* event)
{
    m_editing = true;
    updateViewText();
    QLineEdit::focusInEvent(event);
}

void ClippingTextLineEdit::focusOutEvent(QFocusEvent* event)
{
    const QPointer<ClippingTextLineEdit> self(this); // a slot may delete the edit
    const bool untouched = m_editing && text() == m_keptText;
    m_editing = false;
    if (!untouched && text() != m_originalText) {
        m_originalText = text();
        try {
            Q_EMIT OriginalTextChanged(m_originalText);
        } catch (...) {
            // The focus has left all the same.
            if (self)
                showWithoutFocus(event);
            throw;
        }
        if (!self)
            return;
    }
    showWithoutFocus(event);
}

void ClippingTextLineEdit::showWithoutFocus(QFocusEvent* event)
{
    updateViewText();
    QLineEdit::focusOutEvent(event);
}

void ClippingTextLineEdit::resizeEvent(QResizeEvent* event)
{
    updateViewText();
    QLineEdit::resizeEvent(event);
}

} // namespace Kestrel::Gui
