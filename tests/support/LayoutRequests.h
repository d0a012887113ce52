#pragma once

#include "EventRecorder.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace TestSupport {

/// Whether a change of the font that reaches @p child makes it ask its parent for a new layout, which is what
/// QWidget::changeEvent() does. @p child gets a new parent for that and has none afterwards.
inline bool fontChangeReachesQWidget(QWidget* child)
{
    EventRecorder parent;
    child->setParent(&parent);
    child->show();
    parent.show();
    constexpr int rounds = 10; // each layout inside another settles in one of its own
    for (int i = 0; i < rounds; ++i)
        QCoreApplication::sendPostedEvents();
    parent.received.clear();
    QEvent change(QEvent::FontChange);
    QCoreApplication::sendEvent(child, &change);
    QCoreApplication::sendPostedEvents();
    child->setParent(nullptr);
    return parent.count(QEvent::LayoutRequest) > 0;
}

} // namespace TestSupport
