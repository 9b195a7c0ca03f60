#pragma once

#include "platform/Log.h"

namespace brimlight {

/// The systemd journal, with the fields SUBSYSTEM and CATEGORY. Without a journal messages are lost,
/// silently.
class JournalLog : public Log
{
public:
    void write(LogLevel level, const QString &category, const QString &message) override;
};

} // namespace brimlight
