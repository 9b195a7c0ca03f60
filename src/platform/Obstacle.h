#pragma once

#include <functional>
#include <optional>

namespace brimlight {

/// What keeps a switch of the system from working on this machine.
enum class Obstacle {
    /// The platform does not know the switch.
    unknownSwitch,
    noAudioOutput,
    /// The desktop has no colour scheme that programs can change.
    noColorScheme,
    /// It has one that the administrator keeps as it is.
    lockedColorScheme,
    /// It has one, but not the tool that changes it.
    noColorSchemeTool,
    noTrash,
    /// Neither a service of the session or the machine nor the display server would keep the display awake.
    nothingKeepsAwake
};

/// Called with what is in the way; absent when the switch works.
using ObstacleReply = std::function<void(std::optional<Obstacle>)>;

} // namespace brimlight
