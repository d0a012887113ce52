#pragma once

#include <KQt/Ui/Export.h>

#include <QSpinBox>

namespace Kestrel::Gui {

/// A spin box whose text field takes a limited number of characters.
class KQTUI_EXPORT AdvancedSpinBox : public QSpinBox
{
    Q_OBJECT
    // clazy:excludeall=qproperty-without-notify
    Q_PROPERTY(int maxLenght READ getMaxLenght WRITE setMaxLenght)

public:
    explicit AdvancedSpinBox(QWidget* parent = nullptr);
    ~AdvancedSpinBox() override;

    /// The limit in characters, prefix and suffix included. It is kept by the line edit: another line edit has its own.
    int getMaxLenght() const;
    void setMaxLenght(int length);
};

} // namespace Kestrel::Gui
