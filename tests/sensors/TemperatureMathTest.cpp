#include "fakes/SensorFakes.h"
#include "platform/SmcRecord.h"
#include "sensors/BatteryTemperatureReader.h"
#include "sensors/CPUTemperatureSmoother.h"
#include "sensors/TemperatureOutlierFilter.h"
#include "sensors/TemperatureValueDecoder.h"

#include <gtest/gtest.h>

namespace brimlight::test {

using BatteryTemperatureReader::readFromSmartBattery;
using TemperatureOutlierFilter::maxRejectingOutliers;
using TemperatureValueDecoder::decodeSMCFloat;
using TemperatureValueDecoder::smcFloatType;

namespace {

/// 42.5 as a single.
const QByteArray fortyTwoAndAHalf = QByteArray::fromHex("00002a42");

std::optional<double> batteryOf(double raw)
{
    FakePowerSources power;
    power.setTemperature(raw);
    return readFromSmartBattery(power.battery);
}

} // namespace

TEST(TemperatureValueDecoder, TakesTheLowestByteFirst)
{
    EXPECT_EQ(smcFloatType, SmcLayout::code("flt "));
    EXPECT_EQ(decodeSMCFloat(fortyTwoAndAHalf, 4, smcFloatType), 42.5);
    EXPECT_EQ(decodeSMCFloat(QByteArray::fromHex("000020c1"), 4, smcFloatType), -10.0);
}

TEST(TemperatureValueDecoder, AcceptsASizeOfEightAndReadsTheFirstFourBytes)
{
    EXPECT_EQ(decodeSMCFloat(fortyTwoAndAHalf + QByteArray::fromHex("ffffffff"), 8, smcFloatType), 42.5);
}

TEST(TemperatureValueDecoder, RefusesOtherTypesAndFewerBytes)
{
    EXPECT_FALSE(decodeSMCFloat(fortyTwoAndAHalf, 4, SmcLayout::code("sp78")));
    EXPECT_FALSE(decodeSMCFloat(fortyTwoAndAHalf, 4, SmcLayout::code("flt")));
    EXPECT_FALSE(decodeSMCFloat(fortyTwoAndAHalf, 3, smcFloatType));
    EXPECT_FALSE(decodeSMCFloat(fortyTwoAndAHalf.first(3), 4, smcFloatType));
    EXPECT_FALSE(decodeSMCFloat({}, 0, smcFloatType));
}

TEST(TemperatureOutlierFilter, DropsWhatStandsTwentyAboveTheLowerQuartile)
{
    EXPECT_EQ(maxRejectingOutliers({40, 41, 42, 95}), 42);
    EXPECT_EQ(maxRejectingOutliers({95, 42, 40, 41}), 42) << "in any order";
    EXPECT_EQ(maxRejectingOutliers({40, 41, 42, 61}), 42) << "20 exactly is far";
    EXPECT_EQ(maxRejectingOutliers({40, 41, 42, 60.5}), 60.5);
}

TEST(TemperatureOutlierFilter, FewerThanFourValuesAreNotFiltered)
{
    EXPECT_EQ(maxRejectingOutliers({40, 41, 42}), 42);
    EXPECT_EQ(maxRejectingOutliers({40, 95, 96}), 96);
    EXPECT_EQ(maxRejectingOutliers({95}), 95);
    EXPECT_FALSE(maxRejectingOutliers({}));
}

TEST(TemperatureOutlierFilter, DropsTenAtMost)
{
    std::vector<double> values(18, 50.0);
    values.insert(values.end(), 12, 100.0);
    EXPECT_EQ(maxRejectingOutliers(values), 100);
    values.resize(18);
    values.insert(values.end(), 10, 100.0);
    EXPECT_EQ(maxRejectingOutliers(values), 50);
}

TEST(TemperatureOutlierFilter, LeavesTwoValues)
{
    // The quartile is the second value; both above it go, the second itself is never far.
    EXPECT_EQ(maxRejectingOutliers({-50, 0, 90, 91}), 0);
}

TEST(CPUTemperatureSmoother, ASpikeHasToComeTwice)
{
    CPUTemperatureSmoother smoother(3);
    EXPECT_EQ(smoother.push(50), 50);
    EXPECT_EQ(smoother.push(90), 50);
    EXPECT_EQ(smoother.push(91), 90);
    EXPECT_EQ(smoother.push(52), 90) << "the median of 90, 91, 52";
    EXPECT_EQ(smoother.push(52), 52);
}

TEST(CPUTemperatureSmoother, StartsANewWindowWhenCleared)
{
    CPUTemperatureSmoother smoother(3);
    smoother.push(50);
    smoother.push(50);
    smoother.clear();
    EXPECT_EQ(smoother.push(90), 90);
}

TEST(BatteryTemperatureReader, TakesHundredthsOfCelsius)
{
    EXPECT_DOUBLE_EQ(batteryOf(3010).value(), 30.1);
    EXPECT_DOUBLE_EQ(batteryOf(-500).value(), -5);
}

TEST(BatteryTemperatureReader, TakesMoreThanTwoHundredAsKelvin)
{
    EXPECT_NEAR(batteryOf(30415).value(), 31.0, 1e-9);
    EXPECT_FALSE(batteryOf(20000)) << "200 exactly stays Celsius";
    EXPECT_FALSE(batteryOf(20001)) << "-73 degrees";
}

TEST(BatteryTemperatureReader, RefusesWhatNoBatteryHas)
{
    EXPECT_FALSE(batteryOf(8000));
    EXPECT_TRUE(batteryOf(7999));
    EXPECT_FALSE(batteryOf(-1000));
    EXPECT_TRUE(batteryOf(-999));
    FakePowerSources power;
    EXPECT_FALSE(readFromSmartBattery(power.battery)) << "no battery";
    power.battery = SmartBattery{.cycleCount = 3};
    EXPECT_FALSE(readFromSmartBattery(power.battery)) << "one that does not tell";
}

} // namespace brimlight::test
