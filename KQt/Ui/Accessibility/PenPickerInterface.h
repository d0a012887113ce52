#pragma once

#include <KQt/Ui/Accessibility/ValueInterface.h>

#include <QMetaObject>

namespace Kestrel::Gui {

class PenPicker;

namespace Detail {

/// A pen picker: a group of a width box and a colour picker, with the pen in words as its value.
class PenPickerInterface : public ValueInterface
{
public:
    explicit PenPickerInterface(PenPicker* picker);
    ~PenPickerInterface() override;

    Q_DISABLE_COPY_MOVE(PenPickerInterface)

protected:
    QString valueText() const override;

private:
    QMetaObject::Connection m_penChanged;
};

} // namespace Detail
} // namespace Kestrel::Gui
