#pragma once

#include <QObject>
#include <QPointer>

#include <memory>
#include <vector>

QT_BEGIN_NAMESPACE
class QGraphicsScene;
class QMainWindow;
class QWidget;
QT_END_NAMESPACE

namespace Kestrel::Gui {
class TaskbarProgress;
class WalkthroughController;
} // namespace Kestrel::Gui

class Chance;
class Contracts;

/// A window with every component of the library in it, which are deleted and made anew as it comes.
class Zoo
{
public:
    Zoo(Chance& chance, Contracts& contracts);
    ~Zoo();

    Zoo(const Zoo&) = delete;
    Zoo& operator=(const Zoo&) = delete;

    /// The window, made anew with one of everything where it is gone.
    QMainWindow* window();

    /// Something that was put on show: an application's own, which it may delete or move elsewhere.
    QObject* anyExhibit();
    QWidget* anyExhibitedWidget();
    /// All that is on show.
    std::vector<QPointer<QObject>> exhibits();
    /// Any widget at all, parts of components and open popups as well: what a mouse may be over.
    QWidget* anyWidget();

    /// One more of any kind.
    void add();
    void removeOne();

    Kestrel::Gui::WalkthroughController& controller() { return *m_controller; }
    Kestrel::Gui::TaskbarProgress& taskbar() { return *m_taskbar; }

    /// Every kind's name, for the report.
    static int kinds();

private:
    void addOneOfEach();
    void add(int kind);
    QWidget* anyParent();
    void forgetWhatIsGone();

    Chance& m_chance;
    Contracts& m_contracts;
    QPointer<QMainWindow> m_window;
    std::vector<QPointer<QObject>> m_exhibits;
    std::unique_ptr<Kestrel::Gui::WalkthroughController> m_controller;
    std::unique_ptr<Kestrel::Gui::TaskbarProgress> m_taskbar;
};
