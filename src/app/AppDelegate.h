#pragma once

#include "app/IdleMemory.h"
#include "app/NotchAssembly.h"
#include "app/StatusBarController.h"
#include "app/Stores.h"
#include "core/TraceLog.h"
#include "notch/NotchWindow.h"
#include "platform/linux/LinuxPlatform.h"

#include <optional>

namespace brimlight {

/// Keeps the object graph alive from the launch to the exit; nothing in it is ever replaced.
class AppDelegate
{
public:
    AppDelegate();
    ~AppDelegate();

    /// The launch, in a fixed order, since later objects take references to earlier ones.
    void applicationDidFinishLaunching();

    NotchController &notch() { return m_notch->controller; }

private:
    LinuxPlatform m_platform;
    DebugFlags m_flags = DebugFlags::fromEnvironment();
    TraceLog m_log;
    std::optional<Stores> m_stores;
    std::optional<NotchWindow> m_window;
    std::optional<NotchAssembly> m_notch;
    std::optional<IdleMemory> m_idleMemory;
    std::optional<StatusBarController> m_statusBar;
};

/// The line that the launch logs; a build without a version is called "dev".
QString launchLine(const QString &version);

} // namespace brimlight
