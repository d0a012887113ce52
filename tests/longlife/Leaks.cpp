#include "Leaks.h"

#include <QCoreApplication>
#include <QMap>
#include <QVector>
#include <QWidget>

#include <memory>

namespace {

/// Made before the first round: none of them is one more.
struct Crowd
{
    QVector<QObject*> members;
    int next = 0;

    Crowd()
    {
        constexpr int size = 1000;
        for (int i = 0; i < size; ++i)
            members << new QObject;
    }
    ~Crowd() { qDeleteAll(members); }
    Q_DISABLE_COPY(Crowd)

    QObject* anyOther() { return members.at(next++ % members.size()); }
};

} // namespace

std::function<void()> leakOf(const QString& kind)
{
    const auto crowd = std::make_shared<Crowd>();
    const QMap<QString, std::function<void()>> leaks = {
        {QStringLiteral("object"), [] { new QObject; }},
        {QStringLiteral("widget"), [] { new QWidget; }},
        {QStringLiteral("filter"), [crowd] { crowd->anyOther()->installEventFilter(crowd->members.last()); }},
        {QStringLiteral("application-filter"),
         [crowd] { QCoreApplication::instance()->installEventFilter(crowd->members.first()); }},
        {QStringLiteral("connection"),
         [crowd] {
             QObject::connect(crowd->members.first(), &QObject::objectNameChanged, crowd->members.last(),
                              &QObject::deleteLater);
         }},
        {QStringLiteral("memory"),
         [] {
             constexpr int size = 65536;
             // Written to, so that the compiler does not leave it out.
             *static_cast<volatile char*>(new char[size]) = 1;
         }},
    };
    return leaks.value(kind);
}
