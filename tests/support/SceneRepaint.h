#pragma once

#include <QCoreApplication>
#include <QGraphicsScene>
#include <QSignalSpy>

/// Whether @p action makes an item of @p scene ask to be painted anew, told by the scene's changed() signal.
template <typename Action>
bool schedulesRepaint(QGraphicsScene& scene, const Action& action)
{
    QCoreApplication::processEvents();
    QSignalSpy changed(&scene, &QGraphicsScene::changed);
    QCoreApplication::processEvents();
    changed.clear();
    action();
    QCoreApplication::processEvents();
    return !changed.isEmpty();
}
