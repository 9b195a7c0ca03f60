#pragma once

namespace brimlight {

struct PowerState;

/// The machine's first power source. The default is a machine without a battery, which counts as plugged in.
struct BatterySnapshot
{
    /// -1 when unknown.
    int percent = -1;
    bool isCharging = false;
    bool isPluggedIn = true;
    bool hasBattery = false;
    /// Minutes; -1 when unknown.
    int timeToEmpty = -1;
    int timeToFull = -1;

    bool operator==(const BatterySnapshot &) const = default;
};

namespace BatteryReader {

BatterySnapshot read(const PowerState &state);

} // namespace BatteryReader

} // namespace brimlight
