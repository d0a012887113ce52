#pragma once

#include <KQt/Ui/Export.h>

#include <QLineEdit>

namespace Kestrel::Gui {

/// A line edit that shows its text elided while it has no focus, with the whole text as tool tip, and the whole text
/// while it is edited.
///
/// A text that the program sets is kept between directional marks (U+202A and U+202C), so that text of mixed direction
/// keeps its order when it is elided; a text that the user typed is kept as typed. Typing becomes the original text
/// when the focus leaves. A resize in between shows the original text again, and what was typed until then is lost.
/// While it is edited, a text longer than maxLength() shows cut, and stays whole unless something is typed.
class KQTUI_EXPORT ClippingTextLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit ClippingTextLineEdit(QWidget* parent = nullptr);
    ~ClippingTextLineEdit() override;

    /// The whole text. Where it begins with U+202A, all directional marks are left out.
    QString GetOriginalText() const;
    /// Does not emit OriginalTextChanged().
    void SetOriginalText(const QString& text);

Q_SIGNALS:
    /// The focus left and another text than the original was typed; carries the new original as it was typed.
    void OriginalTextChanged(QString text);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void updateViewText();
    void showViewText();
    void showWithoutFocus(QFocusEvent* event);

    QString m_originalText; // with directional marks, unless typed
    QString m_viewText;
    QString m_keptText; // of the view text: no more than maxLength() and the input mask let the base class keep
    bool m_editing = false;
};

} // namespace Kestrel::Gui
