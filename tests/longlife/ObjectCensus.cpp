#include "ObjectCensus.h"

#include "FilterCensus.h"

#include <QObject>

#include <mutex>
#include <unordered_set>

/// Qt's table of hooks, exported and of a fixed layout for the sake of tools: the functions that get each new object,
/// and each one that is being deleted.
extern Q_CORE_EXPORT quintptr qtHookData[];

namespace {

constexpr int AddQObject = 3;
constexpr int RemoveQObject = 4;

// Qt's own threads have objects as well.
std::mutex& guard()
{
    static std::mutex mutex;
    return mutex;
}

// Never deleted: Qt's last objects go when the process ends.
std::unordered_set<QObject*>& living()
{
    static auto* const objects = new std::unordered_set<QObject*>;
    return *objects;
}

void added(QObject* object)
{
    const std::lock_guard<std::mutex> lock(guard());
    living().insert(object);
}

void removed(QObject* object)
{
    FilterCensus::forget(object);
    const std::lock_guard<std::mutex> lock(guard());
    living().erase(object);
}

} // namespace

void ObjectCensus::begin()
{
    guard();
    living();
    qtHookData[AddQObject] = reinterpret_cast<quintptr>(&added);
    qtHookData[RemoveQObject] = reinterpret_cast<quintptr>(&removed);
}

qint64 ObjectCensus::count()
{
    const std::lock_guard<std::mutex> lock(guard());
    return static_cast<qint64>(living().size());
}

void ObjectCensus::visit(const std::function<void(QObject*)>& visit)
{
    const std::lock_guard<std::mutex> lock(guard());
    for (QObject* const object : living())
        visit(object);
}
