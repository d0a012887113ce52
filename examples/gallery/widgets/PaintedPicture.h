#pragma once

#include <QWidget>

namespace Gallery {

/// A picture to pick colours from: a spectrum with a sun and hills, drawn in code.
class PaintedPicture : public QWidget
{
    Q_OBJECT

public:
    explicit PaintedPicture(QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace Gallery
