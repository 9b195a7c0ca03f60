#include "sensors/TemperatureOutlierFilter.h"

#include <algorithm>

namespace brimlight::TemperatureOutlierFilter {

std::optional<double> maxRejectingOutliers(std::vector<double> values)
{
    constexpr size_t fewestFiltered = 4;
    constexpr size_t fewestToDrop = 3;
    constexpr int mostDropped = 10;
    constexpr double farAbove = 20.0;

    if (values.empty())
        return std::nullopt;
    std::sort(values.begin(), values.end());
    if (values.size() < fewestFiltered)
        return values.back();
    const double lowerQuartile = values[values.size() / 4];
    for (int dropped = 0; dropped < mostDropped && values.size() >= fewestToDrop; ++dropped) {
        if (values.back() - lowerQuartile < farAbove)
            break;
        values.pop_back();
    }
    return values.back();
}

} // namespace brimlight::TemperatureOutlierFilter
