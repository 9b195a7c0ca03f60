#include "platform/linux/process/JournalLog.h"

// Without this the journal's header adds the place of the call to every entry.
#define SD_JOURNAL_SUPPRESS_LOCATION
#include <systemd/sd-journal.h>

#include <QByteArray>

#include <array>
#include <syslog.h>

namespace brimlight {
namespace {

int priority(LogLevel level)
{
    switch (level) {
    case LogLevel::info:
        return LOG_INFO;
    case LogLevel::notice:
        return LOG_NOTICE;
    case LogLevel::error:
        return LOG_ERR;
    }
    return LOG_NOTICE;
}

iovec vectorOf(QByteArray &field)
{
    return {.iov_base = field.data(), .iov_len = static_cast<size_t>(field.size())};
}

} // namespace

void JournalLog::write(LogLevel level, const QString &category, const QString &message)
{
    std::array<QByteArray, 5> fields{"MESSAGE=" + message.toUtf8(),
                                     "PRIORITY=" + QByteArray::number(priority(level)),
                                     QByteArray("SUBSYSTEM=") + subsystem, "CATEGORY=" + category.toUtf8(),
                                     QByteArray("SYSLOG_IDENTIFIER=brimlight")};
    std::array<iovec, 5> vectors{};
    for (size_t i = 0; i < fields.size(); ++i)
        vectors[i] = vectorOf(fields[i]);
    sd_journal_sendv(vectors.data(), static_cast<int>(vectors.size()));
}

} // namespace brimlight
