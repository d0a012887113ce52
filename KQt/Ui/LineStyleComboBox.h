#pragma once

#include <KQt/Ui/Export.h>

#include <QComboBox>

namespace Kestrel::Gui {

/// A combo box that shows pen styles as lines drawn in them, in the list and in the closed box.
///
/// The owner adds the items; each carries its Qt::PenStyle as an int under Qt::UserRole, and its text may be empty. A
/// text is drawn beneath the line. Style 0 (Qt::NoPen) shows no line.
class KQTUI_EXPORT LineStyleComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit LineStyleComboBox(QWidget* parent = nullptr);
    ~LineStyleComboBox() override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Kestrel::Gui
