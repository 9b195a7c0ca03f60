#pragma once

#include "platform/AudioServer.h"
#include "platform/WorkItem.h"

#include <QObject>

namespace brimlight {

/// The volume of the default output, whichever that is at the time. It notices changes and makes none.
class SystemVolumeMonitor : public QObject
{
    Q_OBJECT
    Q_PROPERTY(float volume READ volume NOTIFY volumeChanged)

public:
    /// Servers bring a device that becomes the default to the volume it had last time. What changes for so
    /// long after that is no change by the user either.
    static constexpr std::chrono::milliseconds settling{400};

    SystemVolumeMonitor(AudioServer &server, Scheduler &scheduler, QObject *parent = nullptr);

    /// Begins to watch; to be called once.
    void setupListener();

    /// From 0 to 1, more when the device amplifies; 0 while the device is muted or not known. Every change of
    /// volume or mute notifies, an equal value too. What a device is at when it becomes the default does not:
    /// nobody has turned the volume then.
    float volume() const { return m_volume; }

Q_SIGNALS:
    void volumeChanged();

private:
    void become(const std::optional<AudioDeviceState> &state);
    void change(const AudioDeviceState &state);

    AudioServer &m_server;
    Scheduler &m_scheduler;
    float m_volume = 0;
    bool m_wasKnown = false;
    WorkItem m_settling;
    std::unique_ptr<AudioWatch> m_watch;
};

} // namespace brimlight
