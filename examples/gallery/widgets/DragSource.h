#pragma once

#include <QLabel>

namespace Gallery {

/// A label whose text can be dragged away.
class DragSource : public QLabel
{
    Q_OBJECT

public:
    explicit DragSource(const QString& text, QWidget* parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void startDrag();

    QPoint m_pressedAt;
};

} // namespace Gallery
