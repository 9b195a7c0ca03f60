#include "sensors/BatteryHealthReader.h"

#include "platform/PowerSources.h"

#include <algorithm>
#include <cmath>

namespace brimlight {

std::optional<BatteryHealthSnapshot> BatteryHealthReader::read(const PowerState &state)
{
    const auto &battery = state.battery;
    if (!battery)
        return std::nullopt;
    const int design = battery->designCapacity.value_or(0);
    const int present =
        (battery->rawMaxCapacity ? battery->rawMaxCapacity : battery->maxCapacity).value_or(0);
    if (design < 1 || present < 1)
        return std::nullopt;
    const long health = std::lround(static_cast<double>(present) / design * 100);
    return BatteryHealthSnapshot{.cycleCount = battery->cycleCount.value_or(0),
                                 .healthPercent = static_cast<int>(std::min(health, 100L))};
}

} // namespace brimlight
