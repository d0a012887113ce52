#pragma once

#include <KQt/Ui/AlwaysOnTop.h>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace Gallery {

/// Keeps a window above all others, and visible where it was: a change of window flags hides a window.
class WindowOnTop : private Kestrel::Gui::Helpers::AlwaysOnTop
{
public:
    /// @param window must outlive this
    explicit WindowOnTop(QWidget& window);
    ~WindowOnTop() override;

    using AlwaysOnTop::IsAlwaysOnTop;
    void set(bool onTop);

private:
    QWidget& m_window;
};

} // namespace Gallery
