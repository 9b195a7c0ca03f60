#pragma once

#include "platform/Obstacle.h"

#include <QString>

#include <functional>
#include <optional>

class QObject;

namespace brimlight {

/// Called with what a script wrote, without white space around; absent when it could not be run.
using ScriptReply = std::function<void(std::optional<QString>)>;

/// Runs scripts that drive other programs. The vocabulary is closed: a text that is not known, to the letter,
/// cannot be run.
class ScriptHost
{
public:
    virtual ~ScriptHost() = default;

    /// Starts the script and calls back in a later turn of the loop, unless `context` is gone by then; the
    /// script itself is run to its end in any case.
    virtual void run(const QString &text, QObject &context, ScriptReply done) = 0;
    /// Finds out, without running the script, what keeps it from doing here what it says, and calls back in a
    /// later turn of the loop, unless `context` is gone by then. What holds now may not hold later.
    virtual void check(const QString &text, QObject &context, ObstacleReply answered) = 0;
};

/// The scripts that switch the system.
namespace systemScripts {

/// "true" or "false".
inline const QString outputMuted = QStringLiteral("output muted of (get volume settings)");
inline const QString toggleMute = QStringLiteral("set isMuted to output muted of (get volume settings)\n"
                                                 "if isMuted then\n"
                                                 "    set volume without output muted\n"
                                                 "else\n"
                                                 "    set volume with output muted\n"
                                                 "end if");
inline const QString toggleDarkMode = QStringLiteral("tell application \"System Events\"\n"
                                                     "    tell appearance preferences\n"
                                                     "        set dark mode to not dark mode\n"
                                                     "    end tell\n"
                                                     "end tell");
inline const QString emptyTrash = QStringLiteral("tell application \"Finder\" to empty trash");

} // namespace systemScripts
} // namespace brimlight
