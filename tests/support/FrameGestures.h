#pragma once

#include <QGraphicsItem>
#include <QGraphicsSceneHoverEvent>
#include <QGraphicsSceneMouseEvent>

/// Mouse and hover events made by hand, for graphics items with or without a scene.
namespace FrameGestures {

/// Hands @p event to @p item as its scene would.
inline bool deliver(QGraphicsItem& item, QEvent& event)
{
    struct Access : QGraphicsItem
    {
        static bool deliver(QGraphicsItem& item, QEvent& event) { return (item.*(&Access::sceneEvent))(&event); }
    };
    return Access::deliver(item, event);
}

inline void mouse(QGraphicsItem& item, QEvent::Type type, const QPointF& scenePos, Qt::MouseButton button,
                  Qt::MouseButtons buttons)
{
    QGraphicsSceneMouseEvent event(type);
    event.setScenePos(scenePos);
    event.setPos(item.mapFromScene(scenePos));
    event.setButton(button);
    event.setButtons(buttons);
    deliver(item, event);
}

inline void press(QGraphicsItem& item, const QPointF& scenePos, Qt::MouseButton button = Qt::LeftButton)
{
    mouse(item, QEvent::GraphicsSceneMousePress, scenePos, button, button);
}

inline void move(QGraphicsItem& item, const QPointF& scenePos, Qt::MouseButtons buttons = Qt::LeftButton)
{
    mouse(item, QEvent::GraphicsSceneMouseMove, scenePos, Qt::NoButton, buttons);
}

inline void release(QGraphicsItem& item, const QPointF& scenePos, Qt::MouseButton button = Qt::LeftButton)
{
    mouse(item, QEvent::GraphicsSceneMouseRelease, scenePos, button, Qt::NoButton);
}

inline void hover(QGraphicsItem& item, const QPointF& scenePos, QEvent::Type type = QEvent::GraphicsSceneHoverMove)
{
    QGraphicsSceneHoverEvent event(type);
    event.setScenePos(scenePos);
    event.setPos(item.mapFromScene(scenePos));
    deliver(item, event);
}

inline void leave(QGraphicsItem& item, const QPointF& scenePos)
{
    hover(item, scenePos, QEvent::GraphicsSceneHoverLeave);
}

} // namespace FrameGestures
