#pragma once

#include "platform/AudioServer.h"

#include <QObject>

namespace brimlight {

/// The volume of the output that was the default when the audio server first answered. It notices changes and
/// makes none. A default chosen later is not followed; one that goes leaves its last volume standing.
class SystemVolumeMonitor : public QObject
{
    Q_OBJECT
    Q_PROPERTY(float volume READ volume NOTIFY volumeChanged)

public:
    explicit SystemVolumeMonitor(AudioServer &server, QObject *parent = nullptr);

    /// Begins to watch; to be called once.
    void setupListener();

    /// From 0 to 1, more when the device amplifies; 0 while the device is muted or not known. Every change of
    /// volume or mute notifies, an equal value too; what the device is first found at does not.
    float volume() const { return m_volume; }

Q_SIGNALS:
    void volumeChanged();

private:
    AudioServer &m_server;
    float m_volume = 0;
    std::unique_ptr<AudioWatch> m_watch;
};

} // namespace brimlight
