#pragma once

#include <optional>
#include <vector>

namespace brimlight::TemperatureOutlierFilter {

/// The maximum once the sensors that read 20 or more above the lower quartile are dropped from the top, at
/// most ten of them and leaving two at least. Fewer than four values are not filtered; absent without a
/// value.
std::optional<double> maxRejectingOutliers(std::vector<double> values);

} // namespace brimlight::TemperatureOutlierFilter
