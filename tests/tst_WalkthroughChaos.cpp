#include <KQt/Ui/WalkthroughController.h>

#include "support/Tour.h"

#include <QtTest>

#include <QPushButton>
#include <QRandomGenerator>

#include <memory>
#include <vector>

using Kestrel::Gui::WalkthroughController;
using namespace TestSupport;

namespace {

constexpr int Steps = 10000;
constexpr int TargetNames = 4;

/// Windows, targets and widgets to avoid, to which anything may happen.
class Playground
{
public:
    explicit Playground(quint32 seed)
        : m_random(seed)
    {
    }

    int below(int limit) { return m_random.bounded(limit); }

    /// One of the windows that there are, made if there is none.
    QWidget* anyWindow()
    {
        drop(m_windows);
        if (m_windows.empty())
            addWindow();
        return m_windows[size_t(below(int(m_windows.size())))];
    }

    void addWindow()
    {
        drop(m_windows);
        if (m_windows.size() >= 3)
            return;
        auto* window = new QWidget;
        window->setGeometry(below(100), below(100), 200 + below(300), 150 + below(250));
        m_windows.emplace_back(window);
        window->show();
    }

    QWidget* anyTarget()
    {
        drop(m_targets);
        if (m_targets.size() < 8 && (m_targets.empty() || below(3) == 0))
            addTarget();
        return m_targets[size_t(below(int(m_targets.size())))];
    }

    void addTarget()
    {
        auto* target = new QPushButton(anyWindow());
        target->setProperty("walkthroughWidget", QStringLiteral("target%1").arg(below(TargetNames)));
        moveAnywhere(target);
        m_targets.emplace_back(target);
        target->show();
    }

    QWidget* anyAvoidWidget()
    {
        drop(m_avoidWidgets);
        if (m_avoidWidgets.empty()) {
            auto* widget = new QWidget(anyWindow());
            moveAnywhere(widget);
            widget->show();
            m_avoidWidgets.emplace_back(widget);
        }
        return m_avoidWidgets.front();
    }

    QWidget* anything()
    {
        switch (below(6)) {
        case 0:
            return anyWindow();
        case 1:
            return anyAvoidWidget();
        default:
            return anyTarget();
        }
    }

    void moveAnywhere(QWidget* widget)
    {
        widget->setGeometry(below(500) - 50, below(400) - 50, 1 + below(150), 1 + below(100));
    }

    void clear()
    {
        for (const auto* widgets : {&m_windows, &m_targets, &m_avoidWidgets}) {
            for (const QPointer<QWidget>& widget : *widgets)
                delete widget;
        }
    }

private:
    static void drop(std::vector<QPointer<QWidget>>& widgets)
    {
        widgets.erase(std::remove(widgets.begin(), widgets.end(), nullptr), widgets.end());
    }

    QRandomGenerator m_random;
    std::vector<QPointer<QWidget>> m_windows;
    std::vector<QPointer<QWidget>> m_targets;
    std::vector<QPointer<QWidget>> m_avoidWidgets;
};

QVector<TourPage> pages()
{
    QVector<TourPage> result;
    const QStringList alignments{str("left"), str("top"), str("right"), str("bottom"), str("middle")};
    for (int i = 0; i < 6; ++i) {
        const QString name = str("hint%1").arg(i);
        const QString target = str("target%1").arg(i % TargetNames);
        QStringList conditions{name + str("/ready"), target + str("/active")};
        if (i == 5)
            conditions.append(str("hint0/finished"));
        result.append({name, target, conditions, alignments.at(i % alignments.size())});
    }
    return result;
}

} // namespace

/// Thousands of random steps with everything that a walkthrough holds on to, the same ones at each run. What it must
/// not do is crash or use what is gone, which the sanitizers see; what must hold at all times is checked in between.
class tst_WalkthroughChaos : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomSteps();
};

void tst_WalkthroughChaos::randomSteps()
{
    Playground playground(20260317);
    auto controller = std::make_unique<WalkthroughController>();
    auto tour = std::make_unique<Tour>();
    controller->addHints(tour->prototype(pages()));
    int started = 0;
    int finished = 0;

    for (int step = 0; step < Steps; ++step) {
        QWidget* widget = playground.anything();
        switch (playground.below(16)) {
        case 0:
        case 1:
            widget->hide();
            break;
        case 2:
        case 3:
            widget->show();
            break;
        case 4:
            playground.moveAnywhere(widget);
            break;
        case 5: { // into another window, or out of any
            QWidget* parent = playground.below(6) == 0 ? nullptr : playground.anyWindow();
            if (parent != widget && !(parent && widget->isAncestorOf(parent))) {
                widget->setParent(parent);
                widget->show();
            }
            break;
        }
        case 6:
            if (playground.below(4) == 0)
                delete widget;
            break;
        case 7:
            if (playground.below(3) == 0)
                widget->deleteLater();
            break;
        case 8:
            QTest::mouseClick(playground.anyTarget(), Qt::LeftButton);
            break;
        case 9:
            controller->setAvoidWidget(playground.below(3) == 0 ? nullptr : playground.anyAvoidWidget());
            break;
        case 10:
            if (playground.below(4) == 0)
                controller->setEnabled(!controller->isEnabled());
            break;
        case 11: {
            TourHint* hint = tour->hint(playground.below(6));
            if (hint)
                hint->close();
            break;
        }
        case 12:
            controller->gotoState(str("hint%1").arg(playground.below(6)), str("ready"));
            break;
        case 13:
            if (!widget->isWindow())
                widget->raise();
            playground.addWindow();
            break;
        case 14:
            if (playground.below(60) == 0) {
                TourHint* hint = tour->hint(playground.below(6));
                if (hint && playground.below(2) == 0)
                    delete hint;
                else if (hint)
                    delete hint->contentWidget();
            }
            break;
        default:
            playground.anyTarget()->setProperty("walkthroughWidget",
                                                str("target%1").arg(playground.below(TargetNames)));
            break;
        }
        if (step % 7 == 0)
            QCoreApplication::processEvents();
        if (step % 40 == 0) {
            // Evaluated now and not in 50 ms, which would make the test last for minutes.
            QMetaObject::invokeMethod(controller.get(), "showOrHideHints");
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        if (step % 1000 == 999) {
            started += tour->record->log.filter(str("start")).size();
            finished += tour->record->log.filter(str("finish")).size();
            // A new tour, for hints die with the windows that they are shown in.
            controller = std::make_unique<WalkthroughController>();
            tour = std::make_unique<Tour>();
            controller->addHints(tour->prototype(pages()));
            QTRY_VERIFY(controller->isRunning());
            QCoreApplication::processEvents();
        }
        // Every group has exactly one state at any time.
        if (step % 100 == 50) {
            int groups = 0;
            const auto active = controller->configuration();
            for (const QObject* group : controller->initialState()->children())
                groups += qobject_cast<const QAbstractState*>(group) ? 1 : 0;
            QCOMPARE(active.size(), 1 + 2 * groups);
        }
    }
    QVERIFY2(started > 50, QByteArray::number(started));
    QVERIFY2(finished > 50, QByteArray::number(finished));
    controller.reset();
    playground.clear();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QTEST_MAIN(tst_WalkthroughChaos)
#include "tst_WalkthroughChaos.moc"
