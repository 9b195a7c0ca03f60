#pragma once

#include "core/DebugFlags.h"

#include <QString>

#include <cstdio>

namespace brimlight {

class Log;

/// The log of the shell and the notch surface, category "App".
class TraceLog
{
public:
    /// `console` is where trace lines are repeated while the debugging switch is on; not owned.
    TraceLog(Log &log, DebugFlags flags, std::FILE *console = stderr)
        : m_log(log)
        , m_flags(flags)
        , m_console(console)
    {
    }

    /// A trace line: to the log at info level and, with the debugging switch on, to the console.
    void trace(const QString &line) const;
    /// To the log at info level only.
    void info(const QString &line) const;

private:
    Log &m_log;
    DebugFlags m_flags;
    std::FILE *m_console;
};

} // namespace brimlight
