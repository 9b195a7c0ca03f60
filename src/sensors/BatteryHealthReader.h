#pragma once

#include <optional>

namespace brimlight {

struct PowerState;

struct BatteryHealthSnapshot
{
    int cycleCount = 0;
    /// The capacity of a full charge as a part of the designed one, at most 100.
    int healthPercent = 0;

    bool operator==(const BatteryHealthSnapshot &) const = default;
};

namespace BatteryHealthReader {

/// Absent without a battery, and when its capacities are not known.
std::optional<BatteryHealthSnapshot> read(const PowerState &state);

} // namespace BatteryHealthReader

} // namespace brimlight
