#pragma once

#include <QMetaMethod>
#include <QMetaProperty>
#include <QStringList>

namespace TestSupport {

/// The properties that @p meta adds to its base, in order: "name type", followed by the change signal where there is
/// one. One that is not readable, writable, designable, scriptable and stored is followed by "!".
inline QStringList ownProperties(const QMetaObject& meta)
{
    QStringList listing;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        QString line = QStringLiteral("%1 %2").arg(QLatin1String(property.name()), QLatin1String(property.typeName()));
        if (property.hasNotifySignal())
            line += QLatin1Char(' ') + QString::fromLatin1(property.notifySignal().name());
        if (!property.isReadable() || !property.isWritable() || !property.isDesignable() || !property.isScriptable() ||
            !property.isStored())
            line += QLatin1Char('!');
        listing << line;
    }
    return listing;
}

/// The signals and slots that @p meta adds to its base, in order, signals as "signal name(types)".
inline QStringList ownMethods(const QMetaObject& meta)
{
    QStringList listing;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        const QString kind = method.methodType() == QMetaMethod::Signal ? QStringLiteral("signal ") : QString();
        listing << kind + QString::fromLatin1(method.methodSignature());
    }
    return listing;
}

} // namespace TestSupport
