#pragma once

#include <KQt/Ui/Export.h>

#include <QEvent>
#include <QList>
#include <QMap>
#include <QMultiMap>
#include <QPointer>
#include <QSet>
#include <QSignalBlocker>
#include <QStateMachine>
#include <QString>
#include <QTimer>
#include <QVector>

#include <memory>
#include <vector>

QT_BEGIN_NAMESPACE
class QAbstractState;
class QState;
class QWidget;
QT_END_NAMESPACE

namespace Kestrel::Gui {

class WalkthroughHint;

/// Drives a guided tour: shows hints beside the application's widgets while the hints' conditions hold.
///
/// It is a state machine of groups, each of which has exactly one active state. A state is addressed by its path, group
/// name, "/", state name. Names must not contain "/". The controller makes and drives these:
///
/// | group       | states                            | active while                                               |
/// |-------------|-----------------------------------|------------------------------------------------------------|
/// | hint name   | "ready", "finished", "disabled"   | it may be shown; it was closed; hints are switched off     |
/// | target name | "inactive", "active"              | no widget of that name is shown; at least one is           |
///
/// Any other path in a condition list is a state of the application's own, to be entered by gotoState().
///
/// Dynamic properties describe everything. A widget is a target by "walkthroughWidget", its target name. A page of the
/// hint prototype has "walkthroughName" (the hint's name), "walkthroughWidget" (the target it points at),
/// "walkthroughConditionList" (paths that must all be active) and "walkthroughAlignment" (see WalkthroughHint). 50 ms
/// after the last change of a state each hint whose conditions hold and whose target is shown is started; one whose
/// conditions or targets are gone is finished. Closing a hint, or pressing a mouse button on its target, finishes it:
/// its group enters "finished". Widgets inside of hints are no targets, and hiding by the window system (minimising)
/// does not count as hiding.
///
/// Widgets, hints and pages may be deleted at any time. A deleted target counts as hidden. A deleted hint, or one whose
/// page was deleted, is given up; if it was being shown, its group enters "finished". Only from a slot that a state
/// called (entered(), exited()) the controller itself must not be deleted; use deleteLater() there. Nor may such a slot
/// throw: Qt's machine would take itself for busy from then on. Whatever else throws leaves the walkthrough running.
///
/// What is odd in the properties is not reported but has these effects:
/// - A path without "/" names the state with an empty name of that group; an empty path both an empty group and state.
///   What follows a second "/" is ignored.
/// - A page without "walkthroughConditionList" makes a hint that is never shown and never switched off. It is deleted
///   after the controller, by the event loop.
/// - Pages without name or target use the groups with an empty name. Such hints are never shown, for a widget without
///   the property is no target.
/// - A condition that nobody enters keeps its hint hidden for ever.
/// - Hints of the same name share one group: finishing or switching off one does so with all of them.
/// - An object with "walkthroughWidget" that is no widget (a window of Qt Gui) makes its target "active" while it is
///   shown; a hint for it is started without anything to point at, and stays invisible.
/// - Unknown texts of "walkthroughAlignment" centre the hint on its target.
///
/// Nothing is stored: an application keeps what hintsDisabledForever() reports and calls setEnabled(false) at its next
/// start. GUI thread only; the machine starts with the event loop.
class KQTUI_EXPORT WalkthroughController : public QStateMachine
{
    Q_OBJECT

public:
    /// Watches the application, which must exist, and starts the machine.
    WalkthroughController();

    /// Deletes the hints, those being shown as well.
    ~WalkthroughController() override;

    /// Registers one hint for each page of the prototype's stacked widget and deletes the prototype, later. Each hint
    /// is a clone of the prototype set to its page, and is owned by the controller.
    ///
    /// May be called again, with further prototypes: the hints add up. While the machine runs, too; new groups then
    /// join in their initial states ("ready", "inactive") and the others stay as they are. Every condition of a new
    /// hint counts as unmet until its state is entered the next time: one that waits for a target that is already shown
    /// appears when that target is shown again. Without a prototype (null) nothing happens; one without pages is merely
    /// deleted.
    void addHints(WalkthroughHint* prototype);

