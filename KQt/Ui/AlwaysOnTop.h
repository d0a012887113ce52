#pragma once

#include <KQt/Ui/Export.h>

#include <Qt>

#include <functional>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Kestrel::Gui::Helpers {

/// A base class that switches the stay-on-top state of a window through a getter and a setter of its window flags.
///
/// The flags are read anew at each call, so changes made by others are seen, and are written only where the state
/// changes: writing a widget's flags re-creates and hides its window. Copies act on the same window. For derived
/// classes only; nothing is owned.
///
/// The state is that of the flags. Whether the window does stay on top is up to the window system: Wayland's takes no
/// notice of the hint.
class KQTUI_EXPORT AlwaysOnTop
{
public:
    AlwaysOnTop(const AlwaysOnTop& other);
    AlwaysOnTop& operator=(const AlwaysOnTop& other);

    /// Whether the flags contain Qt::WindowStaysOnTopHint now. All four functions throw std::bad_function_call where
    /// they come to call a function that the helper got empty.
    bool IsAlwaysOnTop() const;
    /// Adds the hint; the setter is not called where the flags contain it already. The misspelt names are the
    /// interface.
    void EnableAlswaysOnTop();
    /// Removes the hint; the setter is not called where the flags do not contain it.
    void DisableAlswaysOnTop();
    /// Either of the two above.
    void SetAlwaysOnTop(bool alwaysOnTop);

protected:
    /// Works on the flags of @p widget, which must outlive the helper and all copies of it.
    explicit AlwaysOnTop(QWidget& widget);
    /// Works on whatever @p flagsGetter reads and @p flagsSetter writes.
    AlwaysOnTop(std::function<Qt::WindowFlags()> flagsGetter, std::function<void(Qt::WindowFlags)> flagsSetter);
    virtual ~AlwaysOnTop();

private:
    Qt::WindowFlags GetFlags() const;
    void SetFlags(Qt::WindowFlags flags);
    void CheckInvariant() const;

    std::function<Qt::WindowFlags()> m_flagsGetter;
    std::function<void(Qt::WindowFlags)> m_flagsSetter;
};

} // namespace Kestrel::Gui::Helpers
