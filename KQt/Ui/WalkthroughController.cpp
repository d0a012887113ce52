#include <KQt/Ui/WalkthroughController.h>

#include <KQt/Ui/WalkthroughHint.h>

#include <QCoreApplication>
#include <QEventTransition>
#include <QScopedValueRollback>
#include <QScopeGuard>
#include <QStackedWidget>
#include <QState>
#include <QStringList>

#include <algorithm>
#include <chrono>
#include <memory>
#include <utility>
#include <vector>

namespace Kestrel::Gui {

namespace {

// A burst of state changes, as when a page opens, is answered once.
constexpr std::chrono::milliseconds SettlingTime(50);

const QLatin1Char PathSeparator('/');
const QLatin1String Ready("ready");
const QLatin1String Finished("finished");
const QLatin1String Disabled("disabled");
const QLatin1String Inactive("inactive");
const QLatin1String Active("active");
// No path leads to it.
const QLatin1String PlaceholderGroup("/");

QString targetName(const QObject* object)
{
    return object->property(WalkthroughHint::widgetPropertyName()).toString();
}

bool isInsideHint(QObject* object)
{
    for (; object; object = object->parent()) {
        if (qobject_cast<WalkthroughHint*>(object))
            return true;
    }
    return false;
}

// Not findChild(): that takes an empty name for any name.
QState* childState(const QState* parent, const QString& name)
{
    for (QObject* child : parent->children()) {
        if (child->objectName() != name)
            continue;
        if (auto* state = qobject_cast<QState*>(child))
            return state;
    }
    return nullptr;
}

QVector<QState*> siblings(const QAbstractState* state)
{
    QVector<QState*> result;
    for (QObject* child : state->parentState()->children()) {
        auto* sibling = qobject_cast<QState*>(child);
        if (sibling && sibling != state)
            result.append(sibling);
    }
    return result;
}

void joinByEvent(QState* from, QAbstractState* to, QEvent::Type type)
{
    auto* transition = new QEventTransition(to, type);
    transition->setTargetState(to);
    from->addTransition(transition);
}

template <typename Container>
std::vector<QPointer<WalkthroughHint>> guardedCopy(const Container& hints)
{
    return {hints.cbegin(), hints.cend()};
}

template <typename Key, typename Value>
void removeValue(QMultiMap<Key, Value>& map, const Value& value)
{
    for (auto it = map.begin(); it != map.end();)
        it = it.value() == value ? map.erase(it) : std::next(it);
}

} // namespace

/// Transitions that wait for one common event and are gone afterwards.
class WalkthroughController::CommonStep
{
public:
    explicit CommonStep(QEvent::Type type)
        : m_type(type)
    {
    }
    Q_DISABLE_COPY_MOVE(CommonStep)

    ~CommonStep()
    {
        for (const QPointer<QEventTransition>& transition : m_transitions) {
            if (!transition)
                continue;
            // Deleting alone would leave it registered with the machine.
            transition->sourceState()->removeTransition(transition);
            delete transition;
        }
    }

    QEventTransition* add(WalkthroughController& controller, QState* from, const QList<QAbstractState*>& to)
    {
        const QScopedValueRollback<bool> ownChild(controller.m_addsToStates, true);
        auto* transition = new QEventTransition(&m_trigger, m_type);
        transition->setTargetStates(to);
        from->addTransition(transition);
        m_transitions.emplace_back(transition);
        return transition;
    }

    /// Steps that the machine comes to before this one, to be gone with it.
    void keep(std::vector<std::unique_ptr<CommonStep>> earlier) { m_earlier = std::move(earlier); }

