#include "sensors/BatteryReader.h"

#include "fakes/FakePowerSources.h"

#include <gtest/gtest.h>

namespace brimlight::test {
namespace {

const QString ac = QStringLiteral("AC Power");
const QString battery = QStringLiteral("Battery Power");

BatterySnapshot read(const PowerSourceDescription &description)
{
    FakePowerSources sources;
    sources.source = description;
    return BatteryReader::read(sources.read());
}

} // namespace

TEST(BatteryReader, NoBatteryIsPluggedIn)
{
    FakePowerSources sources;
    EXPECT_EQ(BatteryReader::read(sources.read()), (BatterySnapshot{.percent = -1,
                                                                    .isCharging = false,
                                                                    .isPluggedIn = true,
                                                                    .hasBattery = false,
                                                                    .timeToEmpty = -1,
                                                                    .timeToFull = -1}));
}

TEST(BatteryReader, PassesOnWhatTheSourceSays)
{
    EXPECT_EQ(read({.currentCapacity = 64,
                    .maxCapacity = 100,
                    .powerSourceState = ac,
                    .isCharging = true,
                    .timeToEmpty = 0,
                    .timeToFullCharge = 47}),
              (BatterySnapshot{.percent = 64,
                               .isCharging = true,
                               .isPluggedIn = true,
                               .hasBattery = true,
                               .timeToEmpty = 0,
                               .timeToFull = 47}));
}

TEST(BatteryReader, ADescriptionThatSaysNothingIsABatteryOfUnknownState)
{
    EXPECT_EQ(read({}), (BatterySnapshot{.percent = -1,
                                         .isCharging = false,
                                         .isPluggedIn = false,
                                         .hasBattery = true,
                                         .timeToEmpty = -1,
                                         .timeToFull = -1}));
}

TEST(BatteryReader, PercentIsThePartOfTheMaximum)
{
    struct Row
    {
        std::optional<int> current;
        std::optional<int> max;
        int percent;
    };
    for (const Row &row : {
             Row{0, 100, 0},
             Row{100, 100, 100},
             Row{2851, 3960, 72},
             Row{1, 200, 1},
             Row{99, 200, 50},
             Row{55, std::nullopt, 55},
             Row{std::nullopt, 100, -1},
             Row{std::nullopt, 0, -1},
             Row{42, 0, 42},
             Row{42, -7, 42},
             Row{104, 100, 104},
         })
        EXPECT_EQ(read({.currentCapacity = row.current, .maxCapacity = row.max}).percent, row.percent)
            << row.current.value_or(-1) << " of " << row.max.value_or(-1);
}

TEST(BatteryReader, OnlyTheOneStateIsPluggedIn)
{
    EXPECT_TRUE(read({.powerSourceState = ac}).isPluggedIn);
    for (const QString &state : {battery, QString(), QStringLiteral("ac power"), QStringLiteral("Off Line")})
        EXPECT_FALSE(read({.powerSourceState = state}).isPluggedIn) << state.toStdString();
}

TEST(BatteryReader, ABatteryAtZeroIsABattery)
{
    const BatterySnapshot snapshot =
        read({.currentCapacity = 0, .maxCapacity = 100, .powerSourceState = battery, .timeToEmpty = 0});
    EXPECT_TRUE(snapshot.hasBattery);
    EXPECT_EQ(snapshot.percent, 0);
    EXPECT_EQ(snapshot.timeToEmpty, 0);
}

} // namespace brimlight::test
