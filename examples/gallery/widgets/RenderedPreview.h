#pragma once

#include <QImage>
#include <QWidget>

namespace Gallery {

/// An image on a chequered ground, which shows where it is translucent.
class RenderedPreview : public QWidget
{
    Q_OBJECT

public:
    explicit RenderedPreview(QWidget* parent = nullptr);

    /// Scaled down to the widget's width.
    void setImage(const QImage& image);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QImage m_image;
};

} // namespace Gallery
