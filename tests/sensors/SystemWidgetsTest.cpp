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
    SystemWidgets() { show(); }
    void tick() { pass(1s); }
    void pass(std::chrono::milliseconds time)
    {
        statistics.seconds += static_cast<double>(time.count()) / 1000;
        scheduler.advance(time);
    }
    /// As when the panel closes; its tick stands still then.
    void hide()
    {
        context.setLive(false);
        ticker.setActive(false);
    }
    /// As when it opens again. What is asked has been answered then.
    void show()
    {
        context.setLive(true);
        ticker.setActive(true);
        scheduler.runPosted();
    }

    FakeHostStatistics statistics;
    FakePowerSources power;
    FakeMachine machine;
    FakeSmc smc;
    FakeThermal thermal;
    SystemSampler systemSampler{statistics, scheduler};
    NetworkSampler networkSampler{statistics, scheduler};
    DiskSampler diskSampler{statistics, QStringLiteral("/home/somebody"), scheduler};
    PowerSampler powerSampler{power, scheduler};
    ThermalStateSampler stateSampler{statistics, scheduler};
    MachineSampler machineSampler{machine, statistics, scheduler};
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
    BatteryFace face(context, powerSampler);
    EXPECT_EQ(face.number(), QStringLiteral("—"));
    EXPECT_EQ(face.fraction(), 0);
    EXPECT_EQ(face.status(), QStringLiteral("Plugged in"));
    EXPECT_EQ(face.symbol(), QStringLiteral("battery.100"));
}

