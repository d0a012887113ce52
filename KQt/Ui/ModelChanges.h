#pragma once

#include <QAbstractItemModel>
#include <QVector>

namespace Kestrel::Gui::Detail {

/// Calls @p changed after every change of @p model that the size of an item may depend on, its end included, until
/// @p context dies or the returned connections are cut.
template <typename Changed>
QVector<QMetaObject::Connection> onModelChange(const QAbstractItemModel* model, const QObject* context, Changed changed)
{
    QVector<QMetaObject::Connection> connections;
    const auto watch = [&](auto signal) {
        connections.append(QObject::connect(model, signal, context, [changed] { changed(); }));
    };
    watch(&QAbstractItemModel::dataChanged);
    watch(&QAbstractItemModel::rowsInserted);
    watch(&QAbstractItemModel::rowsRemoved);
    watch(&QAbstractItemModel::rowsMoved);
    watch(&QAbstractItemModel::columnsInserted);
    watch(&QAbstractItemModel::columnsRemoved);
    watch(&QAbstractItemModel::columnsMoved);
    watch(&QAbstractItemModel::layoutChanged);
    watch(&QAbstractItemModel::modelReset);
    watch(&QObject::destroyed);
    return connections;
}

} // namespace Kestrel::Gui::Detail
