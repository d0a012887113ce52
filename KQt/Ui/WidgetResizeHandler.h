#pragma once

#include <KQt/Ui/Export.h>

#include <QObject>
#include <QSize>

namespace Kestrel::Gui {

/// Reports the sizes of an object's resize and show events by one signal. Every event goes on to the object.
///
/// The handler is a child of the object that it watches and dies with it. A client may install it on further objects,
/// whose sizes it then reports as well.
class KQTUI_EXPORT WidgetResizeHandler : public QObject
{
    Q_OBJECT

public:
    /// Watches @p parent, a widget or a window.
    /// @throws std::invalid_argument "Parent object can't be NULL"
    explicit WidgetResizeHandler(QObject* parent);
    ~WidgetResizeHandler() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Follows each resize event, with the event's two sizes, and each show event of a widget, with the widget's
    /// frameSize() (window frame included) as both arguments, so that a listener learns the size at the first show.
    void Resized(QSize oldSize, QSize newSize);
};

} // namespace Kestrel::Gui
