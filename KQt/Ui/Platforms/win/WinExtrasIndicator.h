#pragma once

#include <KQt/Ui/TaskbarIndicator.h>

#include <QWinTaskbarButton>

namespace Kestrel::Gui {

/// The indicator of Qt's Windows Extras.
class WinExtrasIndicator : public TaskbarIndicator
{
public:
    WinExtrasIndicator();
    ~WinExtrasIndicator() override;

    void setWindow(QWindow* window) override;
    void show() override;
    void hide() override;
    void reset() override;
    void pause() override;
    void stop() override;
    void setRange(int minimum, int maximum) override;
    void setValue(int value) override;

private:
    QWinTaskbarButton m_button;
};

} // namespace Kestrel::Gui
