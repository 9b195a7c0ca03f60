#include "sensors/IOHIDBridge.h"
#include "fakes/Fakes.h"
#include "fakes/SensorFakes.h"

#include <gtest/gtest.h>

namespace brimlight::test {
namespace {

class IOHIDBridgeTest : public testing::Test
{
protected:
    void add(const char *name, std::optional<double> celsius)
    {
        thermal.services.push_back({QLatin1String(name), celsius});
    }
    TemperatureReading read()
    {
        const auto bridge = IOHIDBridge::open(thermal, power, log, scheduler);
        return bridge ? bridge->readTemperatureReading() : TemperatureReading();
    }

    FakeThermal thermal;
    FakePowerSources power;
    RecordingLog log;
    ManualScheduler scheduler;
};

} // namespace

TEST_F(IOHIDBridgeTest, ReportsWhyItCouldNotStart)
{
    thermal.canList = false;
    EXPECT_FALSE(IOHIDBridge::open(thermal, power, log, scheduler));
    ASSERT_EQ(log.entries.size(), 1U);
    EXPECT_EQ(log.entries[0].level, LogLevel::error);
    EXPECT_EQ(log.entries[0].category, QStringLiteral("IOHIDBridge"));
}

TEST_F(IOHIDBridgeTest, TellsHowManyServicesThereAre)
{
    add("cpu", 40);
    add("acpitz", 41);
    EXPECT_TRUE(IOHIDBridge::open(thermal, power, log, scheduler));
    EXPECT_EQ(log.entries, (std::vector<RecordingLog::Entry>{
                               {LogLevel::info, QStringLiteral("IOHIDBridge"),
                                QStringLiteral("IOHID temperature bridge ready (2 services)")}}));
}

TEST_F(IOHIDBridgeTest, TheNameTellsTheProcessorsSensors)
{
    for (const char *name : {"cpu-thermal", "CPU x86_pkg_temp", "pACC 1", "eACC", "Tdie3"})
        EXPECT_TRUE(IOHIDBridge::isCpuName(QLatin1String(name))) << name;
    for (const char *name : {"acpitz", "gpu-thermal", "", "soc"})
        EXPECT_FALSE(IOHIDBridge::isCpuName(QLatin1String(name))) << name;
}

TEST_F(IOHIDBridgeTest, AWordOfAnotherPartWins)
{
    EXPECT_FALSE(IOHIDBridge::isCpuName(QStringLiteral("tdie battery")));
    for (const char *part :
         {"Battery", "NAND", "ambient", "case", "skin", "tcal", "tdev", "charger", "WiFi", "display"})
        EXPECT_FALSE(IOHIDBridge::isCpuName(QStringLiteral("CPU ") + QLatin1String(part))) << part;
}

TEST_F(IOHIDBridgeTest, ValuesOutOfBoundsAreDropped)
{
    add("cpu0", 40);
    add("cpu1", 120);
    add("cpu2", 0);
    add("cpu3", std::nullopt);
    EXPECT_EQ(read().cpuMaxC, 40);
    thermal.services[1].celsius = 119.5;
    EXPECT_EQ(read().cpuMaxC, 119.5);
    thermal.services[0].celsius = thermal.services[1].celsius = -2;
    EXPECT_FALSE(read().cpuMaxC) << "0 and below alone";
}

TEST_F(IOHIDBridgeTest, RejectsOutliersAndReadsTheBattery)
{
    for (const double celsius : {40, 41, 42, 95})
        add("cpu", celsius);
    power.setTemperature(3010);
    EXPECT_EQ(read(), (TemperatureReading{42, 30.1, scheduler.now()}));
}

TEST_F(IOHIDBridgeTest, WithoutAnythingTheReadingIsEmptyButThere)
{
    add("acpitz", 27.8);
    EXPECT_EQ(read(), (TemperatureReading{.timestamp = scheduler.now()}));
}

} // namespace brimlight::test
