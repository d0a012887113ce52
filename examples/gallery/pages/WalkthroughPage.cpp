#include "GalleryHint.h"
#include "Page.h"
#include "PageRegistry.h"

#include <KQt/Ui/WalkthroughController.h>

#include <QCheckBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QState>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

//! [shows] WalkthroughHint

namespace Gallery {

namespace {

using Kestrel::Gui::WalkthroughController;

const char* const Context = "Gallery::WalkthroughPage";

QString path(const QAbstractState* state)
{
    return state->parent()->objectName() + QLatin1Char('/') + state->objectName();
}

QVector<HintDescription> hints()
{
    const QString running = QStringLiteral("demo/running");
    return {
        {QStringLiteral("hint-save"),
         QStringLiteral("demo-save"),
         QStringLiteral("bottom"),
         {running, QStringLiteral("hint-save/ready"), QStringLiteral("demo-save/active")},
         QT_TRANSLATE_NOOP("Gallery::WalkthroughPage", "One target"),
         QT_TRANSLATE_NOOP("Gallery::WalkthroughPage", "Press the button, or Next.")},
        {QStringLiteral("hint-lamps"),
         QStringLiteral("demo-lamps"),
         QStringLiteral("bottom"),
         {running, QStringLiteral("hint-save/finished"), QStringLiteral("hint-lamps/ready"),
          QStringLiteral("demo-lamps/active")},
         QT_TRANSLATE_NOOP("Gallery::WalkthroughPage", "Two targets"),
         QT_TRANSLATE_NOOP("Gallery::WalkthroughPage",
                           "Hide one with the switches: the frame follows. Hide both, and the hint goes.")},
    };
}

/// A tour of its own beside that of the gallery, so that it can be played with.
class WalkthroughPage : public Page
{
    Q_DECLARE_TR_FUNCTIONS(Gallery::WalkthroughPage)

public:
    explicit WalkthroughPage(QWidget* parent)
        : Page(tr("A small tour of its own. Start it, hide its targets, or enter a state by double-clicking it: the "
                  "lists show the machine's groups, and what each hint still waits for."),
               parent)
    {
        addTargets();
        addLists();
        addControls();
        // The first state of a group is where it starts.
        //! [code]
        m_controller.findOrCreateState(QStringLiteral("demo/stopped"));
        m_controller.findOrCreateState(QStringLiteral("demo/running"));
        m_controller.addHints(new GalleryHint(Context, hints()));
        //! [code]
        connect(&m_controller, &WalkthroughController::hintsDisabledForever, this,
                [this] { log(QStringLiteral("hintsDisabledForever()")); });
        connect(&m_controller, &QStateMachine::started, this, [this] { refresh(); });
        m_refresh.setSingleShot(true);
        m_refresh.setInterval(0);
        connect(&m_refresh, &QTimer::timeout, this, [this] { refresh(); });
        refresh();
    }

private:
    QPushButton* addTarget(const QString& text, const QString& target)
    {
        auto* button = new QPushButton(text);
        //! [code]
        button->setProperty(GalleryHint::widgetPropertyName(), target);
        //! [code]
        m_targets->addWidget(button);
        return button;
    }

    void addTargets()
    {
        m_save = addTarget(tr("Save"), QStringLiteral("demo-save"));
        m_left = addTarget(tr("First lamp"), QStringLiteral("demo-lamps"));
        m_right = addTarget(tr("Second lamp"), QStringLiteral("demo-lamps"));
        m_targets->addStretch();
        stage()->addLayout(m_targets);
    }

    void addLists()
    {
        m_groups->setObjectName(QStringLiteral("groups"));
        m_groups->setHeaderLabels({tr("Group"), tr("Active state")});
        m_groups->setAccessibleName(tr("Groups and states"));
        m_groups->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        m_groups->setProperty(GalleryHint::widgetPropertyName(), QStringLiteral("walkthrough-states"));
        connect(m_groups, &QTreeWidget::itemActivated, this, [this](const QTreeWidgetItem* item) {
            if (item->parent())
                m_controller.gotoState(item->parent()->text(0), item->text(0));
        });
        stage()->addWidget(m_groups, 2);

        m_hints->setObjectName(QStringLiteral("hints"));
        m_hints->setHeaderLabels({tr("Hint"), tr("Unmet conditions"), tr("Waits for")});
        m_hints->setAccessibleName(tr("Hints"));
        m_hints->setRootIsDecorated(false);
        m_hints->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        stage()->addWidget(m_hints, 1);
    }

