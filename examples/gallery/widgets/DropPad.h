#pragma once

#include <QLabel>

namespace Gallery {

/// A field that takes dropped text, shows it, and lights up while something hovers over it that it would take.
class DropPad : public QLabel
{
    Q_OBJECT

public:
    explicit DropPad(const QString& hint, QWidget* parent = nullptr);

Q_SIGNALS:
    void dragEntered();
    void dropped(const QString& text);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void setLit(bool lit);
};

} // namespace Gallery
