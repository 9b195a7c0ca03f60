#include "sensors/IOHIDBridge.h"
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
    std::optional<double> cpuMax()
    {
        const auto bridge = IOHIDBridge::open(thermal);
        return bridge ? bridge->readCpuMax() : std::nullopt;
    }

    FakeThermal thermal;
};

} // namespace

TEST_F(IOHIDBridgeTest, IsNothingWhereTheServicesCannotBeListed)
{
    thermal.canList = false;
    EXPECT_FALSE(IOHIDBridge::open(thermal));
    thermal.canList = true;
    EXPECT_EQ(IOHIDBridge::open(thermal)->count(), 0);
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
    EXPECT_EQ(cpuMax(), 40);
    thermal.services[1].celsius = 119.5;
    EXPECT_EQ(cpuMax(), 119.5);
    thermal.services[0].celsius = thermal.services[1].celsius = -2;
    EXPECT_FALSE(cpuMax()) << "0 and below alone";
}

TEST_F(IOHIDBridgeTest, RejectsOutliers)
{
    for (const double celsius : {40, 41, 42, 95})
        add("cpu", celsius);
    EXPECT_EQ(cpuMax(), 42);
}

TEST_F(IOHIDBridgeTest, SensorsOfOtherPartsAreNotEvenAsked)
{
    add("acpitz", 27.8);
    add("cpu", 50);
    EXPECT_EQ(cpuMax(), 50);
    EXPECT_EQ(thermal.asked, QList<int>{1});
}

} // namespace brimlight::test
