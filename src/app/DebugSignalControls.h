#pragma once

namespace brimlight {

struct DebugFlags;
class NotchController;
class TraceLog;
class UnixSignals;

/// SIGUSR1 opens and SIGUSR2 closes the panel, past all hover guards and without touching the pin.
namespace DebugSignalControls {

/// Does nothing unless the debugging switch is on: both signals then keep their default effect.
void installIfEnabled(const DebugFlags &flags, UnixSignals &unixSignals, NotchController &controller,
                      const TraceLog &log);

} // namespace DebugSignalControls
} // namespace brimlight
