#pragma once

#include "platform/PowerSources.h"

namespace brimlight::test {

class FakePowerSources : public PowerSources
{
public:
    PowerState read() override
    {
        ++reads;
        return {source, battery};
    }

    /// Hundredths of a degree.
    void setTemperature(double hundredths) { battery = SmartBattery{.temperature = hundredths}; }

    std::optional<PowerSourceDescription> source;
    std::optional<SmartBattery> battery;
    int reads = 0;
};

} // namespace brimlight::test
