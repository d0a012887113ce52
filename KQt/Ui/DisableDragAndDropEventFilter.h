#pragma once

#include <KQt/Ui/Export.h>

#include <QObject>

namespace Kestrel::Gui {

/// Keeps every drag and drop event away from the objects that it is installed on.
///
/// It installs itself nowhere: call `object->installEventFilter(filter)` for each object to protect. Drag enter, move,
/// leave and drop are consumed with their accepted state untouched; all other events pass.
class KQTUI_EXPORT DisableDragAndDropEventFilter : public QObject
{
    Q_OBJECT

public:
    explicit DisableDragAndDropEventFilter(QObject* parent = nullptr);
    ~DisableDragAndDropEventFilter() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace Kestrel::Gui
