#include "WindowOnTop.h"

#include <QWidget>

namespace Gallery {

WindowOnTop::WindowOnTop(QWidget& window)
    : AlwaysOnTop(window)
    , m_window(window)
{
}

WindowOnTop::~WindowOnTop() = default;

void WindowOnTop::set(bool onTop)
{
    const bool wasVisible = m_window.isVisible();
    const QByteArray place = m_window.saveGeometry();
    SetAlwaysOnTop(onTop);
    if (m_window.isVisible() == wasVisible)
        return;
    m_window.restoreGeometry(place);
    m_window.show();
}

} // namespace Gallery
