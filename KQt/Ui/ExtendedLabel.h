#pragma once

#include <KQt/Ui/Export.h>

#include <QFontMetrics>
#include <QLabel>

#include <string>

namespace Kestrel::Gui {

/// A label that elides its text to its width, with the whole text as tool tip, and reports presses.
///
/// The text is kept between directional marks (U+202A and U+202C), so that text of mixed direction keeps its order when
/// it is elided. text() and the tool tip hold the marks, originalText does not. The shown text is renewed by
/// SetOriginalText(), SetClipText() and every resize; a change of the font shows at the next of them.
class KQTUI_EXPORT ExtendedLabel : public QLabel
{
    Q_OBJECT
    // clazy:excludeall=qproperty-without-notify
    Q_PROPERTY(QString originalText READ GetOriginalText WRITE SetOriginalText NOTIFY OriginalTextChanged)
    Q_PROPERTY(bool clipText READ GetClipText WRITE SetClipText)
    Q_PROPERTY(bool clickable READ IsClickable WRITE SetClickable NOTIFY ClickableChanged)
    Q_PROPERTY(bool dynamicTooltip READ dynamicTooltip WRITE SetDynamicTooltip)

public:
    /// The name of the property "clickable".
    static const std::string CLICKABLE;

    explicit ExtendedLabel(QWidget* parent = nullptr);
    ~ExtendedLabel() override;

    /// The whole text. Where it begins with U+202A, all directional marks are left out.
    QString GetOriginalText() const;
    /// Emits nothing, OriginalTextChanged() included.
    void SetOriginalText(const QString& text);

    /// Whether the text is elided; on at first.
    bool GetClipText() const;
    void SetClipText(bool clip);

    /// On at first. A label that is not clickable still handles presses as QLabel does.
    bool IsClickable() const;
    void SetClickable(bool clickable);

    /// Whether the label sets its tool tip: the whole text while it is elided, none otherwise; on at first. Takes
    /// effect when the shown text is renewed.
    bool dynamicTooltip() const;
    void SetDynamicTooltip(bool dynamic);

    /// Qt::ElideRight at first. Takes effect when the shown text is renewed.
    void SetElideMode(Qt::TextElideMode mode);

Q_SIGNALS:
    /// Any mouse button went down, before QLabel handles the press.
    void clicked();
    /// The property's change signal for forms and bindings; the label itself never emits it.
    void OriginalTextChanged(QString text);
    void ClickableChanged(bool clickable);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void updateViewText();
    QString elidedText(int available);
    int wholeWidth();

    QString m_originalText; // with directional marks
    QString m_viewText;
    bool m_clipText = true;
    bool m_clickable = true;
    bool m_dynamicTooltip = true;
    Qt::TextElideMode m_elideMode = Qt::ElideRight;

    static constexpr int notMeasured = -1;
    int m_wholeWidth = notMeasured; // of the original text, in the font of m_measuredFont
    QFontMetrics m_measuredFont;
};

} // namespace Kestrel::Gui
