#include "fakes/FakeHostStatistics.h"
#include "fakes/SensorFakes.h"
#include "sensors/BatteryFace.h"
#include "sensors/BatteryHealthFace.h"
#include "sensors/DiskFace.h"
#include "sensors/NetworkFace.h"
#include "sensors/SystemFace.h"
#include "sensors/SystemInfoFace.h"
#include "sensors/TemperatureFace.h"
#include "sensors/UsageGraphFace.h"
#include "theme/SignalColors.h"
#include "widgets/WidgetFixture.h"

namespace brimlight::test {

using namespace std::chrono_literals;

namespace {

const QColor accent(1, 2, 3);
const QColor normal(4, 5, 6);

BatterySnapshot charged(int percent)
{
    return {.percent = percent, .isPluggedIn = false, .hasBattery = true};
}

/// The surroundings of a widget of the machine that is seen.
class SystemWidgets : public WidgetTest
{
protected:
    SystemWidgets()
    {
        context.setLive(true);
        ticker.setActive(true);
    }
    void tick()
    {
        statistics.seconds += 1;
        scheduler.advance(1s);
    }

    FakeHostStatistics statistics;
    FakePowerSources power;
    FakeMachine machine;
    FakeSmc smc;
    FakeThermal thermal;
};

} // namespace

TEST(BatteryTint, WithoutABatteryIsNormal)
{
    EXPECT_EQ(resolveTint(BatterySnapshot{}, false, accent, normal), normal);
}

TEST(BatteryTint, ChangesAtItsThresholds)
{
    EXPECT_EQ(resolveTint(charged(20), false, accent, normal), signalColors::red);
    EXPECT_EQ(resolveTint(charged(21), false, accent, normal), signalColors::orange);
    EXPECT_EQ(resolveTint(charged(40), false, accent, normal), signalColors::orange);
    EXPECT_EQ(resolveTint(charged(41), false, accent, normal), normal);
}

TEST(BatteryTint, ChargingOrTheThemesColourIsTheAccent)
{
    BatterySnapshot charging = charged(5);
    charging.isCharging = true;
    EXPECT_EQ(resolveTint(charging, false, accent, normal), accent);
    EXPECT_EQ(resolveTint(charged(5), true, accent, normal), accent);
}

TEST(BatteryDetail, TellsTheTimeThatIsLeftOrTheState)
{
    BatterySnapshot snapshot = charged(50);
    snapshot.timeToEmpty = 200;
    snapshot.timeToFull = 65;
    EXPECT_EQ(batteryDetail(snapshot), QStringLiteral("3:20 left"));
    snapshot.isCharging = true;
    EXPECT_EQ(batteryDetail(snapshot), QStringLiteral("1:05 to full"));
    snapshot.timeToFull = 0;
    EXPECT_EQ(batteryDetail(snapshot), QStringLiteral("Battery"));
    BatterySnapshot full = charged(100);
    EXPECT_EQ(batteryDetail(full), QStringLiteral("Battery"));
    full.isPluggedIn = true;
    EXPECT_EQ(batteryDetail(full), QStringLiteral("Fully charged"));
}

TEST_F(SystemWidgets, BatteryShowsADashForAnUnknownCharge)
{
    BatteryFace face(context, power);
    EXPECT_EQ(face.number(), QStringLiteral("—"));
    EXPECT_EQ(face.fraction(), 0);
    EXPECT_EQ(face.status(), QStringLiteral("Plugged in"));
    EXPECT_EQ(face.symbol(), QStringLiteral("battery.100"));
}

TEST_F(SystemWidgets, BatteryIsReadOnEachTickWhileItIsSeen)
{
    BatteryFace face(context, power);
    power.source = PowerSourceDescription{
        .currentCapacity = 30, .maxCapacity = 100, .powerSourceState = QStringLiteral("Battery Power")};
    EXPECT_EQ(face.percent(), QStringLiteral("—"));
    tick();
    EXPECT_EQ(face.percent(), QStringLiteral("30%"));
    EXPECT_EQ(face.status(), QStringLiteral("On battery"));
    EXPECT_EQ(face.tint(), signalColors::orange);
    context.setLive(false);
    power.source->currentCapacity = 10;
    tick();
    EXPECT_EQ(face.percent(), QStringLiteral("30%")) << "nobody sees it";
}

TEST_F(SystemWidgets, BatteryColorModeIsDynamicButForTheOneOtherValue)
{
    BatteryFace face(context, power);
    WidgetInstance instance{.kind = QStringLiteral("battery"), .size = WidgetSize::small};
    for (const char *value : {"", "Theme", "dynamic"}) {
        instance.settings = WidgetSettings{{QStringLiteral("colorMode"), QString::fromLatin1(value)}};
        context.setInstance(instance);
        EXPECT_EQ(face.colorMode(), QStringLiteral("dynamic")) << value;
    }
    instance.settings = WidgetSettings{{QStringLiteral("colorMode"), QStringLiteral("theme")}};
    context.setInstance(instance);
    EXPECT_EQ(face.colorMode(), QStringLiteral("theme"));
    EXPECT_EQ(face.tint(), theme.current().accentColor());
}

TEST(BatteryHealth, TintChangesAtEightyAndSixty)
{
    EXPECT_EQ(healthTint(80, accent), accent);
    EXPECT_EQ(healthTint(79, accent), signalColors::orange);
    EXPECT_EQ(healthTint(60, accent), signalColors::orange);
    EXPECT_EQ(healthTint(59, accent), signalColors::red);
}

TEST_F(SystemWidgets, BatteryHealthIsReadWhenItAppears)
{
    context.setLive(false);
    BatteryHealthFace face(context, power);
    context.setLive(true);
    EXPECT_FALSE(face.hasBattery());
    power.battery = SmartBattery{.cycleCount = 312, .designCapacity = 5000, .rawMaxCapacity = 4000};
    tick();
    EXPECT_FALSE(face.hasBattery()) << "not on a tick";
    context.setLive(false);
    context.setLive(true);
    EXPECT_TRUE(face.hasBattery());
    EXPECT_EQ(face.percent(), QStringLiteral("80%"));
    EXPECT_EQ(face.cycles(), QStringLiteral("312 cycles"));
}

TEST(Disk, AtFourFifthsItIsOrangeAndToBeWatched)
{
    EXPECT_EQ(diskTint(0.7999, accent), accent);
    EXPECT_EQ(diskStatus(0.7999), QStringLiteral("Healthy"));
    EXPECT_EQ(diskTint(0.8, accent), signalColors::orange);
    EXPECT_EQ(diskStatus(0.8), QStringLiteral("Watch"));
}

TEST(Disk, AtNinetyTwoPercentItIsRed)
{
    EXPECT_EQ(diskTint(0.9199, accent), signalColors::orange);
    EXPECT_EQ(diskTint(0.92, accent), signalColors::red);
}

TEST_F(SystemWidgets, DiskShowsTheRootVolume)
{
    statistics.capacity = VolumeCapacity{.total = 1'000'000'000'000, .available = 250'000'000'000};
    DiskFace face(context, statistics);
    EXPECT_EQ(face.percent(), QStringLiteral("75%"));
    EXPECT_EQ(face.freeText(), QStringLiteral("250 GB free"));
    EXPECT_EQ(statistics.volumesAsked, QStringList{QStringLiteral("/")});
}

TEST_F(SystemWidgets, NetworkKeepsTwentyFourValues)
{
    NetworkFace face(context, statistics);
    EXPECT_TRUE(face.bars().isEmpty());
    statistics.links = {{.name = QStringLiteral("eth0")}};
    tick();
    for (int i = 2; i <= 24; ++i) {
        statistics.links[0].received += 1000 * i;
        tick();
    }
    EXPECT_EQ(face.bars().size(), 24);
    EXPECT_EQ(face.bars().first(), 0);
    statistics.links[0].received += 1000 * 25;
    tick();
    EXPECT_EQ(face.bars().size(), 24);
    EXPECT_GT(face.bars().first(), 0) << "the oldest has gone";
    EXPECT_EQ(face.bars().last(), 1);
}

TEST_F(SystemWidgets, NetworkStartsAtZeroAndSilenceStaysFlat)
{
    statistics.links = {{.name = QStringLiteral("eth0"), .received = 5000, .sent = 900}};
    NetworkFace face(context, statistics);
    tick();
    EXPECT_EQ(face.down(), QStringLiteral("0 B/s"));
    EXPECT_EQ(face.bars(), QList<double>{0});
    statistics.links[0].received += 2000;
    statistics.links[0].sent += 300;
    tick();
    EXPECT_EQ(face.down(), QStringLiteral("2 KB/s"));
    EXPECT_EQ(face.up(), QStringLiteral("300 B/s"));
    EXPECT_EQ(face.bars(), (QList<double>{0, 1}));
}

TEST(Load, TintChangesAtSeventyAndNinetyPercent)
{
    EXPECT_EQ(loadTint(0.699, accent), accent);
    EXPECT_EQ(loadTint(0.7, accent), signalColors::orange);
    EXPECT_EQ(loadTint(0.9, accent), signalColors::red);
}

TEST(Load, MemoryIsToldInDecimalGigabytes)
{
    EXPECT_EQ(ramDetail(0.325, 16'000'000'000), QStringLiteral("RAM 5.2 / 16 GB"));
}

TEST_F(SystemWidgets, SystemStartsWithoutALoadAndMeasuresItsOwnInterval)
{
    statistics.ticks = CpuTicks{.user = 100, .idle = 100};
    statistics.physical = 8'000'000'000;
    statistics.pages =
        MemoryPages{.active = 500'000, .wired = 250'000, .compressor = 250'000, .pageSize = 4000};
    SystemFace face(context, statistics);
    tick();
    EXPECT_EQ(face.cpuText(), QStringLiteral("0%"));
    EXPECT_EQ(face.ramText(), QStringLiteral("50%"));
    EXPECT_EQ(face.detail(), QStringLiteral("RAM 4.0 / 8 GB"));
    statistics.ticks = CpuTicks{.user = 175, .idle = 125};
    tick();
    EXPECT_EQ(face.cpuText(), QStringLiteral("75%"));
    EXPECT_EQ(face.cpuTint(), signalColors::orange);
}

TEST_F(SystemWidgets, SystemInfoHasFourRows)
{
    statistics.seconds = 7260;
    SystemInfoFace face(context, statistics, machine);
    EXPECT_EQ(face.labels().size(), 4);
    EXPECT_EQ(face.values(), (QStringList{QStringLiteral("2h 1m"), QStringLiteral("Linux 6.1.0"),
                                          QStringLiteral("host"), QStringLiteral("Chip One")}));
}

TEST_F(SystemWidgets, UsageGraphFollowsTheSharedHistory)
{
    statistics.physical = 4000;
    statistics.pages = MemoryPages{.active = 1, .pageSize = 1000};
    SystemHistoryStore history(statistics, scheduler);
    UsageGraphFace face(context, history);
    int changes = 0;
    QObject::connect(&face, &UsageGraphFace::historyChanged, &face, [&] { ++changes; });
    history.setActive(true);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(face.ram(), QList<double>{0.25});
    EXPECT_EQ(face.ramText(), QStringLiteral("25%"));
    EXPECT_EQ(face.cpuText(), QStringLiteral("0%"));
}

TEST(Temperature, TintChangesAtFiftyFiveAndSeventyFive)
{
    EXPECT_EQ(temperatureTint(54.9, accent), accent);
    EXPECT_EQ(temperatureTint(55, accent), signalColors::orange);
    EXPECT_EQ(temperatureTint(75, accent), signalColors::red);
}

TEST(Temperature, TheRingIsEmptyAtThirtyAndFullAtAHundred)
{
    EXPECT_EQ(temperatureFraction(12), 0);
    EXPECT_EQ(temperatureFraction(65), 0.5);
    EXPECT_EQ(temperatureFraction(101), 1);
}

TEST_F(SystemWidgets, ABatteryValueAloneShowsTheFallback)
{
    power.setTemperature(3010);
    statistics.thermal = ThermalState::serious;
    TemperatureService service({smc, thermal, machine, power, defaults, recorded, scheduler});
    TemperatureFace face(context, service, statistics);
    tick();
    ASSERT_TRUE(service.latest());
    EXPECT_FALSE(face.hasCpu());
    EXPECT_TRUE(face.hasBattery());
    EXPECT_EQ(face.stateText(), QStringLiteral("Serious"));
}

TEST_F(SystemWidgets, TemperatureIsReadOnEachTickInTheUsersUnit)
{
    thermal.services = {{QStringLiteral("cpu"), 60.0}};
    TemperatureService service({smc, thermal, machine, power, defaults, recorded, scheduler});
    TemperatureFace face(context, service, statistics);
    tick();
    EXPECT_EQ(face.cpuText(), QStringLiteral("60°"));
    EXPECT_EQ(face.unit(), QStringLiteral("°C"));
    settings.setCelsius(false);
    EXPECT_EQ(face.cpuText(), QStringLiteral("140°"));
    EXPECT_EQ(face.unit(), QStringLiteral("°F"));
    EXPECT_EQ(face.batteryText(), QString());
    power.setTemperature(3000);
    tick();
    EXPECT_EQ(face.batteryText(), QStringLiteral("86"));
}

} // namespace brimlight::test
