#pragma once

#include <KQt/Ui/Export.h>

#include <QComboBox>

namespace Kestrel::Gui {

/// A combo box that shows line widths as lines of that width, in the list and in the closed box.
///
/// The owner adds the items; each carries its width in pixels as an int under Qt::UserRole, and its text may be empty.
/// A text is drawn beneath the line. Width 0, and no current item, show the translated word "none". A negative width is
/// "none" in the list, but a line with that pen width in the closed box.
class KQTUI_EXPORT LineWidthComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit LineWidthComboBox(QWidget* parent = nullptr);
    ~LineWidthComboBox() override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Kestrel::Gui
