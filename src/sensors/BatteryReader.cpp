#include "sensors/BatteryReader.h"

#include "platform/PowerSources.h"

#include <cmath>

namespace brimlight {
namespace {

int percent(const PowerSourceDescription &source)
{
    const int current = source.currentCapacity.value_or(-1);
    const int max = source.maxCapacity.value_or(100);
    return max < 1 ? current : static_cast<int>(std::lround(static_cast<double>(current) / max * 100));
}

} // namespace

BatterySnapshot BatteryReader::read(const PowerState &state)
{
    const auto &source = state.source;
    if (!source)
        return {};
    return {.percent = percent(*source),
            .isCharging = source->isCharging.value_or(false),
            .isPluggedIn = source->powerSourceState == QLatin1String("AC Power"),
            .hasBattery = true,
            .timeToEmpty = source->timeToEmpty.value_or(-1),
            .timeToFull = source->timeToFullCharge.value_or(-1)};
}

} // namespace brimlight
