#include "platform/linux/kernel/HwmonSmc.h"

#include "fakes/Fakes.h"
#include "fakes/SensorFakes.h"
#include "fixtures/machines.h"
#include "platform/linux/kernel/SysfsPowerSources.h"
#include "sensors/BatteryTemperatureReader.h"
#include "sensors/SMCBridge.h"
#include "sensors/TemperatureValueDecoder.h"

#include <gtest/gtest.h>

#include <QFile>

namespace brimlight::test {

using namespace std::chrono_literals;

namespace {

/// A machine's sensors as the other side of the protocol sees them.
class Sensors
{
public:
    explicit Sensors(const Machine &machine)
        : smc(machine.sys())
        , connection(SMCConnection::open(smc))
    {
    }

    QStringList keys() const
    {
        QStringList list;
        for (uint32_t i = 0; i < connection->keyCount().value_or(0); ++i)
            list.append(connection->keyAt(i).value_or(QStringLiteral("?")));
        return list;
    }
    std::optional<double> celsius(const char *key) const
    {
        const auto value = connection->readValue(QLatin1String(key));
        if (!value)
            return std::nullopt;
        return TemperatureValueDecoder::decodeSMCFloat(value->data, value->info.dataSize,
                                                       value->info.dataType);
    }

    HwmonSmc smc;
    std::unique_ptr<SMCConnection> connection;
};

/// A machine's temperatures as the program reads them, with time by hand.
class Temperatures
{
public:
    explicit Temperatures(const Machine &machine, MemoryDefaults &remembered)
        : smc(machine.sys())
        , battery(SysfsPowerSources(machine.sys()).read().battery)
        , sensors(SMCSensors::open(smc, info))
    {
        if (sensors)
            bridge.emplace(sensors->inventory(), remembered, log);
    }

    std::optional<TemperatureReading> read()
    {
        if (!bridge)
            return std::nullopt;
        return bridge->reading(sensors->read({}), BatteryTemperatureReader::readFromSmartBattery(battery),
                               scheduler.now());
    }

