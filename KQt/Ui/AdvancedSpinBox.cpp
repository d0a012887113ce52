#include <KQt/Ui/AdvancedSpinBox.h>

#include <QLineEdit>

namespace Kestrel::Gui {

AdvancedSpinBox::AdvancedSpinBox(QWidget* parent)
    : QSpinBox(parent)
{
}

AdvancedSpinBox::~AdvancedSpinBox() = default;

int AdvancedSpinBox::getMaxLenght() const
{
    return lineEdit()->maxLength();
}

void AdvancedSpinBox::setMaxLenght(int length)
{
    lineEdit()->setMaxLength(length);
}

} // namespace Kestrel::Gui
