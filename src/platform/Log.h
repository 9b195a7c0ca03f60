#pragma once

#include <QString>

namespace brimlight {

enum class LogLevel { info, notice, error };

/// The system's log. Every message goes out under the program's subsystem; the category names the writing
/// object.
class Log
{
public:
    static constexpr const char *subsystem = "com.sorrelbrook.brimlight";

    virtual ~Log() = default;
    virtual void write(LogLevel level, const QString &category, const QString &message) = 0;
};

} // namespace brimlight
