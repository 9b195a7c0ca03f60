#pragma once

#include "fakes/Fakes.h"
#include "fakes/SensorFakes.h"
#include "sensors/BatteryTemperatureReader.h"
#include "sensors/SMCBridge.h"

#include <gtest/gtest.h>

namespace brimlight::test {

/// A loop whose wall clock can also be set, as by a user or a time server.
class SettableScheduler : public ManualScheduler
{
public:
    QDateTime now() const override { return ManualScheduler::now().addMSecs(offset.count()); }

    std::chrono::milliseconds offset{0};
};

/// A machine with a controller, and the bridge to it.
class SMCBridgeTest : public testing::Test
{
protected:
    void open()
    {
        sensors = SMCSensors::open(smc, machine);
        if (sensors)
            bridge.emplace(sensors->inventory(), defaults, log);
    }
    /// As the next start of the program does.
    void reopen()
    {
        bridge.reset();
        sensors.reset();
        smc.requests.clear();
        log.entries.clear();
        open();
    }
    std::optional<TemperatureReading> read()
    {
        const QSet<QString> skipped = bridge->isWatching() ? QSet<QString>() : bridge->denylist();
        return bridge->reading(sensors->read(skipped),
                               BatteryTemperatureReader::readFromSmartBattery(power.battery),
                               scheduler.now());
    }
    std::optional<double> cpuMax()
    {
        const auto reading = read();
        return reading ? reading->cpuMaxC : std::nullopt;
    }
    QString storageKey() const
    {
        return QStringLiteral("Sorrelbrook.HotSpotDenylist.v1.Chip_One.Board2,1.6_1_0-18");
    }
    std::optional<QStringList> persisted() const { return defaults.read<QStringList>(storageKey()); }

    FakeSmc smc;
    FakeMachine machine;
    FakePowerSources power;
    MemoryDefaults defaults;
    RecordingLog log;
    SettableScheduler scheduler;
    std::unique_ptr<SMCSensors> sensors;
    std::optional<SMCBridge> bridge;
};

} // namespace brimlight::test
