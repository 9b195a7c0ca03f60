#pragma once

#include <functional>
#include <memory>
#include <optional>

class QObject;

namespace brimlight {

enum class AudioDirection { output, input };

struct AudioDeviceState
{
    /// 0 to 1, more when the device amplifies.
    double volume = 0;
    bool isMuted = false;

    bool operator==(const AudioDeviceState &) const = default;
};

/// A device that is being followed; destroying it ends that.
class AudioWatch
{
public:
    virtual ~AudioWatch() = default;
    AudioWatch() = default;
    AudioWatch(const AudioWatch &) = delete;
    AudioWatch &operator=(const AudioWatch &) = delete;
};

/// The audio server of the session, which may come late, go and come back. Nothing waits for it: it is
/// reached some time after it was first asked for, and everything is called back in a later turn of the loop.
class AudioServer
{
public:
    virtual ~AudioServer() = default;

    /// Follows the default device of a direction, whichever that is: another one chosen, plugged in or taken
    /// out, or one that changes its socket. `known` is called with what the device is at each time it becomes
    /// the followed one, and absent when the last one is gone; `changed` when the volume or the mute of the
    /// followed one has changed since. A change of device is never a change of its volume. Neither is called
    /// before there was a server with a device. The watch ends before the server object does.
    virtual std::unique_ptr<AudioWatch> watch(AudioDirection direction,
                                              std::function<void(std::optional<AudioDeviceState>)> known,
                                              std::function<void(AudioDeviceState)> changed) = 0;

    /// Whether the default output of now is muted; absent without a server or a device. Not called back when
    /// the context is gone.
    virtual void outputMuted(QObject &context, std::function<void(std::optional<bool>)> answered) = 0;
    /// Mutes the default output of now, or ends that; then, or when it failed, calls back.
    virtual void toggleOutputMuted(QObject &context, std::function<void()> done) = 0;
};

} // namespace brimlight
