#pragma once

#include <QAccessible>
#include <QVector>

#include <QtTest>

#include <algorithm>

namespace TestSupport {

/// Leaves a test function that looks at updates where none can be sent. Elsewhere it waits for Qt's bridge.
#define REQUIRE_ASSISTIVE_TECHNOLOGY()                                                                                 \
    do {                                                                                                               \
        if (!qEnvironmentVariableIsSet("QT_LINUX_ACCESSIBILITY_ALWAYS_ON"))                                            \
            QSKIP("nobody is told anything where there is no assistive technology");                                   \
        QTRY_VERIFY_WITH_TIMEOUT(QAccessible::isActive(), 20000);                                                      \
    } while (false)

/// Notes what assistive technology would be told while it exists. One at a time.
class AccessibleUpdates
{
public:
    struct Update
    {
        QObject* object;
        QAccessible::Event type;
        int child;
    };

    AccessibleUpdates()
    {
        noted().clear();
        m_previous = QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
            noted().append({event->object(), event->type(), event->child()});
        });
    }
    ~AccessibleUpdates() { QAccessible::installUpdateHandler(m_previous); }

    AccessibleUpdates(const AccessibleUpdates&) = delete;
    AccessibleUpdates& operator=(const AccessibleUpdates&) = delete;

    static QVector<Update>& noted()
    {
        static QVector<Update> updates;
        return updates;
    }

    int count(const QObject* object, QAccessible::Event type) const
    {
        return int(std::count_if(noted().cbegin(), noted().cend(), [object, type](const Update& update) {
            return update.object == object && update.type == type;
        }));
    }

private:
    QAccessible::UpdateHandler m_previous;
};

inline QAccessibleInterface* accessible(QObject* object)
{
    return QAccessible::queryAccessibleInterface(object);
}

inline QString nameOf(QObject* object)
{
    return accessible(object)->text(QAccessible::Name);
}

inline QString valueOf(QObject* object)
{
    return accessible(object)->text(QAccessible::Value);
}

inline QString descriptionOf(QObject* object)
{
    return accessible(object)->text(QAccessible::Description);
}

inline void act(QAccessibleInterface* target, const QString& action)
{
    target->actionInterface()->doAction(action);
}

inline void press(QAccessibleInterface* target)
{
    act(target, QAccessibleActionInterface::pressAction());
}

} // namespace TestSupport
