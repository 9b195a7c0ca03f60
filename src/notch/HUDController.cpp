#include "notch/HUDController.h"

#include "notch/NotchViewModel.h"
#include "notch/SystemBrightnessMonitor.h"
#include "notch/SystemVolumeMonitor.h"

namespace brimlight {

HUDController::HUDController(NotchViewModel &viewModel, const SystemVolumeMonitor &volume,
                             const SystemBrightnessMonitor &brightness, Scheduler &scheduler)
    : m_viewModel(viewModel)
    , m_scheduler(scheduler)
{
    connect(&volume, &SystemVolumeMonitor::volumeChanged, this, [this, &volume] {
        m_scheduler.post(*this, [this, &volume] { trigger(HUDType::volume(volume.volume())); });
    });
    connect(&brightness, &SystemBrightnessMonitor::brightnessChanged, this, [this, &brightness] {
        m_scheduler.post(*this,
                         [this, &brightness] { trigger(HUDType::brightness(brightness.brightness())); });
    });
}

void HUDController::trigger(const HUDType &type)
{
    if (m_viewModel.isExpanded())
        return;
    m_end.cancel();
    m_viewModel.setHudType(type);
    m_end.schedule(m_scheduler, duration, [this] { m_viewModel.setHudType(std::nullopt); });
}

} // namespace brimlight
