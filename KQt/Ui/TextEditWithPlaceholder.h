#pragma once

#include <KQt/Ui/Export.h>

#include <QPlainTextEdit>

namespace Kestrel::Gui {

/// A plain-text editor that shows a dimmed hint while it is empty and has no focus.
///
/// The hint starts 5 pixels from the viewport's left and top, in right-to-left layouts too, in the text colour at half
/// opacity. It is not broken into lines of its own accord. It is this class's own: the placeholder of QPlainTextEdit
/// stays empty, which would be shown with focus too.
class KQTUI_EXPORT TextEditWithPlaceholder : public QPlainTextEdit
{
    Q_OBJECT
    // clazy:excludeall=qproperty-without-notify
    Q_PROPERTY(QString placeholderText READ placeholderText WRITE setPlaceholderText)

public:
    explicit TextEditWithPlaceholder(QWidget* parent = nullptr);
    ~TextEditWithPlaceholder() override;

    QString placeholderText() const;
    void setPlaceholderText(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool wantsPlaceholder() const;
    QRect placeholderRect() const;
    void completePlaceholder(const QRect& area, const QRect& painted);
    void paintPlaceholder(const QRect& area);
    void repaintOnFocusChange(QWidget* old, QWidget* now);

    QString m_placeholderText;
    bool m_showsPlaceholder = false; // as of the last painting
    bool m_askedToComplete = false;  // the next painting is the one that was asked for
};

} // namespace Kestrel::Gui
