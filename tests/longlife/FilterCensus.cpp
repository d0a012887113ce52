#include "FilterCensus.h"

#include <QObject>

#include <dlfcn.h>

#include <mutex>
#include <unordered_map>
#include <unordered_set>

namespace {

using Function = void (*)(QObject*, QObject*);
using Relation = std::unordered_map<const QObject*, std::unordered_set<QObject*>>;

/// Both directions, so that a deleted object is found without a search. Never deleted, as Qt's last objects go at the
/// end.
struct Filters
{
    std::mutex mutex;
    Relation ofWatched;
    Relation ofFilter;
    qint64 count = 0;

    static Filters& all()
    {
        static auto* const filters = new Filters;
        return *filters;
    }

    void add(QObject* watched, QObject* filter)
    {
        if (!ofWatched[watched].insert(filter).second)
            return;
        ofFilter[filter].insert(watched);
        ++count;
    }

    void remove(QObject* watched, QObject* filter)
    {
        if (take(ofWatched, watched, filter)) {
            take(ofFilter, filter, watched);
            --count;
        }
    }

private:
    static bool take(Relation& relation, const QObject* key, QObject* value)
    {
        const auto found = relation.find(key);
        if (found == relation.end() || found->second.erase(value) == 0)
            return false;
        if (found->second.empty())
            relation.erase(found);
        return true;
    }
};

/// The function that would have been called without this program's.
Function qtFunction(const char* mangledName)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, mangledName));
}

} // namespace

#define KQTUI_INSTALL_EVENT_FILTER "_ZN7QObject18installEventFilterEPS_"
#define KQTUI_REMOVE_EVENT_FILTER "_ZN7QObject17removeEventFilterEPS_"

__attribute__((visibility("default"))) void countedInstall(QObject* watched,
                                                           QObject* filter) __asm__(KQTUI_INSTALL_EVENT_FILTER);
__attribute__((visibility("default"))) void countedRemove(QObject* watched,
                                                          QObject* filter) __asm__(KQTUI_REMOVE_EVENT_FILTER);

void countedInstall(QObject* watched, QObject* filter)
{
    static const Function install = qtFunction(KQTUI_INSTALL_EVENT_FILTER);
    if (watched && filter) {
        Filters& filters = Filters::all();
        const std::lock_guard<std::mutex> lock(filters.mutex);
        filters.add(watched, filter);
    }
    install(watched, filter);
}

void countedRemove(QObject* watched, QObject* filter)
{
    static const Function remove = qtFunction(KQTUI_REMOVE_EVENT_FILTER);
    if (watched && filter) {
        Filters& filters = Filters::all();
        const std::lock_guard<std::mutex> lock(filters.mutex);
        filters.remove(watched, filter);
    }
    remove(watched, filter);
}

qint64 FilterCensus::count()
{
    Filters& filters = Filters::all();
    const std::lock_guard<std::mutex> lock(filters.mutex);
    return filters.count;
}

qint64 FilterCensus::countOn(const QObject* watched)
{
    Filters& filters = Filters::all();
    const std::lock_guard<std::mutex> lock(filters.mutex);
    const auto found = filters.ofWatched.find(watched);
    return found == filters.ofWatched.end() ? 0 : static_cast<qint64>(found->second.size());
}

void FilterCensus::visit(const std::function<void(QObject*, QObject*)>& visit)
{
    Filters& filters = Filters::all();
    const std::lock_guard<std::mutex> lock(filters.mutex);
    for (const auto& [filter, watched] : filters.ofFilter) {
        for (QObject* const object : watched)
            visit(object, const_cast<QObject*>(filter));
    }
}

void FilterCensus::forget(QObject* object)
{
    Filters& filters = Filters::all();
    const std::lock_guard<std::mutex> lock(filters.mutex);
    const auto own = filters.ofWatched.find(object);
    if (own != filters.ofWatched.end()) {
        const auto ownFilters = own->second;
        for (QObject* const filter : ownFilters)
            filters.remove(object, filter);
    }
    const auto others = filters.ofFilter.find(object);
    if (others != filters.ofFilter.end()) {
        const auto watched = others->second;
        for (QObject* const one : watched)
            filters.remove(one, object);
    }
}
