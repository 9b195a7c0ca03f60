#pragma once

#include <QByteArray>

#include <optional>

namespace brimlight {

/// The one debugging switch of the program.
struct DebugFlags
{
    static constexpr const char *variable = "BRIMLIGHT_DEBUG_SIGNALS";

    /// Trace lines also go to standard error, and SIGUSR1 and SIGUSR2 open and close the panel.
    bool enabled = false;

    /// True for exactly the value "1".
    static DebugFlags fromValue(const std::optional<QByteArray> &value);
    static DebugFlags fromEnvironment();
};

} // namespace brimlight
