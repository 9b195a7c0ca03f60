#pragma once

#include "platform/HostStatistics.h"

namespace brimlight {

/// Which of its trip points a folder thermal_zone* of /sys/class/thermal has reached. Waits for the driver.
ThermalState thermalZoneState(const QString &folder);

/// How far a folder cooling_device* slows the processor down: fair for somewhat, serious for as far as it
/// goes. Fans and other devices are nominal at any speed. Waits for the driver.
ThermalState coolingDeviceState(const QString &folder);

} // namespace brimlight
