#include "core/TraceLog.h"

#include "platform/Log.h"

namespace brimlight {

void TraceLog::trace(const QString &line) const
{
    info(line);
    if (!m_flags.enabled)
        return;
    const QByteArray text = line.toUtf8() + '\n';
    std::fwrite(text.constData(), 1, static_cast<size_t>(text.size()), m_console);
    std::fflush(m_console);
}

void TraceLog::info(const QString &line) const
{
    m_log.write(LogLevel::info, QStringLiteral("App"), line);
}

} // namespace brimlight
