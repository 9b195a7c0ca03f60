#pragma once

#include "platform/PowerSources.h"

#include <optional>

namespace brimlight::BatteryTemperatureReader {

/// A battery outside of these, both excluded, is a wrong reading; degrees Celsius.
constexpr double lowestCelsius = -10.0;
constexpr double highestCelsius = 80.0;

/// What the battery tells of itself, in degrees Celsius; absent when it does not or it makes no sense.
std::optional<double> readFromSmartBattery(const std::optional<SmartBattery> &battery);

} // namespace brimlight::BatteryTemperatureReader
