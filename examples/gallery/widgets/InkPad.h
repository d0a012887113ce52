#pragma once

#include <QFrame>
#include <QPainterPath>

namespace Gallery {

/// A pad to scribble on, which makes visible what mouse events reach a widget: pressing and moving leaves ink, and the
/// border lights up while the mouse is inside.
class InkPad : public QFrame
{
    Q_OBJECT

public:
    explicit InkPad(QString hint, QWidget* parent = nullptr);

    QSize sizeHint() const override;

    bool hasInk() const { return !m_ink.isEmpty(); }
    void clear();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void setLit(bool lit);

    QString m_hint;
    QPainterPath m_ink;
    bool m_lit = false;
};

} // namespace Gallery