TEST_F(SystemWidgets, BatteryIsReadOnEachTickWhileItIsSeen)
{
    BatteryFace face(context, powerSampler);
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
    BatteryFace face(context, powerSampler);
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
    hide();
    BatteryHealthFace face(context, powerSampler);
    show();
    EXPECT_FALSE(face.hasBattery());
    power.battery = SmartBattery{.cycleCount = 312, .designCapacity = 5000, .rawMaxCapacity = 4000};
    tick();
    EXPECT_FALSE(face.hasBattery()) << "not on a tick";
    hide();
    show();
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

TEST_F(SystemWidgets, DiskShowsItsVolumeTheMomentItAppears)
{
    statistics.capacity = VolumeCapacity{.total = 1'000'000'000'000, .available = 250'000'000'000};
    hide();
    DiskFace face(context, diskSampler);
    show();
    EXPECT_EQ(face.percent(), QStringLiteral("75%"));
    EXPECT_EQ(face.freeText(), QStringLiteral("250 GB free"));
    EXPECT_EQ(statistics.volumesAsked, QStringList{QStringLiteral("/")});
}

TEST_F(SystemWidgets, NetworkKeepsTwentyFourValues)
{
    NetworkFace face(context, networkSampler);
    EXPECT_TRUE(face.bars().isEmpty());
    statistics.links = {{.name = QStringLiteral("eth0")}};
    tick();
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
    NetworkFace face(context, networkSampler);
    tick();
    EXPECT_EQ(face.down(), QStringLiteral("0 B/s"));
    EXPECT_TRUE(face.bars().isEmpty()) << "no rate yet";
    tick();
    EXPECT_EQ(face.bars(), QList<double>{0});
    statistics.links[0].received += 2000;
    statistics.links[0].sent += 300;
    tick();
    EXPECT_EQ(face.down(), QStringLiteral("2 KB/s"));
    EXPECT_EQ(face.up(), QStringLiteral("300 B/s"));
    EXPECT_EQ(face.bars(), (QList<double>{0, 1}));
}

TEST_F(SystemWidgets, NetworkShowsItsRateAMomentAfterItAppears)
{
    statistics.links = {{.name = QStringLiteral("eth0"), .received = 5000, .sent = 900}};
    hide();
    NetworkFace face(context, networkSampler);
    show();
    EXPECT_EQ(face.down(), QStringLiteral("0 B/s"));
    statistics.links[0].received += 1000;
    pass(250ms);
    EXPECT_EQ(face.down(), QStringLiteral("4 KB/s")) << "long before the tick";
    EXPECT_TRUE(face.bars().isEmpty()) << "a bar belongs to a tick";
    pass(750ms);
    EXPECT_EQ(face.bars().size(), 1);
}

TEST_F(SystemWidgets, NetworkDoesNotAverageAPause)
{
    statistics.links = {{.name = QStringLiteral("eth0")}};
    hide();
    NetworkFace face(context, networkSampler);
    show();
    tick();
    hide();
    statistics.links[0].received += 7'200'000'000;
    pass(1h);
    show();
    EXPECT_EQ(face.down(), QStringLiteral("0 B/s")) << "not the hour's mean of 2.0 MB/s";
    statistics.links[0].received += 500;
    pass(250ms);
    EXPECT_EQ(face.down(), QStringLiteral("2 KB/s"));
    EXPECT_EQ(face.bars().size(), 1) << "none for the pause";
}

TEST_F(SystemWidgets, AShortPauseGivesARateAtOnce)
{
    statistics.links = {{.name = QStringLiteral("eth0")}};
    hide();
    NetworkFace face(context, networkSampler);
    show();
    pass(250ms);
    hide();
    statistics.links[0].received += 6000;
    pass(2s);
    show();
    EXPECT_EQ(face.down(), QStringLiteral("3 KB/s"));
}

TEST_F(SystemWidgets, ANewTileBesideAnotherMeasuresFromWhatIsKnown)
{
    statistics.links = {{.name = QStringLiteral("eth0")}};
    NetworkFace first(context, networkSampler);
    tick();
    statistics.links[0].received += 6000;
    hide();
    NetworkFace second(context, networkSampler);
    pass(500ms);
    show();
    EXPECT_EQ(second.down(), QStringLiteral("12 KB/s"));
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
    SystemFace face(context, systemSampler);
    tick();
    EXPECT_EQ(face.cpuText(), QStringLiteral("0%"));
    EXPECT_EQ(face.ramText(), QStringLiteral("50%"));
    EXPECT_EQ(face.detail(), QStringLiteral("RAM 4.0 / 8 GB"));
    statistics.ticks = CpuTicks{.user = 175, .idle = 125};
    tick();
    EXPECT_EQ(face.cpuText(), QStringLiteral("75%"));
    EXPECT_EQ(face.cpuTint(), signalColors::orange);
}

TEST_F(SystemWidgets, SystemShowsItsMemoryAtOnceAndItsLoadAMomentLater)
{
    statistics.ticks = CpuTicks{.user = 100, .idle = 100};
    statistics.physical = 8'000'000'000;
    statistics.pages = MemoryPages{.active = 1'000'000, .pageSize = 4000};
    hide();
    SystemFace face(context, systemSampler);
    show();
    EXPECT_EQ(face.ramText(), QStringLiteral("50%"));
    EXPECT_EQ(face.detail(), QStringLiteral("RAM 4.0 / 8 GB"));
    statistics.ticks = CpuTicks{.user = 120, .idle = 180};
    pass(250ms);
    EXPECT_EQ(face.cpuText(), QStringLiteral("20%")) << "long before the tick";
}

TEST_F(SystemWidgets, SystemDoesNotAverageAPause)
{
    statistics.ticks = CpuTicks{.user = 100, .idle = 100};
    hide();
    SystemFace face(context, systemSampler);
    show();
    hide();
    statistics.ticks = CpuTicks{.user = 300'100, .idle = 100'100};
    pass(1h);
    show();
    EXPECT_EQ(face.cpuText(), QStringLiteral("0%")) << "not the hour's mean of 75 percent";
    statistics.ticks = CpuTicks{.user = 300'130, .idle = 100'170};
    pass(250ms);
    EXPECT_EQ(face.cpuText(), QStringLiteral("30%"));
}

TEST_F(SystemWidgets, HoweverManyTilesThereAreATickIsOneQuestion)
{
    const BatteryFace batteries[] = {
        {context, powerSampler}, {context, powerSampler}, {context, powerSampler}};
    const SystemFace loads[] = {{context, systemSampler}, {context, systemSampler}};
    const DiskFace disks[] = {{context, diskSampler}, {context, diskSampler}};
    tick();
    EXPECT_EQ(power.reads, 1);
    EXPECT_EQ(statistics.cpuReads, 1);
    EXPECT_EQ(statistics.volumesAsked.size(), 2) << "the root and, unknown, the home";
}

TEST_F(SystemWidgets, ASourceThatHangsKeepsWhatIsShownAndIsAskedOnce)
{
    power.source = PowerSourceDescription{.currentCapacity = 30, .maxCapacity = 100};
    BatteryFace face(context, powerSampler);
    tick();
    scheduler.holdAside();
    power.source->currentCapacity = 20;
    for (int i = 0; i < 10; ++i)
        tick();
    EXPECT_EQ(face.percent(), QStringLiteral("30%"));
    EXPECT_EQ(scheduler.heldCount(), 1);
    scheduler.letAsideGo();
    EXPECT_EQ(face.percent(), QStringLiteral("20%"));
}

TEST_F(SystemWidgets, AnAnswerThatComesAfterItsTileIsNobodys)
{
    {
        DiskFace face(context, diskSampler);
        scheduler.holdAside();
        tick();
    }
    scheduler.letAsideGo();
    EXPECT_TRUE(diskSampler.latest());
}

TEST_F(SystemWidgets, SystemInfoHasFourRows)
{
    statistics.seconds = 7260;
    hide();
    SystemInfoFace face(context, machineSampler);
    EXPECT_TRUE(face.values().isEmpty());
    show();
    EXPECT_EQ(face.labels().size(), 4);
    EXPECT_EQ(face.values(), (QStringList{QStringLiteral("2h 1m"), QStringLiteral("Linux 6.1.0"),
                                          QStringLiteral("host"), QStringLiteral("Chip One")}));
}

TEST_F(SystemWidgets, UsageGraphFollowsTheSharedHistory)
{
    statistics.physical = 4000;
    statistics.pages = MemoryPages{.active = 1, .pageSize = 1000};
    SystemHistoryStore history(systemSampler, scheduler);
    UsageGraphFace face(context, history);
    int changes = 0;
    QObject::connect(&face, &UsageGraphFace::historyChanged, &face, [&] { ++changes; });
    history.setActive(true);
    scheduler.runPosted();
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
    TemperatureService service({smc, thermal, machine, powerSampler, defaults, recorded, scheduler});
    TemperatureFace face(context, service, stateSampler);
    tick();
    ASSERT_TRUE(service.latest());
    EXPECT_FALSE(face.hasCpu());
    EXPECT_TRUE(face.hasBattery());
    EXPECT_EQ(face.stateText(), QStringLiteral("Serious"));
}

TEST_F(SystemWidgets, TemperatureIsReadOnEachTickInTheUsersUnit)
{
    thermal.services = {{QStringLiteral("cpu"), 60.0}};
    TemperatureService service({smc, thermal, machine, powerSampler, defaults, recorded, scheduler});
    TemperatureFace face(context, service, stateSampler);
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