    void addControls()
    {
        auto* start = new QPushButton(tr("Start the tour"));
        start->setObjectName(QStringLiteral("start"));
        connect(start, &QPushButton::clicked, this, [this] {
            const QVector<HintDescription> descriptions = hints();
            for (const HintDescription& hint : descriptions)
                m_controller.gotoState(hint.name, QStringLiteral("ready"));
            //! [code]
            m_controller.gotoState(QStringLiteral("demo"), QStringLiteral("running"));
            //! [code]
        });
        controls()->addRow(start);
        auto* stop = new QPushButton(tr("Stop the tour"));
        stop->setObjectName(QStringLiteral("stop"));
        connect(stop, &QPushButton::clicked, this,
                [this] { m_controller.gotoState(QStringLiteral("demo"), QStringLiteral("stopped")); });
        controls()->addRow(stop);

        m_enabled = new QCheckBox(tr("Hints enabled"));
        m_enabled->setChecked(true);
        connect(m_enabled, &QCheckBox::toggled, this, [this](bool on) { m_controller.setEnabled(on); });
        controls()->addRow(m_enabled);
        addSwitch(tr("Save is shown"), true, [this](bool on) { m_save->setVisible(on); });
        addSwitch(tr("First lamp is shown"), true, [this](bool on) { m_left->setVisible(on); });
        addSwitch(tr("Second lamp is shown"), true, [this](bool on) { m_right->setVisible(on); });
        addSwitch(tr("Hints avoid the list of hints"), false,
                  //! [code]
                  [this](bool on) { m_controller.setAvoidWidget(on ? m_hints : nullptr); });
        //! [code]
    }

    void watchNewStates()
    {
        const QList<QState*> states = m_controller.findChildren<QState*>();
        for (QState* state : states) {
            // Groups lie right below the root, states below groups.
            if (!state->parent() || !state->parent()->parent() || state->parent()->parent() == &m_controller ||
                m_watched.contains(state))
                continue;
            m_watched.insert(state);
            connect(state, &QState::entered, this, [this, state] {
                log(tr("entered %1").arg(path(state)));
                m_refresh.start();
            });
        }
    }

    void refresh()
    {
        watchNewStates();
        showGroups();
        showHints();
        // Before the machine runs, nothing is switched off yet.
        m_enabled->blockSignals(true);
        m_enabled->setChecked(m_controller.isEnabled());
        m_enabled->blockSignals(false);
    }

    bool isActive(const QAbstractState* state) const
    {
        const QSet<QAbstractState*> configuration = m_controller.configuration();
        return std::find(configuration.cbegin(), configuration.cend(), state) != configuration.cend();
    }

    void showGroups()
    {
        m_groups->clear();
        const QList<QState*> roots = m_controller.findChildren<QState*>(QString(), Qt::FindDirectChildrenOnly);
        for (const QState* root : roots) {
            const QList<QState*> groups = root->findChildren<QState*>(QString(), Qt::FindDirectChildrenOnly);
            for (const QState* group : groups)
                showGroup(group);
        }
        m_groups->expandAll();
    }

    void showGroup(const QState* group)
    {
        auto* item = new QTreeWidgetItem(m_groups, {group->objectName()});
        const QList<QState*> states = group->findChildren<QState*>(QString(), Qt::FindDirectChildrenOnly);
        for (const QState* state : states) {
            auto* child = new QTreeWidgetItem(item, {state->objectName()});
            if (!isActive(state))
                continue;
            item->setText(1, state->objectName());
            QFont font = child->font(0);
            font.setBold(true);
            child->setFont(0, font);
        }
    }

    void showHints()
    {
        m_hints->clear();
        const QVector<HintDescription> descriptions = hints();
        for (const HintDescription& hint : descriptions) {
            QStringList unmet;
            for (const QString& condition : hint.conditions) {
                if (!isActive(m_controller.findOrCreateState(condition)))
                    unmet << condition;
            }
            new QTreeWidgetItem(m_hints, {hint.name, QString::number(unmet.size()), unmet.join(QLatin1String(", "))});
        }
    }

    QHBoxLayout* m_targets = new QHBoxLayout;
    QPushButton* m_save = nullptr;
    QPushButton* m_left = nullptr;
    QPushButton* m_right = nullptr;
    QTreeWidget* m_groups = new QTreeWidget;
    QTreeWidget* m_hints = new QTreeWidget;
    QCheckBox* m_enabled = nullptr;
    QTimer m_refresh;
    QSet<QState*> m_watched;
    WalkthroughController m_controller;
};

const PageRegistration registration(220, QT_TRANSLATE_NOOP("Gallery", "Walkthrough"),
                                    [](QWidget* parent) { return new WalkthroughPage(parent); });

} // namespace

} // namespace Gallery
