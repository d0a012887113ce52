#pragma once

#include <KQt/Ui/Export.h>

#include <string>

namespace Kestrel::Gui {

/// What DragDropEventFilter asks about dragged URLs and tells of dropped ones. Implemented by the application, which
/// keeps it alive while it is installed.
class KQTUI_EXPORT IDragDropEventFilterObserver
{
public:
    IDragDropEventFilterObserver();
    IDragDropEventFilterObserver(const IDragDropEventFilterObserver& other);
    IDragDropEventFilterObserver& operator=(const IDragDropEventFilterObserver& other);
    virtual ~IDragDropEventFilterObserver();

    /// Whether a drop of @p url (its full text with the scheme, UTF-8) is welcome.
    virtual bool CanDropUrl(const std::string& url) = 0;

    /// An item was dropped. @p path is its local file path, UTF-8; empty for a URL that is no local file.
    virtual void DropUrl(const std::string& path) = 0;
};

} // namespace Kestrel::Gui
