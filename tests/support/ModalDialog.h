#pragma once

#include <QApplication>
#include <QDeadlineTimer>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <utility>

namespace TestSupport {

/// Operates the dialog that a call shows and waits for, like a user: as soon as it is there, from inside its event
/// loop.
///
///     ModalDialog<QFileDialog> dialog([](QFileDialog& shown) { ... shown.reject(); });
///     StandardDialogs::getOpenFileName();
///     QVERIFY(dialog.wasShown());
///
/// A dialog that the operation leaves open, or one of another kind, is cancelled: the call returns whatever happens.
template <typename Dialog>
class ModalDialog
{
public:
    explicit ModalDialog(std::function<void(Dialog&)> operate)
        : m_operate(std::move(operate))
    {
        constexpr int interval = 5; // milliseconds
        m_timer.setInterval(interval);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
        m_timer.start();
    }

    bool wasShown() const { return m_shown; }

private:
    void look()
    {
        const QPointer<QWidget> widget = QApplication::activeModalWidget();
        if (!widget || !widget->isVisible())
            return;
        m_timer.stop();
        if (auto* dialog = qobject_cast<Dialog*>(widget.data())) {
            m_shown = true;
            m_operate(*dialog);
        }
        if (widget)
            QMetaObject::invokeMethod(widget.data(), "reject", Qt::QueuedConnection);
    }

    std::function<void(Dialog&)> m_operate;
    QTimer m_timer;
    bool m_shown = false;
};

} // namespace TestSupport
