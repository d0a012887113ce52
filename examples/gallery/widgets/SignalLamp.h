#pragma once

#include <QTimer>
#include <QWidget>

namespace Gallery {

/// A lamp beside the name of a signal: flashes when the signal comes, and keeps showing its last arguments.
class SignalLamp : public QWidget
{
    Q_OBJECT

public:
    explicit SignalLamp(QString signal, QWidget* parent = nullptr);

    QString value() const { return m_value; }
    bool isLit() const { return m_off.isActive(); }
    /// @p value is what the signal brought along; may be empty.
    void flash(const QString& value);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_signal;
    QString m_value;
    QTimer m_off;
};

} // namespace Gallery
