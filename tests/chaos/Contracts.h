#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QStringList>
#include <QVariant>

/// Watches what must be true whatever happens: a property of two states tells a change only where there is one, and Qt
/// has nothing to say about the library's classes.
class Contracts : public QObject
{
    Q_OBJECT

public:
    Contracts();
    ~Contracts() override;

    /// Watches @p object from now on.
    void watch(QObject* object);
    void note(const QString& breach);
    QStringList breaches() const { return m_breaches; }

private Q_SLOTS:
    void propertyNotified();

private:
    void watchBooleans(QObject* object);

    QStringList m_breaches;
    QHash<QObject*, QHash<int, QVariant>> m_lastValues; ///< by object and property
    QSet<QObject*> m_watched;
};
