#include "sensors/BatteryTemperatureReader.h"

namespace brimlight::BatteryTemperatureReader {

std::optional<double> readFromSmartBattery(const std::optional<SmartBattery> &battery)
{
    constexpr double unitsPerDegree = 100.0;
    constexpr double highestThatIsCelsius = 200.0;
    constexpr double kelvinAtZeroCelsius = 273.15;

    if (!battery || !battery->temperature)
        return std::nullopt;
    double degrees = *battery->temperature / unitsPerDegree;
    if (degrees > highestThatIsCelsius)
        degrees -= kelvinAtZeroCelsius;
    const bool makesSense = degrees > lowestCelsius && degrees < highestCelsius;
    return makesSense ? std::optional(degrees) : std::nullopt;
}

} // namespace brimlight::BatteryTemperatureReader
