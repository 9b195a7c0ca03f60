#include "sensors/SensorFixture.h"

#include <limits>

namespace brimlight::test {
namespace {

const QString noKeys = QStringLiteral("SMC bridge opened but no float temperature keys were discovered");

} // namespace

TEST_F(SMCBridgeTest, IsNothingWithoutAController)
{
    smc.isThere = false;
    open();
    EXPECT_FALSE(bridge);
    EXPECT_TRUE(log.entries.empty());
}

TEST_F(SMCBridgeTest, AKeyCountOfZeroLeavesALiveBridge)
{
    open();
    ASSERT_TRUE(bridge);
    EXPECT_EQ(log.entries,
              (std::vector<RecordingLog::Entry>{{LogLevel::notice, QStringLiteral("SMCBridge"), noKeys}}));
    EXPECT_FALSE(read());
    smc.recordCelsius("B0AT", 31.5F);
    EXPECT_EQ(read()->batteryC, 31.5);
}

TEST_F(SMCBridgeTest, AKeyCountThatCannotBeReadLeavesALiveBridge)
{
    smc.add("Tp01", 40);
    smc.infoReply("#KEY").returnCode = 1;
    open();
    ASSERT_TRUE(bridge);
    EXPECT_EQ(log.messages(), QStringList{noKeys});
}

TEST_F(SMCBridgeTest, TellsWhatItFound)
{
    smc.add("Tp01", 40);
    smc.add("Te01", 41);
    machine.modelText.reset();
    open();
    EXPECT_EQ(log.entries,
              (std::vector<RecordingLog::Entry>{
                  {LogLevel::info, QStringLiteral("SMCBridge"),
                   QStringLiteral("SMC bridge ready (chip=Chip One, model=unknown, build=6.1.0-18, cpu=2, "
                                  "gpu=0, preset=0, restored=0, calibration=pending)")}}));
}

TEST_F(SMCBridgeTest, AKeyWhoseValueCannotBeReadIsNotListed)
{
    smc.add("Tp01", 40);
    smc.add("Tp02", 60);
    smc.valueReply("Tp02").record[40] = 1;
    open();
    smc.valueReply("Tp02").record[40] = 0;
    EXPECT_EQ(cpuMax(), 40);
    EXPECT_EQ(smc.valueReads("Tp02"), 1) << "only while it was discovered";
}

TEST_F(SMCBridgeTest, KeepsTheProcessorsKeys)
{
    for (const char *key : {"TC0P", "TCXC", "TC0PX", "Tp01", "Te0M", "Tf1z"})
        EXPECT_TRUE(SMCSensors::isCpuKey(QLatin1String(key))) << key;
    for (const char *key : {"Tp012", "Te0", "TG0P", "Ts01", "B0AT", "tp01", "XTp0", ""})
        EXPECT_FALSE(SMCSensors::isCpuKey(QLatin1String(key))) << key;
}

TEST_F(SMCBridgeTest, DiscoversOnlyFloatsOfFourBytesWithTheRightNames)
{
    smc.add("TG0P", 95);
    smc.add("Tp01", 94, "flt ", 8);
    smc.add("Tp02", 93, "sp78", 4);
    smc.add("Tp\xe9\x31", 92);
    smc.add("TC0P", 41);
    open();
    EXPECT_EQ(cpuMax(), 41);
    EXPECT_EQ(smc.valueReads("Tp01"), 0);
    EXPECT_EQ(smc.valueReads("Tp02"), 0);
}

TEST_F(SMCBridgeTest, AnIndexThatCannotBeReadIsPassedOver)
{
    smc.add("Tp01", 40);
    smc.add("Tp02", 50);
    SmcRecord first{};
    first[42] = 8;
    smc.replies.erase(first);
    open();
    EXPECT_EQ(cpuMax(), 50);
}

TEST_F(SMCBridgeTest, ReadsKeysInTheControllersOrderWithOneTransactionEach)
{
    smc.add("Tp09", 40);
    smc.add("Tp01", 50);
    smc.recordCelsius("B0AT", 30);
    open();
    cpuMax();
    smc.requests.clear();
    cpuMax();
    EXPECT_EQ(smc.requests, (std::vector{smc.valueRequests.at(QStringLiteral("Tp09")),
                                         smc.valueRequests.at(QStringLiteral("Tp01")),
                                         smc.valueRequests.at(QStringLiteral("B0AT"))}));
}

TEST_F(SMCBridgeTest, ValuesOutOfBoundsAreDropped)
{
    smc.add("Tp01", 40);
    smc.add("Tp02", 50);
    open();
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    for (const float broken : {0.0F, 150.0F, -3.0F, 65273.0F, nan}) {
        smc.recordCelsius("Tp02", broken);
        EXPECT_EQ(cpuMax(), 40) << broken;
    }
    smc.recordCelsius("Tp02", 149.9F);
    EXPECT_NEAR(cpuMax().value(), 149.9, 1e-4);
    smc.valueReply("Tp01").returnCode = 1;
    for (const float broken : {0.0F, -3.0F, nan}) {
        smc.recordCelsius("Tp02", broken);
        EXPECT_FALSE(read()) << broken << " alone";
    }
}

TEST_F(SMCBridgeTest, TheBatteryStaysBelowEightyOrTheOtherReaderIsTried)
{
    smc.add("Tp01", 40);
    smc.recordCelsius("B0AT", 80);
    power.setTemperature(2950);
    open();
    EXPECT_FALSE(sensors->readBatteryTemperature());
    EXPECT_EQ(read()->batteryC, 29.5);
    smc.recordCelsius("B0AT", 79.5F);
    EXPECT_EQ(read()->batteryC, 79.5);
    smc.recordCelsius("B0AT", -1);
    EXPECT_EQ(read()->batteryC, 29.5) << "the general bounds hold as well";
}

TEST_F(SMCBridgeTest, TheBatteryAloneIsAReading)
{
    smc.add("Tp01", 40);
    smc.recordCelsius("B0AT", 30);
    open();
    smc.valueReply("Tp01").returnCode = 1;
    const auto reading = read();
    ASSERT_TRUE(reading);
    EXPECT_EQ(*reading, (TemperatureReading{.batteryC = 30, .timestamp = scheduler.now()}));
}

TEST_F(SMCBridgeTest, NothingAtAllIsNoReading)
{
    smc.add("Tp01", 40);
    open();
    smc.isBroken = true;
    EXPECT_FALSE(read());
    smc.isBroken = false;
    EXPECT_EQ(cpuMax(), 40);
}

TEST_F(SMCBridgeTest, ClosesItsConnectionOnceAndAtTheEnd)
{
    smc.add("Tp01", 40);
    open();
    EXPECT_TRUE(smc.closed.empty());
    sensors.reset();
    EXPECT_EQ(smc.closed, std::vector{FakeSmc::connection});
}

} // namespace brimlight::test
