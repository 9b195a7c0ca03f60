#pragma once

#include "platform/PowerSources.h"

namespace brimlight::test {

class FakePowerSources : public PowerSources
{
public:
    std::optional<PowerSourceDescription> first() override { return source; }
    std::optional<SmartBattery> smartBattery() override { return battery; }

    /// Hundredths of a degree.
    void setTemperature(double hundredths) { battery = SmartBattery{.temperature = hundredths}; }

    std::optional<PowerSourceDescription> source;
    std::optional<SmartBattery> battery;
};

} // namespace brimlight::test
