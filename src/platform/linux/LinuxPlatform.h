#pragma once

#include "platform/OverlaySurface.h"
#include "platform/Platform.h"

#include <memory>

class QWindow;

namespace brimlight {

/// The real backends of all ports. Built once, after the application object. Its end waits until every file
/// is written.
class LinuxPlatform
{
public:
    LinuxPlatform();
    ~LinuxPlatform();

    Platform ports();
    /// The overlay on this window, which must not have been shown.
    std::unique_ptr<OverlaySurface> makeSurface(QWindow &window);
    /// Memory that the process has freed goes back to the system.
    static void giveBackFreeMemory();

private:
    struct Backends;
    std::unique_ptr<Backends> m_backends;
};

} // namespace brimlight
