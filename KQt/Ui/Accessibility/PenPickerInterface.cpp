#include <KQt/Ui/Accessibility/PenPickerInterface.h>

#include <KQt/Ui/Accessibility/Announcements.h>
#include <KQt/Ui/Accessibility/LineNames.h>
#include <KQt/Ui/PenPicker.h>

namespace Kestrel::Gui::Detail {

PenPickerInterface::PenPickerInterface(PenPicker* picker)
    : ValueInterface(picker, QAccessible::Grouping)
    , m_penChanged(QObject::connect(picker, &PenPicker::penChanged, picker, [picker] { announceValue(picker); }))
{
}

PenPickerInterface::~PenPickerInterface()
{
    QObject::disconnect(m_penChanged);
}

QString PenPickerInterface::valueText() const
{
    const QPen pen = static_cast<PenPicker*>(object())->pen();
    const QString width = lineWidthName(pen.style() == Qt::NoPen ? 0 : pen.width());
    return pen.color().isValid() ? width + QLatin1String(", ") + pen.color().name() : width;
}

} // namespace Kestrel::Gui::Detail
