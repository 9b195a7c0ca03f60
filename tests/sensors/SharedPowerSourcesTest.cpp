#include "sensors/SharedPowerSources.h"

#include "fakes/ManualScheduler.h"

#include <gtest/gtest.h>

namespace brimlight::test {
namespace {

class CountingPowerSources : public PowerSources
{
public:
    std::optional<PowerSourceDescription> first() override
    {
        return PowerSourceDescription{.currentCapacity = ++firsts};
    }
    std::optional<SmartBattery> smartBattery() override
    {
        ++batteries;
        return std::nullopt;
    }

    int firsts = 0;
    int batteries = 0;
};

TEST(SharedPowerSources, AskTheMachineOnceInATurn)
{
    CountingPowerSources machine;
    ManualScheduler scheduler;
    SharedPowerSources shared(machine, scheduler);
    EXPECT_EQ(shared.first()->currentCapacity, 1);
    EXPECT_EQ(shared.first()->currentCapacity, 1);
    EXPECT_FALSE(shared.smartBattery());
    EXPECT_FALSE(shared.smartBattery());
    EXPECT_EQ(machine.batteries, 1) << "an absent battery is an answer too";

    scheduler.advance({});
    EXPECT_EQ(shared.first()->currentCapacity, 2);
    EXPECT_FALSE(shared.smartBattery());
    EXPECT_EQ(machine.batteries, 2);
}

} // namespace
} // namespace brimlight::test
