#pragma once

#include <QtGlobal>

#include <functional>

QT_BEGIN_NAMESPACE
class QObject;
QT_END_NAMESPACE

/// Every QObject that lives in the process, whoever made it: Qt reports each to hooks that it has for tools.
namespace ObjectCensus {

/// Counts what is made from now on. Call it first of all.
void begin();

qint64 count();
/// Calls @p visit for each object; none is deleted meanwhile. @p visit must make none.
void visit(const std::function<void(QObject*)>& visit);

} // namespace ObjectCensus