    QObject* trigger() { return &m_trigger; }

private:
    QEvent::Type m_type;
    QObject m_trigger;
    std::vector<QPointer<QEventTransition>> m_transitions;
    std::vector<std::unique_ptr<CommonStep>> m_earlier;
};

WalkthroughController::WalkthroughController()
    : m_rootState(new QState(QState::ParallelStates, this))
    , m_showTimer(this)
{
    setInitialState(m_rootState);
    makePlaceholder();
    connect(this, &QStateMachine::started, this, &WalkthroughController::executeQueuedStates, Qt::QueuedConnection);
    connect(this, &QStateMachine::started, this, &WalkthroughController::endTurn, Qt::QueuedConnection);
    connect(this, &QStateMachine::stopped, this, &WalkthroughController::clearQueuedStates, Qt::QueuedConnection);
    // A machine that stops exits no state, and enters the initial ones when it starts again.
    connect(this, &QStateMachine::stopped, this, &WalkthroughController::countConditionsAnew);
    m_showTimer.setInterval(SettlingTime);
    m_showTimer.setSingleShot(true);
    connect(&m_showTimer, &QTimer::timeout, this, &WalkthroughController::showOrHideHints);
    QCoreApplication::instance()->installEventFilter(this);
    start();
}

WalkthroughController::~WalkthroughController()
{
    if (auto* application = QCoreApplication::instance())
        application->removeEventFilter(this);
    m_shownHints.clear();
    const auto hints = guardedCopy(m_conditionHints);
    for (const QPointer<WalkthroughHint>& hint : hints)
        delete hint;
}

void WalkthroughController::addHints(WalkthroughHint* prototype)
{
    if (!prototype)
        return;
    const QStackedWidget* pages = prototype->stackedWidget();
    const int count = pages ? pages->count() : 0;
    QSet<WalkthroughHint*> hints;
    // The prototype's virtual functions may throw: it stays the caller's then, and the hints made so far go.
    auto undo = qScopeGuard([this, &hints] {
        for (WalkthroughHint* hint : std::as_const(hints)) {
            hint->disconnect(this);
            unregister(hint);
            delete hint;
        }
    });
    for (int page = 0; page < count; ++page) {
        if (auto* hint = makeHint(prototype, page))
            hints.insert(hint);
    }
    for (WalkthroughHint* hint : std::as_const(hints))
        registerConditions(hint);
    for (WalkthroughHint* hint : std::as_const(hints))
        watchLifetime(hint);
    undo.dismiss();
    prototype->deleteLater();
    if (isRunning())
        enterLateGroups();
}

WalkthroughHint* WalkthroughController::makeHint(WalkthroughHint* prototype, int page)
{
    std::unique_ptr<WalkthroughHint> hint(prototype->clone());
    if (!hint)
        return nullptr;
    if (QStackedWidget* pages = hint->stackedWidget())
        pages->setCurrentIndex(page);
    if (!hint->stackedWidget() || !hint->contentWidget())
        return nullptr;
    // Closing a hint while the application's windows are hidden must not end the application.
    hint->setAttribute(Qt::WA_QuitOnClose, false);
    connect(hint.get(), &WalkthroughHint::hintsDisabledForSession, this,
            &WalkthroughController::disableHintsForSession);
    connect(hint.get(), &WalkthroughHint::hintsDisabledForever, this, &WalkthroughController::disableHintsForever);
    createStates(hint.get());
    return hint.release();
}

void WalkthroughController::createStates(const WalkthroughHint* hint)
{
    auto* readable = const_cast<WalkthroughHint*>(hint);
    const QString name = readable->hintName();
    // The first one is the initial state.
    findOrCreateState(statePath(name, Ready));
    findOrCreateState(statePath(name, Finished));
    findOrCreateState(statePath(name, Disabled));
    findOrCreateState(statePath(readable->widgetName(), Inactive));
}

void WalkthroughController::registerConditions(WalkthroughHint* hint)
{
    const QStringList conditions = hint->conditionList();
    for (const QString& path : conditions) {
        QAbstractState* state = findOrCreateState(path);
        m_conditionHints.insert(state, hint);
        ++m_unmetConditions[hint];
        if (configuration().contains(state))
            m_unmetThoughActive.insert(state, hint);
    }
}

void WalkthroughController::watchLifetime(WalkthroughHint* hint)
{
    if (!m_unmetConditions.contains(hint)) {
        // Never shown, and not for the destructor to delete; yet nobody else would.
        connect(this, &QObject::destroyed, hint, &QObject::deleteLater);
        return;
    }
    const QString name = hint->hintName();
    connect(hint, &QObject::destroyed, this, [this, hint, name] { forgetHint(hint, name); });
    // Without its page a hint would show the next one of the stack, or nothing.
    const QPointer<QObject> pageOwner(hint);
    connect(hint->contentWidget(), &QObject::destroyed, this, [this, pageOwner, name] {
        // Null when the hint itself is being deleted and takes its pages along.
        auto* owner = qobject_cast<WalkthroughHint*>(pageOwner.data());
        if (!owner)
            return;
        owner->hide();
        owner->deleteLater();
        forgetHint(owner, name);
    });
}

void WalkthroughController::unregister(WalkthroughHint* hint)
{
    removeValue(m_conditionHints, hint);
    removeValue(m_unmetThoughActive, hint);
    m_unmetConditions.remove(hint);
}

void WalkthroughController::forgetHint(WalkthroughHint* hint, const QString& name)
{
    unregister(hint);
    if (m_shownHints.remove(hint))
        gotoState(name, Finished);
}

QAbstractState* WalkthroughController::findOrCreateState(const QString& path)
{
    const QStringList names = path.split(PathSeparator, Qt::KeepEmptyParts);
    const QString groupName = names.value(0);
    const QString stateName = names.value(1);

    const QScopedValueRollback<bool> ownChildren(m_addsToStates, true);
    QState* group = childState(m_rootState, groupName);
    const bool isNewGroup = !group;
    if (isNewGroup) {
        removePlaceholder();
        group = new QState(QState::ExclusiveStates, m_rootState);
        group->setObjectName(groupName);
    }
    if (QState* known = childState(group, stateName))
        return known;

    auto* state = new QState(QState::ExclusiveStates, group);
    state->setObjectName(stateName);
    connect(state, &QState::entered, this, &WalkthroughController::enteredState);
    connect(state, &QState::exited, this, &WalkthroughController::exitedState);
    if (isNewGroup)
        group->setInitialState(state);
    const QVector<QState*> others = siblings(state);
    for (QState* other : others) {
        joinByEvent(other, state, eventType());
        joinByEvent(state, other, eventType());
    }
    return state;
}

/// A machine takes no transition of a state that has none but inactive states in it: without this, one that starts
/// before there is any group could never enter one.
void WalkthroughController::makePlaceholder()
{
    const QScopedValueRollback<bool> ownChild(m_addsToStates, true);
    auto* placeholder = new QState(m_rootState);
    placeholder->setObjectName(PlaceholderGroup);
}

void WalkthroughController::removePlaceholder()
{
    // Once it is active, or about to be, it has to stay.
    if (!configuration().contains(m_rootState))
        delete childState(m_rootState, PlaceholderGroup);
}

QString WalkthroughController::statePath(const QString& group, const QString& state) const
{
    return group + PathSeparator + state;
}

void WalkthroughController::gotoState(QAbstractState* state)
{
    if (!state)
        return;
    if (isRunning())
        enter(state);
    else
        m_queuedStates.append(state);
}

void WalkthroughController::gotoState(const QString& path)
{
    gotoState(findOrCreateState(path));
}

void WalkthroughController::gotoState(const QString& group, const QString& state)
{
    gotoState(statePath(group, state));
}

bool WalkthroughController::isEnabled() const
{
    const auto hints = m_unmetConditions.keys();
    return std::none_of(hints.cbegin(), hints.cend(),
                        [this](WalkthroughHint* hint) { return isActive(statePath(hint->hintName(), Disabled)); });
}

void WalkthroughController::setEnabled(bool enable)
{
    if (enable == isEnabled())
        return;
    QVector<QAbstractState*> states;
    for (auto it = m_unmetConditions.cbegin(); it != m_unmetConditions.cend(); ++it) {
        QAbstractState* state = findOrCreateState(statePath(it.key()->hintName(), enable ? Ready : Disabled));
        if (!states.contains(state))
            states.append(state);
    }
    if (isRunning())
        enterTogether(states);
    else
        std::copy(states.cbegin(), states.cend(), std::back_inserter(m_queuedStates));
}

void WalkthroughController::setAvoidWidget(QWidget* widget)
{
    if (m_avoidWidget)
        disconnect(m_avoidWidget, &QObject::destroyed, this, &WalkthroughController::avoidWidgetDestroyed);
    m_avoidWidget = widget;
    if (m_avoidWidget)
        connect(m_avoidWidget, &QObject::destroyed, this, &WalkthroughController::avoidWidgetDestroyed);
}

void WalkthroughController::avoidWidgetDestroyed(QObject* object)
{
    if (static_cast<QObject*>(m_avoidWidget) == object)
        m_avoidWidget = nullptr;
}

bool WalkthroughController::eventFilter(QObject* watched, QEvent* event)
{
    // Every event of the application comes by here: nothing is looked at before its type.
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::Close:
    case QEvent::MouseButtonPress:
        return followEvent(watched, event);
    case QEvent::ChildAdded:
        if (!m_addsToStates && qobject_cast<QState*>(watched))
            m_hasForeignTransitions = true;
        break;
    default:
        break;
    }
    // The machine looks every object up, which costs more than all of the above. It has reason to only for the events
    // of its own transitions, unless the application has given a state transitions for others.
    if (event->type() != eventType() && !m_hasForeignTransitions)
        return false;
    // The machine watches its states too, so that this is called twice for them. The second time would switch a group
    // back when a slot of the state has switched it on meanwhile.
    if (event == m_sentEvent && std::exchange(m_sentEventSeen, true))
        return false;
    return QStateMachine::eventFilter(watched, event);
}

