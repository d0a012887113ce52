#pragma once

#include <QObject>

namespace Kestrel::Gui {

/// Lets each PickerButton that it is installed on take a dropped colour.
///
/// The swatches must accept drops (QWidget::setAcceptDrops()). Drags without colour data are refused on entering and on
/// dropping. Drag enter and drop are looked at and not consumed; drag move and leave are not looked at.
class PickerButtonDropFilter : public QObject
{
    Q_OBJECT

public:
    explicit PickerButtonDropFilter(QObject* parent = nullptr);
    ~PickerButtonDropFilter() override;

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace Kestrel::Gui
