#pragma once

#include <KQt/Ui/Export.h>

#include <QFont>
#include <QFrame>
#include <QMap>

QT_BEGIN_NAMESPACE
class QToolButton;
QT_END_NAMESPACE

namespace Kestrel::Gui {

/// A strip of three toggles, bold, italic and underline, that turn a font into another.
///
/// The buttons have no icons. Each carries its role ("Bold", "Italic", "Underline") in the dynamic property "styleTag",
/// by which a style sheet gives it its look.
class KQTUI_EXPORT FontStylePicker : public QFrame
{
    Q_OBJECT

public:
    explicit FontStylePicker(QWidget* parent = nullptr);
    ~FontStylePicker() override;

    /// @p base with the toggles' weight (QFont::Bold or QFont::Normal), style and underline; the rest as it is.
    QFont apply(const QFont& base);

    /// Sets the toggles from @p font: bold from weight 58 on, italic for an oblique font too. Each toggle that changes
    /// emits styleChanged().
    void setFont(const QFont& font);

Q_SIGNALS:
    /// A toggle changed, by the user or by setFont(); once for each toggle.
    void styleChanged();

protected:
    void changeEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void retranslate();

    QMap<int, QToolButton*> m_buttons; // in the order of the strip
};

} // namespace Kestrel::Gui