bool WalkthroughController::followEvent(QObject* watched, QEvent* event)
{
    const QPointer<WalkthroughController> self(this);
    const QPointer<QObject> receiver(watched);
    switch (event->type()) {
    case QEvent::Show:
        if (!event->spontaneous())
            targetShown(watched);
        break;
    case QEvent::Hide:
        if (!event->spontaneous())
            targetHidden(watched);
        break;
    case QEvent::Close:
        hintClosed(watched);
        break;
    default:
        mousePressed(watched);
        break;
    }
    // A slot may have deleted the receiver, whose event then ends here, or the controller.
    if (!receiver)
        return true;
    return self && m_hasForeignTransitions && QStateMachine::eventFilter(watched, event);
}

void WalkthroughController::targetShown(QObject* object)
{
    const QString name = targetName(object);
    if (name.isEmpty() || isInsideHint(object))
        return;
    auto* widget = qobject_cast<QWidget*>(object);
    if (m_targetWidgets.contains(name, widget))
        return;
    m_targetWidgets.insert(name, widget);
    connect(object, &QObject::destroyed, this, &WalkthroughController::targetDestroyed, Qt::UniqueConnection);
    if (m_targetWidgets.count(name) == 1)
        gotoState(name, Active);
}

void WalkthroughController::targetHidden(QObject* object)
{
    const QString name = targetName(object);
    if (name.isEmpty() || isInsideHint(object))
        return;
    m_targetWidgets.remove(name, qobject_cast<QWidget*>(object));
    if (!m_targetWidgets.contains(name))
        gotoState(name, Inactive);
}

