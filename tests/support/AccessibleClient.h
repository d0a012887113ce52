#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QList>
#include <QRect>
#include <QString>
#include <QVariant>

namespace TestSupport {

/// A program's widget as assistive technology knows it: where it is to be found on the accessibility bus.
struct AccessibleReference
{
    QString service;
    QDBusObjectPath path;
};

inline QDBusArgument& operator<<(QDBusArgument& argument, const AccessibleReference& reference)
{
    argument.beginStructure();
    argument << reference.service << reference.path;
    argument.endStructure();
    return argument;
}

inline const QDBusArgument& operator>>(const QDBusArgument& argument, AccessibleReference& reference)
{
    argument.beginStructure();
    argument >> reference.service >> reference.path;
    argument.endStructure();
    return argument;
}

/// What a screen reader does: looks at the trees of other programs, and acts on what it finds there, over D-Bus alone.
class AccessibleClient
{
public:
    /// Asks the session bus for the accessibility bus, which starts it.
    AccessibleClient()
        : m_bus(QDBusConnection::connectToBus(addressOfTheBus(), QStringLiteral("accessibility")))
    {
        qDBusRegisterMetaType<AccessibleReference>();
        qDBusRegisterMetaType<QList<AccessibleReference>>();
    }

    bool isConnected() const { return m_bus.isConnected(); }

    QList<AccessibleReference> programs() const
    {
        return children({QStringLiteral("org.a11y.atspi.Registry"),
                         QDBusObjectPath(QStringLiteral("/org/a11y/atspi/accessible/root"))});
    }

    QList<AccessibleReference> children(const AccessibleReference& parent) const
    {
        const QDBusMessage reply =
            call(parent, QStringLiteral("org.a11y.atspi.Accessible"), QStringLiteral("GetChildren"));
        return reply.arguments().isEmpty() ? QList<AccessibleReference>()
                                           : qdbus_cast<QList<AccessibleReference>>(reply.arguments().constFirst());
    }

    QString name(const AccessibleReference& object) const
    {
        return property(object, QStringLiteral("org.a11y.atspi.Accessible"), QStringLiteral("Name")).toString();
    }

    QString description(const AccessibleReference& object) const
    {
        return property(object, QStringLiteral("org.a11y.atspi.Accessible"), QStringLiteral("Description")).toString();
    }

    QString role(const AccessibleReference& object) const
    {
        return text(call(object, QStringLiteral("org.a11y.atspi.Accessible"), QStringLiteral("GetRoleName")));
    }

    /// Whether a sighted user sees it.
    bool isShowing(const AccessibleReference& object) const
    {
        constexpr uint showing = 25; // the number of the state on the bus
        const QDBusMessage reply =
            call(object, QStringLiteral("org.a11y.atspi.Accessible"), QStringLiteral("GetState"));
        if (reply.arguments().isEmpty())
            return false;
        const auto states = qdbus_cast<QList<uint>>(reply.arguments().constFirst());
        return !states.isEmpty() && (states.constFirst() & (1U << showing)) != 0;
    }

    /// Left, top, width and height on the screen.
    QRect extents(const AccessibleReference& object) const
    {
        QDBusMessage message =
            request(object, QStringLiteral("org.a11y.atspi.Component"), QStringLiteral("GetExtents"));
        constexpr uint screenCoordinates = 0;
        message << screenCoordinates;
        const QDBusMessage reply = m_bus.call(message);
        if (reply.arguments().isEmpty())
            return {};
        const auto argument = reply.arguments().constFirst().value<QDBusArgument>();
        int left = 0;
        int top = 0;
        int width = 0;
        int height = 0;
        argument.beginStructure();
        argument >> left >> top >> width >> height;
        argument.endStructure();
        return {left, top, width, height};
    }

    /// Does the action of this name. False where there is none.
    bool act(const AccessibleReference& object, const QString& action) const
    {
        const QString interface = QStringLiteral("org.a11y.atspi.Action");
        const int count = property(object, interface, QStringLiteral("NActions")).toInt();
        for (int i = 0; i < count; ++i) {
            QDBusMessage nameOf = request(object, interface, QStringLiteral("GetName"));
            nameOf << i;
            if (text(m_bus.call(nameOf)) != action)
                continue;
            QDBusMessage perform = request(object, interface, QStringLiteral("DoAction"));
            perform << i;
            return m_bus.call(perform).type() == QDBusMessage::ReplyMessage;
        }
        return false;
    }

    /// @p root and everything below it, parents first.
    QList<AccessibleReference> tree(const AccessibleReference& root) const
    {
        QList<AccessibleReference> all = {root};
        for (int i = 0; i < all.size(); ++i)
            all += children(all.at(i));
        return all;
    }

private:
    static QString addressOfTheBus()
    {
        const QDBusMessage reply = QDBusConnection::sessionBus().call(
            QDBusMessage::createMethodCall(QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
                                           QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress")));
        return text(reply);
    }

    static QString text(const QDBusMessage& reply)
    {
        return reply.arguments().isEmpty() ? QString() : reply.arguments().constFirst().toString();
    }

    static QDBusMessage request(const AccessibleReference& object, const QString& interface, const QString& method)
    {
        return QDBusMessage::createMethodCall(object.service, object.path.path(), interface, method);
    }

    QDBusMessage call(const AccessibleReference& object, const QString& interface, const QString& method) const
    {
        return m_bus.call(request(object, interface, method));
    }

    QVariant property(const AccessibleReference& object, const QString& interface, const QString& name) const
    {
        QDBusMessage message =
            request(object, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
        message << interface << name;
        const QDBusMessage reply = m_bus.call(message);
        return reply.arguments().isEmpty() ? QVariant()
                                           : reply.arguments().constFirst().value<QDBusVariant>().variant();
    }

    QDBusConnection m_bus;
};

} // namespace TestSupport

Q_DECLARE_METATYPE(TestSupport::AccessibleReference)
