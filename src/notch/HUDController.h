#pragma once

#include "notch/HUDType.h"
#include "platform/WorkItem.h"

#include <QObject>

namespace brimlight {

class NotchViewModel;
class SystemBrightnessMonitor;
class SystemVolumeMonitor;

/// The rules of the heads-up display: a change of the volume or the brightness shows it for a while, unless
/// the panel is open. A new change takes its place and begins the time anew.
class HUDController : public QObject
{
public:
    /// From the last change to the end of the heads-up display.
    static constexpr std::chrono::milliseconds duration{1500};

    HUDController(NotchViewModel &viewModel, const SystemVolumeMonitor &volume,
                  const SystemBrightnessMonitor &brightness, Scheduler &scheduler);

private:
    void trigger(const HUDType &type);

    NotchViewModel &m_viewModel;
    Scheduler &m_scheduler;
    WorkItem m_end;
};

} // namespace brimlight