void WalkthroughController::targetDestroyed(QObject* object)
{
    QStringList names;
    for (auto it = m_targetWidgets.begin(); it != m_targetWidgets.end();) {
        // Objects that are no widgets stand in the map as null and are known by their name alone.
        const bool gone = it.value() ? static_cast<QObject*>(it.value()) == object
                                     : !object->isWidgetType() && it.key() == targetName(object);
        if (gone)
            names.append(it.key());
        it = gone ? m_targetWidgets.erase(it) : std::next(it);
    }
    for (const QString& name : std::as_const(names)) {
        if (!m_targetWidgets.contains(name))
            gotoState(name, Inactive);
    }
}

void WalkthroughController::hintClosed(QObject* object)
{
    auto* hint = qobject_cast<WalkthroughHint*>(object);
    if (!hint)
        return;
    const QPointer<WalkthroughController> self(this);
    const QString name = hint->hintName();
    try {
        hint->finish();
    } catch (...) {
        // Closed all the same.
        if (self)
            hintFinished(hint, name);
        throw;
    }
    if (self)
        hintFinished(hint, name);
}

void WalkthroughController::hintFinished(WalkthroughHint* hint, const QString& name)
{
    gotoState(name, Finished);
    m_shownHints.remove(hint);
}

void WalkthroughController::mousePressed(QObject* object)
{
    if (m_shownHints.isEmpty() || isInsideHint(object))
        return;
    const QPointer<WalkthroughController> self(this);
    const QString name = targetName(object);
    for (const QPointer<WalkthroughHint>& hint : guardedCopy(m_shownHints)) {
        if (hint && m_shownHints.contains(hint) && hint->widgetName() == name)
            hint->finish();
        if (!self)
            return;
    }
}

