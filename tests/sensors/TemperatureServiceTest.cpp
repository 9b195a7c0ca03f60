#include "sensors/TemperatureService.h"
#include "fakes/Fakes.h"
#include "fakes/SensorFakes.h"

#include <gtest/gtest.h>

namespace brimlight::test {

using namespace std::chrono_literals;

namespace {

class TemperatureServiceTest : public testing::Test
{
protected:
    TemperatureServiceTest()
    {
        smc.add("Tp01", 40);
        thermal.services = {{QStringLiteral("cpu-thermal"), 60}};
        make();
    }
    void make()
    {
        service = std::make_unique<TemperatureService>(
            TemperaturePorts{smc, thermal, machine, powerSampler, defaults, log, scheduler});
        QObject::connect(service.get(), &TemperatureService::latestChanged, [this] { ++changes; });
    }
    std::optional<double> refresh()
    {
        service->refresh();
        scheduler.runPosted();
        return service->latest() ? service->latest()->cpuMaxC : std::nullopt;
    }
    void setSmc(float celsius) { smc.recordCelsius("Tp01", celsius); }

    FakeSmc smc;
    FakeThermal thermal;
    FakeMachine machine;
    FakePowerSources power;
    MemoryDefaults defaults;
    RecordingLog log;
    ManualScheduler scheduler;
    PowerSampler powerSampler{power, scheduler};
    std::unique_ptr<TemperatureService> service;
    int changes = 0;
};

} // namespace

TEST_F(TemperatureServiceTest, ReadsOnceByItselfAfterTheStart)
{
    scheduler.runPosted();
    EXPECT_EQ(smc.opened, 0) << "nothing before the first frame";
    EXPECT_FALSE(service->latest());
    scheduler.advance(1s);
    EXPECT_EQ(service->latest(), (TemperatureReading{.cpuMaxC = 40, .timestamp = scheduler.now()}));
    EXPECT_EQ(changes, 1);
    scheduler.advance(1h);
    EXPECT_EQ(changes, 1);
}

TEST_F(TemperatureServiceTest, AViewThatAsksEarlierHasTakenTheFirstReading)
{
    service->refresh();
    EXPECT_EQ(changes, 0) << "not within the call";
    scheduler.advance(1h);
    EXPECT_EQ(changes, 1);
}

TEST_F(TemperatureServiceTest, DoesNotOutliveItsFirstReading)
{
    service.reset();
    scheduler.advance(1h);
    EXPECT_EQ(smc.opened, 0);
}

TEST_F(TemperatureServiceTest, EachBridgeIsBuiltAtMostOnceAndOnlyWhenWanted)
{
    refresh();
    refresh();
    EXPECT_EQ(smc.opened, 1);
    EXPECT_EQ(thermal.matched, 0);
    smc.isBroken = true;
    refresh();
    refresh();
    EXPECT_EQ(smc.opened, 1);
    EXPECT_EQ(thermal.matched, 1);
}

TEST_F(TemperatureServiceTest, ABridgeThatCouldNotBeBuiltIsNotTriedAgain)
{
    smc.isThere = false;
    thermal.canList = false;
    EXPECT_FALSE(refresh());
    smc.isThere = true;
    thermal.canList = true;
    EXPECT_FALSE(refresh());
    EXPECT_EQ(smc.opened, 1);
    EXPECT_EQ(thermal.matched, 1);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(log.entries.size(), 1U) << "said once";
}

TEST_F(TemperatureServiceTest, ReadsTheThermalServicesWithoutAController)
{
    smc.isThere = false;
    EXPECT_EQ(refresh(), 60);
}

TEST_F(TemperatureServiceTest, ABatteryThroughTheControllerKeepsTheThermalServicesOut)
{
    power.setTemperature(3000);
    smc.keys.clear();
    smc.recordValue("#KEY", "ui32", 4, 0, {0, 0, 0, 0});
    EXPECT_FALSE(refresh());
    EXPECT_EQ(service->latest()->batteryC, 30);
    EXPECT_TRUE(log.messages().filter(QStringLiteral("IOHID")).isEmpty());
}

TEST_F(TemperatureServiceTest, SteadiesTheProcessorsValueOnly)
{
    power.setTemperature(3000);
    EXPECT_EQ(refresh(), 40);
    setSmc(80);
    power.setTemperature(3500);
    scheduler.advance(1s);
    EXPECT_EQ(refresh(), 40);
    EXPECT_EQ(service->latest()->batteryC, 35);
    EXPECT_EQ(service->latest()->timestamp, scheduler.now());
    EXPECT_EQ(refresh(), 80);
}

TEST_F(TemperatureServiceTest, AChangeOfSourceEmptiesTheSmoother)
{
    refresh();
    refresh();
    smc.isBroken = true;
    EXPECT_EQ(refresh(), 60) << "not steadied by values of the other source";
    smc.isBroken = false;
    setSmc(45);
    EXPECT_EQ(refresh(), 45) << "the first source takes over at once";
}

TEST_F(TemperatureServiceTest, AReadingWithoutAProcessorEmptiesTheSmoother)
{
    smc.isBroken = true;
    refresh();
    EXPECT_EQ(refresh(), 60);
    thermal.services[0].celsius.reset();
    refresh();
    EXPECT_EQ(service->latest(), (TemperatureReading{.timestamp = scheduler.now()}));
    thermal.services[0].celsius = 80;
    EXPECT_EQ(refresh(), 80) << "no mean with what was before";
}

TEST_F(TemperatureServiceTest, TheSmootherIsEmptiedByAnEmptyReadingOfTheSameSourceToo)
{
    power.setTemperature(3000);
    refresh();
    refresh();
    smc.valueReply("Tp01").returnCode = 1;
    refresh();
    EXPECT_FALSE(service->latest()->cpuMaxC);
    setSmc(70);
    EXPECT_EQ(refresh(), 70);
}

TEST_F(TemperatureServiceTest, EmptyThermalServicesReplaceTheLastReading)
{
    refresh();
    smc.isBroken = true;
    thermal.services.clear();
    scheduler.advance(1s);
    refresh();
    EXPECT_EQ(service->latest(), (TemperatureReading{.timestamp = scheduler.now()}));
    EXPECT_EQ(changes, 2);
}

TEST_F(TemperatureServiceTest, AFailureLeavesTheLastReading)
{
    thermal.canList = false;
    refresh();
    const auto before = service->latest();
    smc.isBroken = true;
    scheduler.advance(1h);
    refresh();
    EXPECT_EQ(service->latest(), before);
    EXPECT_EQ(changes, 1);
}

TEST_F(TemperatureServiceTest, TellsHowManyThermalServicesThereAre)
{
    smc.isThere = false;
    refresh();
    refresh();
    EXPECT_EQ(log.entries, (std::vector<RecordingLog::Entry>{
                               {LogLevel::info, QStringLiteral("IOHIDBridge"),
                                QStringLiteral("IOHID temperature bridge ready (1 services)")}}));
}

TEST_F(TemperatureServiceTest, ThermalServicesReadWithTheBattery)
{
    smc.isThere = false;
    power.setTemperature(3010);
    refresh();
    EXPECT_EQ(service->latest(),
              (TemperatureReading{.cpuMaxC = 60, .batteryC = 30.1, .timestamp = scheduler.now()}));
}

TEST_F(TemperatureServiceTest, SensorsThatHangLeaveTheLastReadingAndAreAskedOnce)
{
    refresh();
    scheduler.holdAside();
    setSmc(50);
    for (int tick = 0; tick < 5; ++tick) {
        service->refresh();
        scheduler.advance(1s);
    }
    EXPECT_EQ(service->latest()->cpuMaxC, 40);
    EXPECT_EQ(scheduler.heldCount(), 2) << "the sensors and the battery";
    scheduler.letAsideGo();
    EXPECT_EQ(changes, 2);
}

TEST_F(TemperatureServiceTest, ABatteryThatAnswersLateIsAddedToTheReading)
{
    refresh();
    EXPECT_FALSE(service->latest()->batteryC);
    power.setTemperature(3300);
    powerSampler.ask();
    scheduler.runPosted();
    EXPECT_FALSE(service->latest()->batteryC) << "somebody else's question";
    service->refresh();
    scheduler.runPosted();
    EXPECT_EQ(service->latest()->batteryC, 33);
}

TEST_F(TemperatureServiceTest, EveryReadingIsAnnouncedEqualOrNot)
{
    refresh();
    refresh();
    EXPECT_EQ(changes, 2);
}

} // namespace brimlight::test
