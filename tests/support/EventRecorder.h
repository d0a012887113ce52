#pragma once

#include <QEvent>
#include <QList>
#include <QWidget>

/// A widget that notes the type of each event that reaches it and otherwise behaves like any other.
class EventRecorder : public QWidget
{
public:
    using QWidget::QWidget;

    int count(QEvent::Type type) const { return received.count(type); }

    QList<QEvent::Type> received;

protected:
    bool event(QEvent* event) override
    {
        received << event->type();
        return QWidget::event(event);
    }
};
