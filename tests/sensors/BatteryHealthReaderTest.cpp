#include "sensors/BatteryHealthReader.h"

#include "fakes/FakePowerSources.h"

#include <gtest/gtest.h>

namespace brimlight::test {
namespace {

std::optional<BatteryHealthSnapshot> read(const SmartBattery &battery)
{
    FakePowerSources sources;
    sources.battery = battery;
    return BatteryHealthReader::read(sources.read());
}

} // namespace

TEST(BatteryHealthReader, AbsentWithoutABattery)
{
    FakePowerSources sources;
    EXPECT_FALSE(BatteryHealthReader::read(sources.read()));
}

TEST(BatteryHealthReader, HealthIsThePresentPartOfTheDesign)
{
    EXPECT_EQ(read({.cycleCount = 187, .designCapacity = 4400, .rawMaxCapacity = 3960}),
              (BatteryHealthSnapshot{.cycleCount = 187, .healthPercent = 90}));
    EXPECT_EQ(read({.cycleCount = 1, .designCapacity = 1000, .rawMaxCapacity = 795})->healthPercent, 80);
    EXPECT_EQ(read({.cycleCount = 1, .designCapacity = 1000, .rawMaxCapacity = 794})->healthPercent, 79);
}

TEST(BatteryHealthReader, MaxCapacityInPercentWithoutTheRawOneGivesTwo)
{
    EXPECT_EQ(read({.cycleCount = 12, .designCapacity = 5000, .maxCapacity = 100}),
              (BatteryHealthSnapshot{.cycleCount = 12, .healthPercent = 2}));
}

TEST(BatteryHealthReader, TheRawCapacityGoesFirst)
{
    EXPECT_EQ(read({.designCapacity = 5000, .rawMaxCapacity = 4500, .maxCapacity = 100})->healthPercent, 90);
    EXPECT_FALSE(read({.designCapacity = 5000, .rawMaxCapacity = 0, .maxCapacity = 4500}));
}

TEST(BatteryHealthReader, ARawCapacityAboveTheDesignIsAHundredAndTheCyclesPassThrough)
{
    EXPECT_EQ(read({.cycleCount = 3, .designCapacity = 5000, .rawMaxCapacity = 5210}),
              (BatteryHealthSnapshot{.cycleCount = 3, .healthPercent = 100}));
}

TEST(BatteryHealthReader, AMissingCycleCountIsZero)
{
    EXPECT_EQ(read({.designCapacity = 5000, .rawMaxCapacity = 4000}),
              (BatteryHealthSnapshot{.cycleCount = 0, .healthPercent = 80}));
}

TEST(BatteryHealthReader, AbsentWithoutUsableCapacities)
{
    for (const SmartBattery &battery :
         {SmartBattery{.cycleCount = 5}, SmartBattery{.cycleCount = 5, .designCapacity = 5000},
          SmartBattery{.cycleCount = 5, .rawMaxCapacity = 4000},
          SmartBattery{.cycleCount = 5, .designCapacity = 0, .rawMaxCapacity = 4000},
          SmartBattery{.cycleCount = 5, .designCapacity = -1, .maxCapacity = 4000},
          SmartBattery{.cycleCount = 5, .designCapacity = 5000, .maxCapacity = 0}})
        EXPECT_FALSE(read(battery)) << battery.designCapacity.value_or(-9);
}

} // namespace brimlight::test
