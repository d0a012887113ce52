#include "Habit.h"

#include "Stage.h"

#include <support/Tour.h>

#include <KQt/Ui/WalkthroughController.h>

#include <QPushButton>
#include <QTest>

#include <memory>

using Kestrel::Gui::WalkthroughController;
using namespace TestSupport;

namespace {

/// A window with three targets, and the hints that lead from each to the next.
class Journey
{
public:
    static constexpr int Stations = 3;

    /// Every controller looks at all windows: @p name tells the targets of one journey from those of others.
    explicit Journey(const QString& name)
    {
        QVector<TourPage> pages;
        m_window.resize(400, 300);
        for (int i = 0; i < Stations; ++i) {
            const QString target = name + QString::number(i);
            const QString hint = QStringLiteral("hint-") + target;
            QStringList conditions{hint + str("/ready"), target + str("/active")};
            if (i > 0)
                conditions << QStringLiteral("hint-%1%2/finished").arg(name).arg(i - 1);
            pages.append({hint, target, conditions, str("bottom")});
            m_targets[i] = new QPushButton(&m_window);
            m_targets[i]->setProperty("walkthroughWidget", target);
            m_targets[i]->setGeometry(20 + 100 * i, 60 * (i + 1), 80, 30);
        }
        m_controller.addHints(m_tour.prototype(pages));
    }

    void start() { m_window.show(); }
    void end() { m_window.hide(); }

    /// Each hint appears and is closed, the last one by a click on what it points at.
    void follow(Stage& stage)
    {
        for (int i = 0; i < Stations; ++i) {
            const QPointer<TourHint> hint = m_tour.hint(i);
            if (!stage.await([&hint] { return hint && hint->isVisible(); }, "a hint of the tour appears"))
                return;
            m_window.resize(400 + 10 * i, 300);
            if (i == Stations - 1)
                QTest::mouseClick(m_targets[i], Qt::LeftButton);
            else
                hint->close();
            if (!stage.await([&hint] { return !hint || !hint->isVisible(); }, "a hint of the tour goes"))
                return;
        }
    }

    /// Switched off and on: what was finished comes again.
    void rewind(Stage& stage)
    {
        m_controller.setEnabled(false);
        stage.await([this] { return !m_controller.isEnabled(); }, "the hints are switched off");
        m_controller.setEnabled(true);
        stage.await([this] { return m_controller.isEnabled(); }, "the hints are switched on");
        // The test's own notes are no part of what is measured.
        m_tour.record->log.clear();
        m_tour.record->targets.clear();
    }

private:
    WalkthroughController m_controller;
    Tour m_tour;
    QWidget m_window;
    QPushButton* m_targets[Stations] = {};
};

void takeATour(Stage& stage)
{
    Journey journey(str("passing"));
    journey.start();
    journey.follow(stage);
    journey.end();
}

/// The same controller, as long as the application lives.
Habit takeTheTourAgain()
{
    const auto journey = std::make_shared<Journey>(str("lasting"));
    return {"take the tour once more", [journey](Stage& stage) {
                journey->start();
                journey->follow(stage);
                journey->end(); // before it is rewound: a hint that appears again would be finished by that
                journey->rewind(stage);
            }};
}

} // namespace

std::vector<Habit> tourHabits()
{
    return {{"take a tour", takeATour}, takeTheTourAgain()};
}
