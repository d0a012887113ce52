#pragma once

#include <QtGlobal>

#include <functional>

QT_BEGIN_NAMESPACE
class QObject;
QT_END_NAMESPACE

/// Which objects filter the events of which others at the moment.
///
/// Qt does not tell. The program has QObject::installEventFilter() and removeEventFilter() of its own, which the
/// dynamic linker finds before Qt's for every library but the one that they are in; they take notes and call Qt's. What
/// is counted is exact for the library and for Qt's widgets.
namespace FilterCensus {

qint64 count();
/// Those of one object, the application for instance.
qint64 countOn(const QObject* watched);
void visit(const std::function<void(QObject* watched, QObject* filter)>& visit);
/// For an object that is being deleted, which ends its filtering and that of its events.
void forget(QObject* object);

} // namespace FilterCensus
