#pragma once

#include <QColor>
#include <QWidget>

namespace Gallery {

/// A sheet of paper with a line of text, one part of it highlighted: something to colour.
class NotePreview : public QWidget
{
    Q_OBJECT

public:
    explicit NotePreview(QString text, QWidget* parent = nullptr);

    void setPaper(const QColor& color);
    void setInk(const QColor& color);
    void setMarker(const QColor& color);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QFont textFont() const;

    QString m_text;
    QColor m_paper;
    QColor m_ink;
    QColor m_marker;
};

} // namespace Gallery
