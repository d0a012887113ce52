#include <KQt/Ui/Accessibility/ClippingTextLineEditInterface.h>

#include <KQt/Ui/Accessibility/SpokenText.h>
#include <KQt/Ui/ClippingTextLineEdit.h>

#include <QPointer>
#include <QStyle>
#include <QStyleOptionFrame>

namespace Kestrel::Gui::Detail {

ClippingTextLineEditInterface::ClippingTextLineEditInterface(ClippingTextLineEdit* edit)
    : QAccessibleWidget(edit, QAccessible::EditableText)
{
}

ClippingTextLineEdit* ClippingTextLineEditInterface::edit() const
{
    return static_cast<ClippingTextLineEdit*>(object());
}

bool ClippingTextLineEditInterface::showsSecret() const
{
    return edit()->echoMode() != QLineEdit::Normal;
}

QString ClippingTextLineEditInterface::fullText() const
{
    if (showsSecret())
        return edit()->displayText();
    const QString original = edit()->GetOriginalText();
    // A text that was set in another way than the original one is shown as it is.
    return spokenText(edit()->hasFocus() || original.isEmpty() ? edit()->text() : original);
}

QString ClippingTextLineEditInterface::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Value)
        return fullText();
    const QString text = spokenText(QAccessibleWidget::text(kind));
    if (kind == QAccessible::Name && text.isEmpty())
        return spokenText(edit()->placeholderText());
    // The tool tip of an elided edit says once more what the value says.
    return kind == QAccessible::Description && text == fullText() ? QString() : text;
}

void ClippingTextLineEditInterface::setText(QAccessible::Text kind, const QString& text)
{
    if (kind == QAccessible::Value)
        change(text);
    else
        QAccessibleWidget::setText(kind, text);
}

QAccessible::State ClippingTextLineEditInterface::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.editable = !edit()->isReadOnly();
    state.readOnly = edit()->isReadOnly();
    state.passwordEdit = showsSecret();
    state.selectableText = true;
    return state;
}

void* ClippingTextLineEditInterface::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface*>(this);
    if (type == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

int ClippingTextLineEditInterface::toFull(int shownPosition) const
{
    return spokenText(edit()->text().left(shownPosition)).size();
}

/// The last position that has so many characters of the full text before it: behind a mark that opens the text.
int ClippingTextLineEditInterface::toShown(int fullPosition) const
{
    const QString shown = edit()->text();
    int position = 0;
    int left = fullPosition;
    while (position < shown.size() && (left > 0 || isDirectionalMark(shown.at(position)))) {
        if (!isDirectionalMark(shown.at(position)))
            --left;
        ++position;
    }
    return position;
}

void ClippingTextLineEditInterface::selection(int selectionIndex, int* startOffset, int* endOffset) const
{
    *startOffset = *endOffset = 0;
    if (selectionIndex != 0 || !edit()->hasSelectedText())
        return;
    *startOffset = toFull(edit()->selectionStart());
    *endOffset = toFull(edit()->selectionEnd());
}

int ClippingTextLineEditInterface::selectionCount() const
{
    return edit()->hasSelectedText() ? 1 : 0;
}

void ClippingTextLineEditInterface::addSelection(int startOffset, int endOffset)
{
    setSelection(0, startOffset, endOffset);
}

void ClippingTextLineEditInterface::removeSelection(int selectionIndex)
{
    if (selectionIndex == 0)
        edit()->deselect();
}

void ClippingTextLineEditInterface::setSelection(int selectionIndex, int startOffset, int endOffset)
{
    if (selectionIndex != 0)
        return;
    const int start = toShown(startOffset);
    edit()->setSelection(start, toShown(endOffset) - start);
}

int ClippingTextLineEditInterface::cursorPosition() const
{
    return toFull(edit()->cursorPosition());
}

void ClippingTextLineEditInterface::setCursorPosition(int position)
{
    edit()->setCursorPosition(toShown(position));
}

QString ClippingTextLineEditInterface::text(int startOffset, int endOffset) const
{
    return fullText().mid(startOffset, endOffset - startOffset);
}

// A secret must not be told in words or sentences: how long they are says something about it.
QString ClippingTextLineEditInterface::textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary,
                                                        int* startOffset, int* endOffset) const
{
    if (!showsSecret())
        return QAccessibleTextInterface::textBeforeOffset(offset, boundary, startOffset, endOffset);
    *startOffset = *endOffset = -1;
    return {};
}

QString ClippingTextLineEditInterface::textAfterOffset(int offset, QAccessible::TextBoundaryType boundary,
                                                       int* startOffset, int* endOffset) const
{
    if (!showsSecret())
        return QAccessibleTextInterface::textAfterOffset(offset, boundary, startOffset, endOffset);
    *startOffset = *endOffset = -1;
    return {};
}

QString ClippingTextLineEditInterface::textAtOffset(int offset, QAccessible::TextBoundaryType boundary,
                                                    int* startOffset, int* endOffset) const
{
    if (!showsSecret())
        return QAccessibleTextInterface::textAtOffset(offset, boundary, startOffset, endOffset);
    *startOffset = *endOffset = -1;
    return {};
}

int ClippingTextLineEditInterface::characterCount() const
{
    return fullText().size();
}

QRect ClippingTextLineEditInterface::characterRect(int offset) const
{
    QStyleOptionFrame option;
    option.initFrom(edit());
    const QRect contents = edit()->style()->subElementRect(QStyle::SE_LineEditContents, &option, edit());
    const QFontMetrics metrics = edit()->fontMetrics();
    const QString text = fullText();
    const int left = contents.left() + metrics.horizontalAdvance(text, offset);
    const int width = offset < text.size() ? metrics.horizontalAdvance(text.at(offset)) : 1;
    return QRect(edit()->mapToGlobal(QPoint(left, contents.top())), QSize(width, contents.height()));
}

int ClippingTextLineEditInterface::offsetAtPoint(const QPoint& point) const
{
    return toFull(edit()->cursorPositionAt(edit()->mapFromGlobal(point)));
}

void ClippingTextLineEditInterface::scrollToSubstring(int startIndex, int endIndex)
{
    edit()->setCursorPosition(toShown(endIndex));
    edit()->setCursorPosition(toShown(startIndex));
}

QString ClippingTextLineEditInterface::attributes(int /*offset*/, int* startOffset, int* endOffset) const
{
    *startOffset = *endOffset = 0;
    return {};
}

void ClippingTextLineEditInterface::deleteText(int startOffset, int endOffset)
{
    replaceText(startOffset, endOffset, QString());
}

void ClippingTextLineEditInterface::insertText(int offset, const QString& text)
{
    replaceText(offset, offset, text);
}

void ClippingTextLineEditInterface::replaceText(int startOffset, int endOffset, const QString& text)
{
    if (!showsSecret())
        change(fullText().replace(startOffset, endOffset - startOffset, text));
}

void ClippingTextLineEditInterface::change(const QString& text)
{
    if (edit()->isReadOnly() || !edit()->isEnabled())
        return;
    if (edit()->hasFocus()) {
        edit()->setText(text);
        return;
    }
    const QPointer<ClippingTextLineEdit> watched(edit());
    watched->SetOriginalText(text);
    if (watched)
        Q_EMIT watched->OriginalTextChanged(text);
}

} // namespace Kestrel::Gui::Detail
