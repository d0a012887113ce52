#include <KQt/Ui/Platforms/linux/LauncherEntryIndicator.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QGuiApplication>
#include <QWindow>

#include <algorithm>

namespace Kestrel::Gui {

namespace {

/// Milliseconds. No second then has more than 17 updates, so that with the two clearings it stays below 20 messages.
constexpr qint64 updateInterval = 60;

const QString& desktopSuffix()
{
    static const QString suffix = QStringLiteral(".desktop");
    return suffix;
}

/// As docks know the application; empty where it has no desktop file.
QString applicationUri()
{
    QString name = QGuiApplication::desktopFileName();
    if (name.isEmpty())
        return {};
    if (!name.endsWith(desktopSuffix()))
        name += desktopSuffix();
    return QStringLiteral("application://") + name;
}

/// Docks tell applications apart by their URI alone; the path only has to differ, and is made as all others make it:
/// with the hash function that glib has for strings.
QString objectPath(const QString& uri)
{
    constexpr quint32 start = 5381;
    constexpr quint32 factor = 33;
    quint32 hash = start;
    const QByteArray bytes = uri.toUtf8();
    for (const char byte : bytes)
        hash = hash * factor + static_cast<quint32>(static_cast<signed char>(byte));
    return QStringLiteral("/com/canonical/unity/launcherentry/%1").arg(hash);
}

QVariantMap entryProperties(double progress, bool visible, bool urgent)
{
    return {{QStringLiteral("progress"), progress},
            {QStringLiteral("progress-visible"), visible},
            {QStringLiteral("urgent"), urgent}};
}

QVariantMap clearedProperties()
{
    return entryProperties(0.0, false, false);
}

} // namespace

LauncherEntryIndicator::LauncherEntryIndicator()
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.callOnTimeout(&m_timer, [this] { sendIfChanged(); });
}

LauncherEntryIndicator::~LauncherEntryIndicator()
{
    sendIfChanged();
}

void LauncherEntryIndicator::setWindow(QWindow* window)
{
    if (!window)
        return;
    m_applicationUri = applicationUri();
    if (m_applicationUri.isEmpty() || !QDBusConnection::sessionBus().isConnected())
        return;
    m_hasWindow = true;
    QObject::connect(window, &QObject::destroyed, &m_timer, [this] { windowDeleted(); });
    // A process of this application that crashed may have left something behind.
    send(clearedProperties());
}

void LauncherEntryIndicator::stateChanged()
{
    if (m_hasWindow)
        scheduleUpdate();
}

QVariantMap LauncherEntryIndicator::properties() const
{
    if (look() == Look::Hidden)
        return clearedProperties();
    const double range = static_cast<double>(maximum()) - minimum();
    const double way = static_cast<double>(value()) - minimum();
    return entryProperties(range > 0 ? way / range : 0.0, true, look() == Look::Stopped);
}

void LauncherEntryIndicator::scheduleUpdate()
{
    const qint64 passed = m_sinceUpdate.isValid() ? m_sinceUpdate.elapsed() : updateInterval;
    m_timer.start(static_cast<int>(std::max<qint64>(0, updateInterval - passed)));
}

void LauncherEntryIndicator::sendIfChanged()
{
    if (!m_hasWindow || properties() == m_sent)
        return;
    m_sinceUpdate.start();
    send(properties());
}

void LauncherEntryIndicator::send(const QVariantMap& properties)
{
    m_sent = properties;
    QDBusMessage update = QDBusMessage::createSignal(
        objectPath(m_applicationUri), QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"));
    update << m_applicationUri << properties;
    QDBusConnection::sessionBus().send(update);
}

void LauncherEntryIndicator::windowDeleted()
{
    m_hasWindow = false;
    m_timer.stop();
    if (m_sent != clearedProperties())
        send(clearedProperties());
}

} // namespace Kestrel::Gui
