#pragma once

#include <QDateTime>

#include <optional>

namespace brimlight {

/// Degrees Celsius.
struct TemperatureReading
{
    std::optional<double> cpuMaxC;
    std::optional<double> batteryC;
    QDateTime timestamp;
    bool operator==(const TemperatureReading &) const = default;
};

} // namespace brimlight
