#include "Contracts.h"

#include <QMetaMethod>
#include <QMetaProperty>

namespace {

Contracts* current = nullptr;
QtMessageHandler previousHandler = nullptr;

bool namesTheLibrary(const QString& text)
{
    if (text.startsWith(QLatin1String("Could not parse stylesheet")))
        return false; // there was none worth parsing
    return text.contains(QLatin1String("Kestrel")) || text.contains(QLatin1String("KQt")) ||
           text.contains(QLatin1String("CustomSliderWithZeroTick"));
}

void listen(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (current && type != QtDebugMsg && type != QtInfoMsg && namesTheLibrary(text))
        current->note(QStringLiteral("Qt says: ") + text);
    if (type == QtFatalMsg)
        previousHandler(type, context, text);
}

} // namespace

Contracts::Contracts()
{
    current = this;
    previousHandler = qInstallMessageHandler(listen);
}

Contracts::~Contracts()
{
    qInstallMessageHandler(previousHandler);
    current = nullptr;
}

void Contracts::note(const QString& breach)
{
    if (!m_breaches.contains(breach))
        m_breaches << breach;
}

void Contracts::watch(QObject* object)
{
    if (m_watched.contains(object))
        return;
    m_watched.insert(object);
    connect(object, &QObject::destroyed, this, [this](QObject* gone) {
        m_watched.remove(gone);
        m_lastValues.remove(gone);
    });
    watchBooleans(object);
}

void Contracts::watchBooleans(QObject* object)
{
    const QMetaObject* meta = object->metaObject();
    const QMetaMethod slot = metaObject()->method(metaObject()->indexOfSlot("propertyNotified()"));
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        const QByteArray owner = property.enclosingMetaObject()->className();
        if (property.type() != QVariant::Bool || !property.hasNotifySignal() || !owner.startsWith("Kestrel"))
            continue;
        m_lastValues[object].insert(i, property.read(object));
        connect(object, property.notifySignal(), this, slot);
    }
}

void Contracts::propertyNotified()
{
    QObject* object = sender();
    if (!object)
        return;
    auto& lastValues = m_lastValues[object];
    for (auto value = lastValues.begin(); value != lastValues.end(); ++value) {
        const QMetaProperty property = object->metaObject()->property(value.key());
        if (property.notifySignalIndex() != senderSignalIndex())
            continue;
        const QVariant now = property.read(object);
        if (now == value.value())
            note(QStringLiteral("%1::%2 told a change without one")
                     .arg(QLatin1String(object->metaObject()->className()), QLatin1String(property.name())));
        value.value() = now;
    }
}
