#pragma once

#include <QString>
#include <QVector>

#ifndef GLOG_NO_ABBREVIATED_SEVERITIES
#define GLOG_NO_ABBREVIATED_SEVERITIES // they collide with the names of windows.h
#endif
#include <glog/logging.h>

namespace TestSupport {

struct LogRecord
{
    int severity = -1;
    QString file;
    int line = -1;
    QString text;
};

/// Collects what is logged while it exists.
class LogRecords final : public google::LogSink
{
public:
    LogRecords() { google::AddLogSink(this); }
    ~LogRecords() override { google::RemoveLogSink(this); }

    LogRecords(const LogRecords&) = delete;
    LogRecords& operator=(const LogRecords&) = delete;

    const QVector<LogRecord>& records() const { return m_records; }

    void send(google::LogSeverity severity, const char* file, const char* /*baseName*/, int line,
              const google::LogMessageTime& /*time*/, const char* message, std::size_t length) override
    {
        m_records.append(LogRecord{static_cast<int>(severity), QString::fromUtf8(file), line,
                                   QString::fromUtf8(message, static_cast<int>(length))});
    }

private:
    QVector<LogRecord> m_records;
};

} // namespace TestSupport
