#pragma once

#include <QString>

#include <optional>

namespace brimlight {

/// One source of power as the system describes it; every part may be missing.
struct PowerSourceDescription
{
    /// In the same unit as `maxCapacity`, usually percent.
    std::optional<int> currentCapacity;
    std::optional<int> maxCapacity;
    /// "AC Power" or "Battery Power".
    std::optional<QString> powerSourceState;
    std::optional<bool> isCharging;
    /// Minutes; -1 while the system is still estimating.
    std::optional<int> timeToEmpty;
    std::optional<int> timeToFullCharge;
};

/// What the battery tells of itself; every part may be missing.
struct SmartBattery
{
    /// Hundredths of a degree, Celsius or Kelvin.
    std::optional<double> temperature;
    std::optional<int> cycleCount;
    /// Three in one unit, mAh or mWh / 10.
    std::optional<int> designCapacity;
    std::optional<int> rawMaxCapacity;
    std::optional<int> maxCapacity;
};

/// Absent without a battery.
struct PowerState
{
    /// The machine's batteries as one.
    std::optional<PowerSourceDescription> source;
    std::optional<SmartBattery> battery;
};

/// Batteries and what they are charged from.
class PowerSources
{
public:
    virtual ~PowerSources() = default;
    /// Waits for the drivers; for a thread of its own.
    virtual PowerState read() = 0;
};

} // namespace brimlight
