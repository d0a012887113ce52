#pragma once

#include <KQt/Ui/Export.h>

#include <QFrame>
#include <QMap>

QT_BEGIN_NAMESPACE
class QToolButton;
QT_END_NAMESPACE

namespace Kestrel::Gui {

/// A strip of four buttons, left, right, justify and centre, of which the user checks one.
///
/// The buttons have no icons. Each carries its role ("AlignLeft", "AlignRight", "AlignJustify", "AlignCenter") in the
/// dynamic property "styleTag", by which a style sheet gives it its look.
class KQTUI_EXPORT TextAlignPicker : public QFrame
{
    Q_OBJECT

public:
    explicit TextAlignPicker(QWidget* parent = nullptr);
    ~TextAlignPicker() override;

    /// What the user's last click chose; none before the first click. setAlignment() does not change it.
    Qt::Alignment alignment();

Q_SIGNALS:
    /// The user clicked a button, the checked one included.
    void alignmentChanged(Qt::Alignment alignment);

public Q_SLOTS:
    /// Does nothing: every picker offers all four. It is there for the applications that call it.
    void setAvailableAlignments(Qt::Alignment alignments);

    /// Checks the buttons that share a bit with @p alignment, one after the other in the order of the strip's values,
    /// so that the last one stays checked: a vertically centred text checks "centre". Nothing is emitted, and a checked
    /// button stays checked where no other takes its place.
    void setAlignment(Qt::Alignment alignment);

protected:
    void changeEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private Q_SLOTS:
    void updateAlignment();

private:
    void retranslate();

    QMap<int, QToolButton*> m_buttons; // in the order of the strip
    Qt::Alignment m_alignment;
};

} // namespace Kestrel::Gui