    HwmonSmc smc;
    FakeMachine info;
    std::optional<SmartBattery> battery;
    RecordingLog log;
    ManualScheduler scheduler;
    std::unique_ptr<SMCSensors> sensors;
    std::optional<SMCBridge> bridge;
};

std::optional<TemperatureReading> readingOf(const Machine &machine)
{
    MemoryDefaults defaults;
    return Temperatures(machine, defaults).read();
}

/// Adds a chip in the simplest place. Each sensor is a label, which may be empty, and millidegrees.
void addChip(const Machine &machine, const QString &hwmon, const char *name,
             std::initializer_list<std::pair<const char *, int>> sensors)
{
    const QString folder = QStringLiteral("sys/class/hwmon/") + hwmon;
    machine.write(folder + QStringLiteral("/name"), QByteArray(name) + '\n');
    int number = 1;
    for (const auto &[label, milli] : sensors) {
        const QString sensor = QStringLiteral("%1/temp%2_").arg(folder).arg(number++);
        machine.write(sensor + QStringLiteral("input"), QByteArray::number(milli) + '\n');
        if (*label)
            machine.write(sensor + QStringLiteral("label"), QByteArray(label) + '\n');
    }
}

QString coretempFile(const Machine &machine, const char *file)
{
    return machine.hwmon(QStringLiteral("coretemp")) + u'/' + QLatin1String(file);
}

/// Leaves a laptop's chip with its four cores alone.
void dropPackage(const Machine &machine)
{
    for (const char *file : {"temp1_input", "temp1_label"})
        machine.remove(coretempFile(machine, file));
}

/// What the temperature widget would show while the sensors are being watched, and afterwards.
std::vector<std::optional<double>> steadyCelsius(const Machine &machine)
{
    MemoryDefaults defaults;
    Temperatures temperatures(machine, defaults);
    std::vector<std::optional<double>> celsius;
    for (int reading = 0; reading < 3; ++reading) {
        const auto taken = temperatures.read();
        celsius.push_back(taken ? taken->cpuMaxC : std::nullopt);
        temperatures.scheduler.advance(60s);
    }
    return celsius;
}

} // namespace

TEST(HwmonSmc, AHotCoreAmongManyIsThePackagesTemperature)
{
    const Machine machine(MachineKind::desktopHybrid);
    EXPECT_EQ(steadyCelsius(machine), (std::vector<std::optional<double>>{95, 95, 95}));
    machine.write(coretempFile(machine, "temp1_input"), "51000\n");
    EXPECT_EQ(readingOf(machine)->cpuMaxC, 51) << "no core speaks for the package";
}

TEST(HwmonSmc, AHotDieAmongManyIsTheProcessorsTemperature)
{
    const Machine machine(MachineKind::serverEpyc);
    EXPECT_EQ(steadyCelsius(machine), (std::vector<std::optional<double>>{84, 84, 84}));
    EXPECT_EQ(Sensors(machine).keys(), QStringList{QStringLiteral("TC0P")});
    machine.removeHwmon(QStringLiteral("k10temp"));
    EXPECT_TRUE(readingOf(machine)->cpuMaxC) << "the others go on";
}

TEST(HwmonSmc, ALaptopGivesItsPackageAndItsBattery)
{
    const auto intel = readingOf(Machine(MachineKind::laptopIntel));
    ASSERT_TRUE(intel);
    EXPECT_EQ(intel->cpuMaxC, 52);
    EXPECT_NEAR(intel->batteryC.value(), 29.8, 1e-5);
    const auto amd = readingOf(Machine(MachineKind::laptopAmd));
    ASSERT_TRUE(amd);
    EXPECT_EQ(amd->cpuMaxC, 48.125);
    EXPECT_FALSE(amd->batteryC);
}

TEST(HwmonSmc, ABoardGivesItsOneSensor)
{
    const auto reading = readingOf(Machine(MachineKind::boardArm));
    ASSERT_TRUE(reading);
    EXPECT_NEAR(reading->cpuMaxC.value(), 47.712, 1e-5);
}

TEST(HwmonSmc, WithoutHwmonThereIsNoController)
{
    EXPECT_FALSE(Sensors(Machine(MachineKind::virtualMachine)).connection);
    HwmonSmc nowhere(QStringLiteral("/nonexistent"));
    EXPECT_FALSE(nowhere.open());
}

TEST(HwmonSmc, ABatteryOrADriveAloneIsNoController)
{
    const Machine machine(MachineKind::laptopIntel);
    machine.removeHwmon(QStringLiteral("coretemp"));
    EXPECT_FALSE(Sensors(machine).connection) << "so that the thermal zones are asked";
}

TEST(HwmonSmc, ListsTheProcessorBeforeTheOthers)
{
    const Machine machine(MachineKind::laptopIntel);
    const Sensors sensors(machine);
    EXPECT_EQ(sensors.keys().join(u' '), QStringLiteral("TC0P Ts00 Ts01 Ts02 Ts03 Ts04 Ts05 Ts06"));
    EXPECT_EQ(sensors.celsius("TC0P"), 52) << "Package id 0";
}

TEST(HwmonSmc, CoresCountWhereNothingSpeaksForThePackage)
{
    const Machine machine(MachineKind::laptopIntel);
    dropPackage(machine);
    const Sensors sensors(machine);
    EXPECT_EQ(sensors.keys().join(u' '), QStringLiteral("Tp00 Tp01 Tp02 Tp03 Ts00 Ts01 Ts02"));
    EXPECT_EQ(sensors.celsius("Tp00"), 50) << "Core 0";
    EXPECT_EQ(sensors.celsius("Tp01"), 49) << "Core 1";
    EXPECT_EQ(readingOf(machine)->cpuMaxC, 52);
}

TEST(HwmonSmc, AnInfoSaysFloatForTheProcessorOnly)
{
    const Machine machine(MachineKind::laptopIntel);
    const Sensors sensors(machine);
    const auto info = [&sensors](const char *key) {
        return sensors.connection->readKeyInfo(SmcLayout::code(key));
    };
    EXPECT_EQ(info("TC0P"), (SMCConnection::KeyInfo{4, SmcLayout::code("flt "), 0}));
    EXPECT_EQ(info("Ts00"), (SMCConnection::KeyInfo{2, SmcLayout::code("sp78"), 0}));
    EXPECT_FALSE(info("Ts99"));
    const auto firmware = sensors.connection->readValue(QStringLiteral("Ts00"));
    ASSERT_TRUE(firmware);
    EXPECT_EQ(firmware->data, QByteArray::fromHex("1bcd")) << "27.8 degrees, 8 bits after the point";
}

TEST(HwmonSmc, AnswersNothingThatItWasNotAsked)
{
    const Machine machine(MachineKind::boardArm);
    HwmonSmc smc(machine.sys());
    EXPECT_NE(smc.call(1, {}).returnCode, 0) << "not open";
    const auto connection = smc.open();
    ASSERT_TRUE(connection);
    SmcRecord request{};
    SmcLayout::store(request, SmcLayout::code("Tp00"), SmcLayout::key);
    EXPECT_NE(smc.call(*connection, request).record[SmcLayout::result], 0) << "no command";
    request[SmcLayout::command] = SmcLayout::readValue;
    EXPECT_EQ(smc.call(*connection, request).record[SmcLayout::result], 0);
    EXPECT_EQ(smc.call(*connection, request).size, 80U);
    EXPECT_NE(smc.call(*connection + 1, request).returnCode, 0) << "somebody else's";
    request[SmcLayout::command] = SmcLayout::readIndex;
    SmcLayout::store(request, 1, SmcLayout::index);
    EXPECT_NE(smc.call(*connection, request).record[SmcLayout::result], 0) << "past the last key";
    smc.close(*connection);
    EXPECT_NE(smc.call(*connection, request).returnCode, 0) << "closed";
}

TEST(HwmonSmc, ChipsNumberedOtherwiseAtTheNextBootHaveTheSameKeys)
{
    for (const MachineKind kind : {MachineKind::laptopIntel, MachineKind::laptopAmd}) {
        const Machine first(kind);
        const Sensors before(first);
        for (int boot = 1; boot < 5; ++boot) {
            const Machine second(kind, boot);
            const Sensors after(second);
            ASSERT_EQ(after.keys(), before.keys());
            for (const QString &key : before.keys())
                EXPECT_EQ(after.connection->readValue(key)->data, before.connection->readValue(key)->data);
        }
    }
}

TEST(HwmonSmc, TwoChipsOfANameAreToldApartByTheirDevices)
{
    for (const bool swapped : {false, true}) {
        const Machine machine(MachineKind::virtualMachine);
        for (int socket = 0; socket < 2; ++socket) {
            const QString device = QStringLiteral("sys/devices/platform/coretemp.%1").arg(socket);
            const QString chip = QStringLiteral("hwmon%1").arg(swapped ? 1 - socket : socket);
            addChip(machine, chip, "coretemp", {{"Core 0", 40000 + 1000 * socket}});
            machine.write(device + QStringLiteral("/modalias"), "platform:coretemp\n");
            ASSERT_TRUE(QFile::link(machine.path(device),
                                    machine.path(QStringLiteral("sys/class/hwmon/%1/device").arg(chip))));
        }
        const Sensors sensors(machine);
        EXPECT_EQ(sensors.celsius("Tp00"), 40);
        EXPECT_EQ(sensors.celsius("Tp01"), 41);
    }
}

TEST(HwmonSmc, KnowsTheChipsOfProcessors)
{
    for (const char *chip : {"coretemp", "k10temp", "k8temp", "zenpower", "via_cputemp", "cpu_thermal",
                             "cpu-thermal", "cpu0_thermal", "cpu_big_thermal", "littlecore_thermal"}) {
        const Machine machine(MachineKind::virtualMachine);
        addChip(machine, QStringLiteral("hwmon0"), chip, {{"", 51000}});
        EXPECT_EQ(Sensors(machine).keys(), QStringList{QStringLiteral("Tp00")}) << chip;
    }
    for (const char *chip : {"acpitz", "nvme", "amdgpu", "iwlwifi_1", "gpu_thermal", "cpufreq", ""}) {
        const Machine machine(MachineKind::virtualMachine);
        addChip(machine, QStringLiteral("hwmon0"), chip, {{"", 51000}});
        EXPECT_FALSE(Sensors(machine).connection) << chip;
    }
}

TEST(HwmonSmc, FirmwareForAllPartsCountsByItsLabels)
{
    const Machine machine(MachineKind::virtualMachine);
    addChip(machine, QStringLiteral("hwmon0"), "macsmc_hwmon",
            {{"NAND", 36000}, {"CPU core 1", 61000}, {"Battery", 33000}});
    addChip(machine, QStringLiteral("hwmon1"), "scpi_sensors", {{"big cluster", 55000}, {"pmic", 40000}});
    const Sensors sensors(machine);
    EXPECT_EQ(sensors.keys().join(u' '), QStringLiteral("Tp00 Tp01 Ts00 Ts01 Ts02"));
    EXPECT_EQ(sensors.celsius("Tp00"), 61);
    EXPECT_EQ(sensors.celsius("Tp01"), 55);
}

TEST(HwmonSmc, TheTrueDieTemperatureComesBeforeTheControlValueAndBothBeforeTheChiplets)
{
    for (const char *chip : {"k10temp", "zenpower"}) {
        const Machine machine(MachineKind::virtualMachine);
        addChip(machine, QStringLiteral("hwmon0"), chip,
                {{"Tctl", 75000}, {"Tdie", 48000}, {"Tccd1", 90000}});
        EXPECT_EQ(Sensors(machine).keys().join(u' '), QStringLiteral("TC0P Ts00 Ts01"));
        EXPECT_EQ(readingOf(machine)->cpuMaxC, 48) << "Tdie of " << chip;
        addChip(machine, QStringLiteral("hwmon0"), chip, {{"Tctl", 75000}, {"Tccd1", 48000}});
        machine.remove(QStringLiteral("sys/class/hwmon/hwmon0/temp3_label"));
        EXPECT_EQ(readingOf(machine)->cpuMaxC, 75) << "Tctl of " << chip;
    }
}

TEST(HwmonSmc, TheHottestOfTwoPackagesCounts)
{
    const Machine machine(MachineKind::virtualMachine);
    addChip(machine, QStringLiteral("hwmon0"), "coretemp", {{"Package id 0", 61000}, {"Core 0", 99000}});
    addChip(machine, QStringLiteral("hwmon1"), "coretemp", {{"Package id 1", 72000}, {"Core 0", 40000}});
    EXPECT_EQ(Sensors(machine).celsius("TC0P"), 72);
    machine.write(QStringLiteral("sys/class/hwmon/hwmon1/temp1_input"), "gone\n");
    EXPECT_EQ(Sensors(machine).celsius("TC0P"), 61);
}

TEST(HwmonSmc, ManySensorsHaveKeysOfTheirOwn)
{
    const Machine machine(MachineKind::virtualMachine);
    const QString folder = QStringLiteral("sys/class/hwmon/hwmon0/");
    machine.write(folder + QStringLiteral("name"), "coretemp\n");
    for (int i = 1; i <= 130; ++i)
        machine.write(folder + QStringLiteral("temp%1_input").arg(i), QByteArray::number(i * 1000));
    machine.write(folder + QStringLiteral("tempX_input"), "1\n");
    const Sensors sensors(machine);
    const QStringList keys = sensors.keys();
    ASSERT_EQ(keys.size(), 130);
    EXPECT_EQ(QSet<QString>(keys.begin(), keys.end()).size(), 130);
    EXPECT_EQ(keys.at(62), QStringLiteral("Tp10"));
    EXPECT_EQ(sensors.celsius("Tp10"), 63) << "in the order of their numbers, not their names";
}

TEST(HwmonSmc, AFileThatVanishesHoldsGarbageOrFailsIsAFailure)
{
    const Machine machine(MachineKind::laptopIntel);
    dropPackage(machine);
    const Sensors sensors(machine);
    const QString core0 = coretempFile(machine, "temp2_input");
    for (const char *garbage : {"", "\n", "fifty\n", "50000 mC\n", "50.0\n", "99999999999999999999\n"}) {
        machine.write(core0, garbage);
        EXPECT_FALSE(sensors.celsius("Tp00")) << garbage;
    }
    machine.write(core0, "50000\n");
    EXPECT_EQ(sensors.celsius("Tp00"), 50);
    machine.makeUnreadable(core0);
    EXPECT_FALSE(sensors.celsius("Tp00"));
    machine.remove(core0);
    EXPECT_FALSE(sensors.celsius("Tp00"));
    EXPECT_EQ(sensors.celsius("Tp01"), 49) << "the others go on";
    machine.removeHwmon(QStringLiteral("coretemp"));
    EXPECT_FALSE(sensors.celsius("Tp01")) << "the whole chip is gone";
}

TEST(HwmonSmc, AChipThatComesBackUnderAnotherNumberIsNotMistaken)
{
    const Machine machine(MachineKind::laptopIntel);
    dropPackage(machine);
    const Sensors sensors(machine);
    const QString number = machine.hwmon(QStringLiteral("coretemp"));
    machine.removeHwmon(QStringLiteral("coretemp"));
    addChip(machine, number.section(u'/', -1), "nvme", {{"", 70000}, {"", 71000}});
    EXPECT_FALSE(sensors.celsius("Tp00"));
}

TEST(HwmonSmc, AnImpossibleValueIsPassedOnAndDroppedInTheReading)
{
    const Machine machine(MachineKind::laptopIntel);
    dropPackage(machine);
    machine.write(coretempFile(machine, "temp2_input"), "65273000\n");
    machine.write(coretempFile(machine, "temp3_input"), "-5000\n");
    EXPECT_EQ(Sensors(machine).celsius("Tp00"), 65273);
    EXPECT_EQ(Sensors(machine).celsius("Tp01"), -5);
    EXPECT_EQ(readingOf(machine)->cpuMaxC, 52);
}

TEST(HwmonSmc, ASleepingDeviceIsNotRead)
{
    const Machine machine(MachineKind::laptopIntel);
    dropPackage(machine);
    const QString status = QStringLiteral("sys/devices/platform/coretemp.0/power/runtime_status");
    const Sensors sensors(machine);
    EXPECT_EQ(sensors.celsius("Tp00"), 50);
    // Reading this would hang for good.
    const QString core0 = coretempFile(machine, "temp2_input");
    machine.makeBlocking(core0);
    for (const char *asleep : {"suspended\n", "suspending\n"}) {
        machine.write(status, asleep);
        EXPECT_FALSE(sensors.celsius("Tp00")) << asleep;
    }
    machine.remove(core0);
    machine.write(core0, "50000\n");
    for (const char *awake : {"active\n", "resuming\n", "unsupported\n", "error\n"}) {
        machine.write(status, awake);
        EXPECT_EQ(sensors.celsius("Tp00"), 50) << awake;
    }
}

TEST(HwmonSmc, ListingTheKeysDoesNotReadOtherPartsSensors)
{
    const Machine machine(MachineKind::laptopIntel);
    dropPackage(machine);
    // Reading this would hang for good.
    machine.makeBlocking(machine.hwmon(QStringLiteral("nvme")) + QStringLiteral("/temp1_input"));
    MemoryDefaults defaults;
    EXPECT_EQ(Temperatures(machine, defaults).sensors->inventory().cpuKeys.size(), 4);
}

TEST(HwmonSmc, CalibrationIsSkippedAtTheNextBootEvenWithOtherNumbers)
{
    MemoryDefaults defaults;
    for (const int boot : {0, 3}) {
        const Machine machine(MachineKind::laptopIntel, boot);
        dropPackage(machine);
        machine.write(coretempFile(machine, "temp4_input"), "95000\n");
        Temperatures temperatures(machine, defaults);
        EXPECT_TRUE(temperatures.read());
        temperatures.scheduler.advance(60s);
        EXPECT_TRUE(temperatures.read());
        EXPECT_EQ(temperatures.read()->cpuMaxC, 52) << "boot " << boot;
        const QString calibration = boot == 0 ? QStringLiteral("restored=0, calibration=pending)")
                                              : QStringLiteral("restored=1, calibration=skipped)");
        EXPECT_TRUE(temperatures.log.messages().first().endsWith(calibration));
    }
}

} // namespace brimlight::test
