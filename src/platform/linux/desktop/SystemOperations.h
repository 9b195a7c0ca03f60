#pragma once

#include "platform/AudioServer.h"
#include "platform/linux/desktop/LinuxScriptHost.h"
#include "platform/linux/desktop/PlasmaColors.h"
#include "platform/linux/files/TrashCan.h"

namespace brimlight {

/// What the scripts that switch the system need.
struct SystemOperations
{
    AudioServer &audio;
    /// Told of what was asked for after each change of the colour scheme.
    std::function<void(bool isDark)> darkModeSet;
    TrashCan trash = TrashCan::ofUser();
    /// Where the desktop is Plasma: changing GNOME's colour scheme would change nothing there.
    std::shared_ptr<PlasmaColors> plasma;

    /// One operation for each of `systemScripts`.
    ScriptTable table() const;

private:
    ScriptOperation muteQuery() const;
    ScriptOperation muteToggle() const;
    ScriptOperation darkModeToggle() const;
    ScriptOperation trashEmptying() const;
};

/// Turns the colour scheme of GNOME's settings round and gives whether it is dark now; absent when it is not
/// known or may not be written. Waits until it is written, so not on the main thread.
std::optional<bool> flipColorScheme();
/// Loads a library and files when it is first asked, so not on the main thread.
std::optional<Obstacle> colorSchemeObstacle();

} // namespace brimlight
