#include "Counters.h"

#include "FilterCensus.h"
#include "ObjectCensus.h"

#include <QApplication>
#include <QMetaMethod>
#include <QThread>
#include <QWidget>

#include <cstddef>
#include <malloc.h>

/// Of AddressSanitizer's runtime, where there is one.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
extern "C" __attribute__((weak)) std::size_t __sanitizer_get_current_allocated_bytes();

namespace {

using Kinds = QMap<QByteArray, int>;

/// QObject's protected questions, for any object.
struct Connections : QObject
{
    static int count(const QObject& object, const QMetaMethod& signal)
    {
        constexpr auto isConnected = &Connections::isSignalConnected;
        constexpr auto receivers = &Connections::receivers;
        if (!(object.*isConnected)(signal))
            return 0;
        return (object.*receivers)(QByteArray("2" + signal.methodSignature()).constData());
    }
};

/// Calls @p found for each signal of an object of this thread that has receivers. A slot that is connected twice counts
/// twice.
void visitConnections(const std::function<void(const QMetaObject&, const QMetaMethod&, int)>& found)
{
    ObjectCensus::visit([&found](QObject* object) {
        if (object->thread() != QThread::currentThread())
            return;
        const QMetaObject* const meta = object->metaObject();
        for (int i = 0; i < meta->methodCount(); ++i) {
            const QMetaMethod method = meta->method(i);
            // Those with fewer arguments are the same signal once more.
            if (method.methodType() != QMetaMethod::Signal || method.attributes() & QMetaMethod::Cloned)
                continue;
            const int receivers = Connections::count(*object, method);
            if (receivers > 0)
                found(*meta, method, receivers);
        }
    });
}

qint64 connections()
{
    qint64 count = 0;
    visitConnections([&count](const QMetaObject&, const QMetaMethod&, int receivers) { count += receivers; });
    return count;
}

Kinds connectionKinds()
{
    Kinds kinds;
    visitConnections([&kinds](const QMetaObject& meta, const QMetaMethod& signal, int receivers) {
        kinds[QByteArray(meta.className()) + "::" + signal.methodSignature()] += receivers;
    });
    return kinds;
}

Kinds objectKinds()
{
    Kinds kinds;
    ObjectCensus::visit([&kinds](QObject* object) { ++kinds[object->metaObject()->className()]; });
    return kinds;
}

Kinds filterKinds()
{
    Kinds kinds;
    FilterCensus::visit([&kinds](QObject* watched, QObject* filter) {
        ++kinds[QByteArray(filter->metaObject()->className()) + " on " + watched->metaObject()->className()];
    });
    return kinds;
}

Kinds widgetKinds(const QWidgetList& widgets)
{
    Kinds kinds;
    for (const QWidget* widget : widgets)
        ++kinds[widget->metaObject()->className()];
    return kinds;
}

/// Bytes that were asked for and not given back, small blocks and large ones. AddressSanitizer counts them to the byte;
/// with glibc's allocator, what it keeps for the next request of a thread counts as in use.
qint64 heapInUse()
{
    if (__sanitizer_get_current_allocated_bytes)
        return static_cast<qint64>(__sanitizer_get_current_allocated_bytes());
    const struct mallinfo2 info = mallinfo2();
    return static_cast<qint64>(info.uordblks) + static_cast<qint64>(info.hblkhd);
}

// Steady runs differ by this much: glibc keeps up to seven freed blocks of each size up to 1 KiB for the thread that
// freed them, and counts them as in use; so does Qt with fonts and glyphs, until its timers drop them.
constexpr qint64 HeapTolerance = 65536;
// A spin box, a graphics view or a scroll area that was under a style sheet leaves 240 bytes in Qt's cache of their
// rules, unless one at the same address takes them over: a window with every component leaves up to 960 bytes. Counted
// to the byte, nothing else grows.
constexpr double HeapTolerancePerRound = 1024;

} // namespace

const std::vector<Counter>& counters()
{
    using Limit = Counter::Limit;
    static const std::vector<Counter> all = {
        {"objects", ObjectCensus::count, Limit::WarmedUp, 0, 0, objectKinds},
        {"widgets", [] { return qint64(QApplication::allWidgets().size()); }, Limit::WarmedUp, 0, 0,
         [] { return widgetKinds(QApplication::allWidgets()); }},
        {"windows", [] { return qint64(QApplication::topLevelWidgets().size()); }, Limit::WarmedUp, 0, 0,
         [] { return widgetKinds(QApplication::topLevelWidgets()); }},
        {"event filters", FilterCensus::count, Limit::WarmedUp, 0, 0, filterKinds},
        // They cost at each event of the application: even one that does not become more is one too many.
        {"filters on the application", [] { return FilterCensus::countOn(QCoreApplication::instance()); },
         Limit::Untouched, 0, 0, filterKinds},
        {"connections", connections, Limit::WarmedUp, 0, 0, connectionKinds},
        {"heap", heapInUse, Limit::WarmedUp, HeapTolerance, HeapTolerancePerRound, {}},
    };
    return all;
}