    /// The state of that path; it and its group are created where they are missing. The first state of a group is its
    /// initial state. States may be entered from every other state of their group.
    QAbstractState* findOrCreateState(const QString& path);

    /// @p group + "/" + @p state.
    QString statePath(const QString& group, const QString& state) const;

    /// Enters the state, before it returns. Called while the machine is busy (from a slot of a state), it is entered
    /// next; called before the machine runs, as soon as it does. Null does nothing.
    void gotoState(QAbstractState* state);
    void gotoState(const QString& path);
    void gotoState(const QString& group, const QString& state);

    /// Whether no hint is switched off; true without hints, and before the machine runs.
    Q_INVOKABLE bool isEnabled() const;

    /// Switches all hints off (their groups enter "disabled"; those shown are finished then, which moves theirs on to
    /// "finished") or on ("ready", also for those that were finished before). Does nothing when isEnabled() says so
    /// already: so too once every hint that was switched off has been finished. All groups are switched in one step
    /// of the machine. Before the machine runs the wish is kept and fulfilled when it starts; switching on cannot take
    /// it back until then, for isEnabled() is still true.
    Q_INVOKABLE void setEnabled(bool enable);

    /// A widget that hints started from now on must not cover; null for none. It is borrowed.
    void setAvoidWidget(QWidget* widget);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The user switched hints off for good; they are off already. Not emitted by setEnabled().
    void hintsDisabledForever();

private Q_SLOTS:
    void disableHintsForSession();
    void disableHintsForever();
    void enteredState();
    void exitedState();
    void executeQueuedStates();
    void clearQueuedStates();
    void showOrHideHints();

private:
    /// What the transitions of the groups wait for, sent to the state that is to be entered.
    static constexpr QEvent::Type eventType() { return QEvent::None; }

    bool followEvent(QObject* watched, QEvent* event);
    void targetShown(QObject* object);
    void targetHidden(QObject* object);
    void targetDestroyed(QObject* object);
    void hintClosed(QObject* object);
    void mousePressed(QObject* object);
    void avoidWidgetDestroyed(QObject* object);

    WalkthroughHint* makeHint(WalkthroughHint* prototype, int page);
    void createStates(const WalkthroughHint* hint);
    void registerConditions(WalkthroughHint* hint);
    void watchLifetime(WalkthroughHint* hint);
    void unregister(WalkthroughHint* hint);
    void forgetHint(WalkthroughHint* hint, const QString& name);
    void hintFinished(WalkthroughHint* hint, const QString& name);
    void showOrHideHint(WalkthroughHint* hint);
    void countConditionsAnew();

    class CommonStep;
    void take(CommonStep& step);
    bool isActive(const QString& path) const;
    bool isLate(const QAbstractState* state) const;
    void enter(QAbstractState* state);
    void enterTogether(const QVector<QAbstractState*>& states);
    void enterLateGroups();
    void makePlaceholder();
    void removePlaceholder();
    void waitForTurn();
    void endTurn();

    QMultiMap<QAbstractState*, WalkthroughHint*> m_conditionHints;
    QMultiMap<QString, QWidget*> m_targetWidgets;
    QSet<WalkthroughHint*> m_shownHints;
    QMap<WalkthroughHint*, int> m_unmetConditions;
    QList<QPointer<QAbstractState>> m_queuedStates;
    QState* m_rootState;
    QTimer m_showTimer;
    QWidget* m_avoidWidget = nullptr;

    // Conditions that were registered while their state was active: leaving it makes them no more unmet than they are.
    QMultiMap<QAbstractState*, WalkthroughHint*> m_unmetThoughActive;
    const QEvent* m_sentEvent = nullptr;
    bool m_sentEventSeen = false;
    bool m_addsToStates = false;
    bool m_hasForeignTransitions = false;
    std::vector<QSignalBlocker> m_silence; // of states that are re-entered only for the sake of new groups
    std::vector<std::unique_ptr<CommonStep>> m_waitingSteps; // that the machine has not come to, being busy
    std::unique_ptr<CommonStep> m_turn;                      // taken once it has come to what waits by now
};

} // namespace Kestrel::Gui
