#include "notch/SystemStatusMonitor.h"

namespace brimlight {

SystemStatusMonitor::SystemStatusMonitor(AudioServer &audio, const DoNotDisturb &doNotDisturb,
                                         Scheduler &scheduler)
    : m_doNotDisturb(doNotDisturb)
{
    const auto take = [this](const std::optional<AudioDeviceState> &state) {
        setMuted(state && state->isMuted);
    };
    m_microphone = audio.watch(AudioDirection::input, take, take);
    updateDND();
    // As with the tick, a fifth of the period as tolerance lets the system share wake-ups.
    m_timer = scheduler.every(period, period / 5, [this] { updateDND(); });
}

void SystemStatusMonitor::setMuted(bool muted)
{
    m_isMuted = muted;
    Q_EMIT isMutedChanged();
}

void SystemStatusMonitor::updateDND()
{
    m_isDND = m_doNotDisturb.isInhibited() || m_doNotDisturb.hidesBanners();
    Q_EMIT isDNDChanged();
}

} // namespace brimlight
