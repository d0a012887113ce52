#pragma once

#include <QAccessibleWidget>

namespace Kestrel::Gui {

class ClippingTextLineEdit;

namespace Detail {

/// A line edit with its full text, elided or not, without directional marks. All positions are positions in that text.
///
/// What assistive technology changes in an edit that has the focus is typing: it counts when the focus leaves. In one
/// that has not, it counts at once.
class ClippingTextLineEditInterface : public QAccessibleWidget,
                                      public QAccessibleTextInterface,
                                      public QAccessibleEditableTextInterface
{
public:
    explicit ClippingTextLineEditInterface(ClippingTextLineEdit* edit);

    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString& text) override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    void selection(int selectionIndex, int* startOffset, int* endOffset) const override;
    int selectionCount() const override;
    void addSelection(int startOffset, int endOffset) override;
    void removeSelection(int selectionIndex) override;
    void setSelection(int selectionIndex, int startOffset, int endOffset) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int startOffset, int endOffset) const override;
    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary, int* startOffset,
                             int* endOffset) const override;
    QString textAfterOffset(int offset, QAccessible::TextBoundaryType boundary, int* startOffset,
                            int* endOffset) const override;
    QString textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int* startOffset,
                         int* endOffset) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int startIndex, int endIndex) override;
    QString attributes(int offset, int* startOffset, int* endOffset) const override;

    void deleteText(int startOffset, int endOffset) override;
    void insertText(int offset, const QString& text) override;
    void replaceText(int startOffset, int endOffset, const QString& text) override;

private:
    ClippingTextLineEdit* edit() const;
    QString fullText() const;
    bool showsSecret() const;
    int toFull(int shownPosition) const;
    int toShown(int fullPosition) const;
    void change(const QString& text);
};

} // namespace Detail
} // namespace Kestrel::Gui
