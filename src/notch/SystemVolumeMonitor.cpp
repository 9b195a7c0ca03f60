#include "notch/SystemVolumeMonitor.h"

namespace brimlight {
namespace {

float heard(const AudioDeviceState &state)
{
    return state.isMuted ? 0 : static_cast<float>(state.volume);
}

} // namespace

SystemVolumeMonitor::SystemVolumeMonitor(AudioServer &server, QObject *parent)
    : QObject(parent)
    , m_server(server)
{
}

void SystemVolumeMonitor::setupListener()
{
    m_watch = m_server.watch(
        AudioDirection::output, [this](const AudioDeviceState &state) { m_volume = heard(state); },
        [this](const AudioDeviceState &state) {
            m_volume = heard(state);
            Q_EMIT volumeChanged();
        });
}

} // namespace brimlight
