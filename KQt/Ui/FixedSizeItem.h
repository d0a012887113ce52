#pragma once

#include <QLayoutItem>
#include <QWidget>

namespace Kestrel::Gui {

/// Layout item of a widget with a fixed size (QWidget::setFixedSize()): centred in its cell, as any other would be.
///
/// Unlike QWidgetItem it never asks the widget for its size hint. A size hint polishes the widget, which under a style
/// sheet is most of what a widget costs, and for a fixed size it changes nothing.
class FixedSizeItem final : public QWidgetItem
{
public:
    explicit FixedSizeItem(QWidget* widget)
        : QWidgetItem(widget)
    {
    }

    QSize sizeHint() const override { return isEmpty() ? QSize(0, 0) : wid->minimumSize(); }
    QSize minimumSize() const override { return sizeHint(); }
    QSize maximumSize() const override { return sizeHint(); }

    void setGeometry(const QRect& rect) override
    {
        if (isEmpty())
            return;
        const QSize free = rect.size() - wid->minimumSize();
        wid->setGeometry(QRect(rect.topLeft() + QPoint(free.width() / 2, free.height() / 2), wid->minimumSize()));
    }
};

} // namespace Kestrel::Gui
