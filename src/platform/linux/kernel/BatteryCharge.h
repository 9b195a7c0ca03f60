#pragma once

#include "platform/PowerSources.h"
#include "platform/linux/kernel/PowerSupply.h"

#include <QList>

#include <optional>

namespace brimlight {

/// All batteries of the machine as one: their energies and powers are summed. `supplies` are all that there
/// are, chargers among them; absent without a battery.
std::optional<PowerSourceDescription> describePowerSource(const QList<PowerSupply> &supplies);

/// All batteries of the machine as one: the capacities are summed, cycles and temperature are those of the
/// battery that is worst off. The capacities are mAh, or mWh / 10 from a driver that counts energy and of
/// several batteries. Absent without a battery.
std::optional<SmartBattery> describeSmartBattery(const QList<PowerSupply> &supplies);

} // namespace brimlight
