#pragma once

#include "platform/Log.h"
#include "platform/PowerSources.h"
#include "platform/Scheduler.h"
#include "platform/ThermalServices.h"
#include "sensors/TemperatureReading.h"

#include <memory>

namespace brimlight {

/// The second source of temperatures: sensors that have a name and a value. Which of them are the processor's
/// is told by the name.
class IOHIDBridge
{
public:
    /// Nothing, with a line in the log, when the services cannot be listed. Later ones are not noticed.
    static std::unique_ptr<IOHIDBridge> open(ThermalServices &services, PowerSources &power, Log &log,
                                             Scheduler &scheduler);

    /// Whether a sensor of this name belongs to the processor.
    static bool isCpuName(const QString &name);

    /// Parts that cannot be read are absent, perhaps both.
    TemperatureReading readTemperatureReading();

private:
    IOHIDBridge(ThermalServices &services, PowerSources &power, Scheduler &scheduler, int count);

    ThermalServices &m_services;
    PowerSources &m_power;
    Scheduler &m_scheduler;
    int m_count;
};

} // namespace brimlight
