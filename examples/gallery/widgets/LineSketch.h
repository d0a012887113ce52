#pragma once

#include <QPen>
#include <QWidget>

namespace Gallery {

/// A line drawn with a pen, curved so that joints and dashes can be judged.
class LineSketch : public QWidget
{
    Q_OBJECT

public:
    explicit LineSketch(QWidget* parent = nullptr);

    void setPen(const QPen& pen);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPen m_pen;
};

} // namespace Gallery
