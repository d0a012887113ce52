#include "Zoo.h"

#include "Chance.h"
#include "Contracts.h"
#include "Kinds.h"

#include <KQt/Ui/TaskbarProgress.h>
#include <KQt/Ui/WalkthroughController.h>

#include <support/TestHint.h>

#include <QApplication>
#include <QMainWindow>

#include <algorithm>

namespace {

constexpr int MostExhibits = 80;

} // namespace

Zoo::Zoo(Chance& chance, Contracts& contracts)
    : m_chance(chance)
    , m_contracts(contracts)
    , m_controller(std::make_unique<Kestrel::Gui::WalkthroughController>())
{
    auto* prototype = new TestSupport::TestHint;
    prototype->addPage(QStringLiteral("first"), QStringLiteral("target"), QStringLiteral("right"),
                       {QStringLiteral("first/ready"), QStringLiteral("target/active")});
    prototype->addPage(QStringLiteral("second"), QStringLiteral("target"), QStringLiteral("top"),
                       {QStringLiteral("second/ready"), QStringLiteral("first/finished")});
    m_controller->addHints(prototype);
}

Zoo::~Zoo()
{
    delete m_window;
    forgetWhatIsGone();
    for (const QPointer<QObject>& exhibit : m_exhibits)
        delete exhibit;
}

QMainWindow* Zoo::window()
{
    if (!m_window) {
        m_window = new QMainWindow;
        m_window->setCentralWidget(new QWidget);
        m_window->resize(800, 600);
        m_window->show();
        m_taskbar = std::make_unique<Kestrel::Gui::TaskbarProgress>(m_window->windowHandle());
        addOneOfEach();
    }
    return m_window;
}

void Zoo::addOneOfEach()
{
    for (int kind = 0; kind < kinds(); ++kind)
        add(kind);
}

void Zoo::add()
{
    forgetWhatIsGone();
    if (m_exhibits.size() < MostExhibits)
        add(m_chance.below(kinds()));
}

void Zoo::add(int kind)
{
    QWidget* parent = anyParent();
    QObject* exhibit = ::kinds().at(static_cast<std::size_t>(kind)).make(parent);
    m_exhibits.emplace_back(exhibit);
    m_contracts.watch(exhibit);
    if (auto* widget = qobject_cast<QWidget*>(exhibit)) {
        widget->move(m_chance.below(700), m_chance.below(500));
        widget->show();
    }
}

void Zoo::removeOne()
{
    delete anyExhibit();
}

QObject* Zoo::anyExhibit()
{
    window();
    forgetWhatIsGone();
    return m_exhibits.empty() ? nullptr : m_chance.oneOf(m_exhibits).data();
}

std::vector<QPointer<QObject>> Zoo::exhibits()
{
    window();
    forgetWhatIsGone();
    return m_exhibits;
}

QWidget* Zoo::anyExhibitedWidget()
{
    auto* widget = qobject_cast<QWidget*>(anyExhibit());
    return widget ? widget : window();
}

QWidget* Zoo::anyWidget()
{
    if (QWidget* popup = QApplication::activePopupWidget()) {
        const auto parts = popup->findChildren<QWidget*>();
        return parts.isEmpty() || m_chance.oneIn(3) ? popup : m_chance.oneOf(parts);
    }
    QWidget* widget = anyExhibitedWidget();
    const auto parts = widget->findChildren<QWidget*>();
    return parts.isEmpty() || m_chance.oneIn(3) ? widget : m_chance.oneOf(parts);
}

// Not inside of others: what covers a component is not the question here.
QWidget* Zoo::anyParent()
{
    return window()->centralWidget();
}

void Zoo::forgetWhatIsGone()
{
    m_exhibits.erase(std::remove(m_exhibits.begin(), m_exhibits.end(), nullptr), m_exhibits.end());
}

int Zoo::kinds()
{
    return static_cast<int>(::kinds().size());
}
