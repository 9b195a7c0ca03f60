#include "notch/SystemVolumeMonitor.h"

namespace brimlight {
namespace {

float heard(const AudioDeviceState &state)
{
    return state.isMuted ? 0 : static_cast<float>(state.volume);
}

} // namespace

SystemVolumeMonitor::SystemVolumeMonitor(AudioServer &server, Scheduler &scheduler, QObject *parent)
    : QObject(parent)
    , m_server(server)
    , m_scheduler(scheduler)
{
}

void SystemVolumeMonitor::setupListener()
{
    m_watch = m_server.watch(
        AudioDirection::output, [this](const std::optional<AudioDeviceState> &state) { become(state); },
        [this](const AudioDeviceState &state) { change(state); });
}

void SystemVolumeMonitor::become(const std::optional<AudioDeviceState> &state)
{
    m_volume = state ? heard(*state) : 0;
    // The one that is there at the start has settled long before.
    if (m_wasKnown)
        m_settling.schedule(m_scheduler, settling, [] {});
    m_wasKnown = true;
}

void SystemVolumeMonitor::change(const AudioDeviceState &state)
{
    m_volume = heard(state);
    if (!m_settling.isPending())
        Q_EMIT volumeChanged();
}

} // namespace brimlight
