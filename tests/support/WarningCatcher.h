#pragma once

#include <QStringList>
#include <QtGlobal>

namespace TestSupport {

/// Collects the warnings and worse that Qt or the library prints while it exists, instead of printing them.
/// One at a time.
class WarningCatcher
{
public:
    WarningCatcher()
    {
        caught().clear();
        m_previous = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
            if (type != QtDebugMsg && type != QtInfoMsg)
                caught().append(text);
        });
    }
    ~WarningCatcher() { qInstallMessageHandler(m_previous); }

    WarningCatcher(const WarningCatcher&) = delete;
    WarningCatcher& operator=(const WarningCatcher&) = delete;

    QStringList warnings() const { return caught(); }

private:
    static QStringList& caught()
    {
        static QStringList texts;
        return texts;
    }

    QtMessageHandler m_previous;
};

} // namespace TestSupport
