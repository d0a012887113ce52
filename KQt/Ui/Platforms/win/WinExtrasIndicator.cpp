#include <KQt/Ui/Platforms/win/WinExtrasIndicator.h>

#include <QWinTaskbarProgress>

namespace Kestrel::Gui {

WinExtrasIndicator::WinExtrasIndicator() = default;
WinExtrasIndicator::~WinExtrasIndicator() = default;

void WinExtrasIndicator::setWindow(QWindow* window)
{
    m_button.setWindow(window);
}

void WinExtrasIndicator::show()
{
    m_button.progress()->show();
}

void WinExtrasIndicator::hide()
{
    m_button.progress()->hide();
}

void WinExtrasIndicator::reset()
{
    m_button.progress()->reset();
}

void WinExtrasIndicator::pause()
{
    m_button.progress()->pause();
}

void WinExtrasIndicator::stop()
{
    m_button.progress()->stop();
}

void WinExtrasIndicator::setRange(int minimum, int maximum)
{
    m_button.progress()->setRange(minimum, maximum);
}

void WinExtrasIndicator::setValue(int value)
{
    // The progress leaves values outside its range unheard.
    m_button.progress()->setValue(qBound(m_button.progress()->minimum(), value, m_button.progress()->maximum()));
}

} // namespace Kestrel::Gui
