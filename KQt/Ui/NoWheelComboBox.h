#pragma once

#include <KQt/Ui/Export.h>

#include <QComboBox>

namespace Kestrel::Gui {

/// A combo box for scrolling forms: the mouse wheel goes to what lies around it, and focus comes by tab or click only.
///
/// The closed text is elided on the right. The box sets its own tool tip at each painting: the full text while it is
/// elided, none otherwise.
class KQTUI_EXPORT NoWheelComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit NoWheelComboBox(QWidget* parent = nullptr);
    ~NoWheelComboBox() override;

protected:
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Kestrel::Gui
