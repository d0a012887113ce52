#pragma once

#include <KQt/Ui/Export.h>

#include <QFrame>
#include <QPen>

namespace Kestrel::Gui {

class AdvancedColorPicker;
class LineWidthComboBox;

/// A box for the line width and a colour picker side by side; together they edit a pen.
///
/// Widths run from 0 to 4 pixels; 0 means no line.
class KQTUI_EXPORT PenPicker : public QFrame
{
    Q_OBJECT

public:
    explicit PenPicker(QWidget* parent = nullptr);
    ~PenPicker() override;

    /// A pen of the picked colour and width, solid; Qt::NoPen at width 0.
    QPen pen() const;

Q_SIGNALS:
    /// The user or setPen() changed the width, or the user changed the colour; once for each of the two.
    void penChanged();
    /// The colour picker's popup closed with this colour.
    void doneColorSelection(QColor color);

public Q_SLOTS:
    /// Shows @p pen: Qt::NoPen as width 0, a width above 4 as 4. The colour alone emits nothing.
    void setPen(QPen pen);

protected:
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    LineWidthComboBox* m_width;
    AdvancedColorPicker* m_color;
};

} // namespace Kestrel::Gui