void WalkthroughController::enteredState()
{
    // New states come last; what slots do from here on is no longer part of re-entering the others.
    m_silence.clear();
    const auto hints = m_conditionHints.values(static_cast<QAbstractState*>(sender()));
    for (WalkthroughHint* hint : hints)
        --m_unmetConditions[hint];
    m_showTimer.start();
}

void WalkthroughController::exitedState()
{
    auto* state = static_cast<QAbstractState*>(sender());
    const auto hints = m_conditionHints.values(state);
    for (WalkthroughHint* hint : hints) {
        const auto counted = m_unmetThoughActive.find(state, hint);
        if (counted != m_unmetThoughActive.end())
            m_unmetThoughActive.erase(counted);
        else
            ++m_unmetConditions[hint];
    }
    m_showTimer.start();
}

void WalkthroughController::countConditionsAnew()
{
    m_unmetThoughActive.clear();
    for (int& unmet : m_unmetConditions)
        unmet = 0;
    for (WalkthroughHint* hint : std::as_const(m_conditionHints))
        ++m_unmetConditions[hint];
}

void WalkthroughController::showOrHideHints()
{
    const QPointer<WalkthroughController> self(this);
    const auto hints = guardedCopy(m_conditionHints);
    for (const QPointer<WalkthroughHint>& hint : hints) {
        if (hint && m_unmetConditions.contains(hint))
            showOrHideHint(hint);
        if (!self)
            return;
    }
}

void WalkthroughController::showOrHideHint(WalkthroughHint* hint)
{
    if (m_unmetConditions[hint] != 0) {
        if (m_shownHints.contains(hint))
            hint->finish();
        return;
    }

    const QPointer<WalkthroughController> self(this);
    const QPointer<WalkthroughHint> alive(hint);
    const QList<QWidget*> widgets = m_targetWidgets.values(hint->widgetName());
    if (!m_shownHints.contains(hint) && !widgets.isEmpty()) {
        if (m_avoidWidget)
            hint->setAvoidWidget(m_avoidWidget);
        QSet<QWidget*> targets(widgets.cbegin(), widgets.cend());
        targets.remove(nullptr);
        try {
            hint->start(targets);
        } catch (...) {
            // Not shown, so that nothing would finish it: its frame must not show it later.
            if (alive)
                hint->abandonStart();
            throw;
        }
        if (!self || !alive)
            return;
        m_shownHints.insert(hint);
    }
    if (m_shownHints.contains(hint) && widgets.isEmpty())
        hint->finish();
}

void WalkthroughController::disableHintsForSession()
{
    setEnabled(false);
}

void WalkthroughController::disableHintsForever()
{
    setEnabled(false);
    Q_EMIT hintsDisabledForever();
}

void WalkthroughController::executeQueuedStates()
{
    const QList<QPointer<QAbstractState>> queued = std::exchange(m_queuedStates, {});
    int next = 0;
    while (next < queued.size() && isRunning()) {
        // States of one name in different groups, as setEnabled() queues them, are entered in one step.
        QVector<QAbstractState*> together;
        QSet<const QState*> groups;
        for (; next < queued.size(); ++next) {
            QAbstractState* state = queued.at(next);
            if (!state)
                continue;
            if (!together.isEmpty() &&
                (state->objectName() != together.first()->objectName() || groups.contains(state->parentState())))
                break;
            together.append(state);
            groups.insert(state->parentState());
        }
        enterTogether(together);
    }
}

void WalkthroughController::clearQueuedStates()
{
    m_queuedStates.clear();
}

bool WalkthroughController::isActive(const QString& path) const
{
    const QStringList names = path.split(PathSeparator, Qt::KeepEmptyParts);
    const QState* group = childState(m_rootState, names.value(0));
    QState* state = group ? childState(group, names.value(1)) : nullptr;
    return state && configuration().contains(state);
}

