#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <functional>

namespace TestSupport {

/// Calls @p action from the event loop once @p condition holds; gives up after ten seconds.
inline void onceTrue(const std::function<bool()>& condition, const std::function<void()>& action)
{
    auto* timer = new QTimer(QCoreApplication::instance());
    timer->setInterval(1);
    QElapsedTimer elapsed;
    elapsed.start();
    QObject::connect(timer, &QTimer::timeout, timer, [timer, elapsed, condition, action] {
        constexpr qint64 patience = 10000;
        if (elapsed.hasExpired(patience)) {
            timer->deleteLater();
            return;
        }
        if (!condition())
            return;
        timer->stop();
        timer->deleteLater();
        action();
    });
    timer->start();
}

} // namespace TestSupport
