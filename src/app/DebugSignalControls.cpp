#include "app/DebugSignalControls.h"

#include "core/DebugFlags.h"
#include "core/TraceLog.h"
#include "notch/NotchController.h"
#include "platform/UnixSignals.h"

#include <csignal>
#include <unistd.h>

namespace brimlight::DebugSignalControls {

void installIfEnabled(const DebugFlags &flags, UnixSignals &unixSignals, NotchController &controller,
                      const TraceLog &log)
{
    if (!flags.enabled)
        return;
    unixSignals.install(SIGUSR1, [&controller] { controller.setExpanded(true); });
    unixSignals.install(SIGUSR2, [&controller] { controller.setExpanded(false); });
    log.trace(QStringLiteral("Debug signal controls ready (pid=%1, SIGUSR1=expand, SIGUSR2=collapse)")
                  .arg(getpid()));
}

} // namespace brimlight::DebugSignalControls