/// Whether the state's group was made while the machine was running already, which does not enter it by itself.
bool WalkthroughController::isLate(const QAbstractState* state) const
{
    QState* group = state->parentState();
    return group && group->parentState() == m_rootState && !configuration().contains(group);
}

void WalkthroughController::enter(QAbstractState* state)
{
    if (isLate(state)) {
        enterLateGroups();
        if (isLate(state) && m_turn) {
            m_queuedStates.append(state);
            return;
        }
    }
    QEvent event(eventType());
    const QScopedValueRollback<const QEvent*> sent(m_sentEvent, &event);
    const QScopedValueRollback<bool> seen(m_sentEventSeen, false);
    QCoreApplication::sendEvent(state, &event);
}

void WalkthroughController::take(CommonStep& step)
{
    // Handed to the machine without the detour of sending it. On that way it would come by twice, by the filter on the
    // application and by the one on the object, and take transitions twice whose source is entered again.
    QEvent event(eventType());
    QStateMachine::eventFilter(step.trigger(), &event);
}

/// Enters states of different groups in one step of the machine: each step looks at every group, so that n of them cost
/// the square of what one does.
void WalkthroughController::enterTogether(const QVector<QAbstractState*>& states)
{
    if (std::any_of(states.cbegin(), states.cend(), [this](const QAbstractState* state) { return isLate(state); }))
        enterLateGroups();
    auto step = std::make_unique<CommonStep>(eventType());
    for (QAbstractState* state : states) {
        if (isLate(state)) {
            enter(state);
            continue;
        }
        if (!state->parentState())
            continue;
        // From every sibling: while the machine is busy it may be in another one when it comes to this step.
        const QVector<QState*> others = siblings(state);
        for (QState* other : others)
            step->add(*this, other, {state});
    }
    take(*step);
    const QSet<QAbstractState*> active = configuration();
    const bool isBusy = std::any_of(states.cbegin(), states.cend(),
                                    [&active](QAbstractState* state) { return !active.contains(state); });
    if (isBusy && active.contains(m_rootState)) {
        m_waitingSteps.push_back(std::move(step));
        waitForTurn();
    }
}

/// Has what waits done once the machine, which is busy, has come to it.
///
/// Asking it from the event loop again and again would not do: the slot that it is busy with may run one of its own, as
/// that of a dialog, for as long as the user likes.
void WalkthroughController::waitForTurn()
{
    if (m_turn)
        return;
    m_turn = std::make_unique<CommonStep>(eventType());
    m_turn->keep(std::exchange(m_waitingSteps, {}));
    // Without a target: no state is left for it.
    const QEventTransition* transition = m_turn->add(*this, m_rootState, {});
    connect(transition, &QAbstractTransition::triggered, this, &WalkthroughController::endTurn, Qt::QueuedConnection);
    take(*m_turn);
}

void WalkthroughController::endTurn()
{
    m_turn.reset();
    if (!m_waitingSteps.empty())
        waitForTurn();
    enterLateGroups();
    executeQueuedStates();
}

/// Enters groups that were made while the machine ran, in their initial states.
///
/// The machine enters a region of parallel states only together with all others. They are re-entered in the states that
/// they are in, with their signals held back, so that nobody but the new states notices.
void WalkthroughController::enterLateGroups()
{
    const QSet<QAbstractState*> active = configuration();
    QList<QAbstractState*> targets;
    for (QObject* child : m_rootState->children()) {
        const auto* group = qobject_cast<QState*>(child);
        if (group && group->initialState() && !active.contains(const_cast<QState*>(group)))
            targets.append(group->initialState());
    }
    if (targets.isEmpty() || !active.contains(m_rootState))
        return;

    const auto endOfSilence = qScopeGuard([this] { m_silence.clear(); }); // also where a slot of a new state throws
    QSet<QAbstractState*> innermost = active;
    for (QAbstractState* state : active) {
        m_silence.emplace_back(state);
        innermost.remove(state->parentState());
    }
    const QAbstractState* late = targets.first();
    targets.append(innermost.values());
    CommonStep step(eventType());
    step.add(*this, m_rootState, targets);
    take(step);
    m_silence.clear();
    if (isLate(late))
        waitForTurn();
}

} // namespace Kestrel::Gui
