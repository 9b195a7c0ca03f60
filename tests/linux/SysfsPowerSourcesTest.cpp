#include "platform/linux/kernel/SysfsPowerSources.h"

#include "fixtures/machines.h"
#include "sensors/BatteryHealthReader.h"
#include "sensors/BatteryReader.h"

#include <gtest/gtest.h>

namespace brimlight::test {

namespace {

QString supply(const char *rest)
{
    return QStringLiteral("sys/class/power_supply/") + QLatin1String(rest);
}

class PowerSourcesTest : public testing::Test
{
protected:
    void set(const char *file, const QByteArray &content) const
    {
        machine.write(supply(file), content + '\n');
    }
    void unset(const char *file) const { machine.remove(supply(file)); }
    BatterySnapshot read() { return BatteryReader::read(sources.read()); }

    explicit PowerSourcesTest(MachineKind kind = MachineKind::laptopIntel)
        : machine(kind)
    {
    }

    Machine machine;
    SysfsPowerSources sources{machine.sys()};
};

class TwoBatteriesTest : public PowerSourcesTest
{
protected:
    TwoBatteriesTest()
        : PowerSourcesTest(MachineKind::laptopTwoBatteries)
    {
    }
};

} // namespace

TEST_F(PowerSourcesTest, ALaptopOnItsBattery)
{
    // 2851 mAh at 923 mA.
    EXPECT_EQ(read(), (BatterySnapshot{.percent = 72,
                                       .isCharging = false,
                                       .isPluggedIn = false,
                                       .hasBattery = true,
                                       .timeToEmpty = 185,
                                       .timeToFull = -1}));
    EXPECT_EQ(BatteryHealthReader::read(sources.read()),
              (BatteryHealthSnapshot{.cycleCount = 187, .healthPercent = 90}));
    EXPECT_EQ(sources.read().battery->temperature, 2980);
}

TEST(PowerSources, ALaptopThatCharges)
{
    const Machine machine(MachineKind::laptopAmd);
    SysfsPowerSources sources(machine.sys());
    // 12.825 Wh at 8.93 W; the mouse's battery is somebody else's.
    EXPECT_EQ(BatteryReader::read(sources.read()), (BatterySnapshot{.percent = 75,
                                                                    .isCharging = true,
                                                                    .isPluggedIn = true,
                                                                    .hasBattery = true,
                                                                    .timeToEmpty = -1,
                                                                    .timeToFull = 86}));
    EXPECT_EQ(BatteryHealthReader::read(sources.read()),
              (BatteryHealthSnapshot{.cycleCount = 241, .healthPercent = 90}));
    EXPECT_FALSE(sources.read().battery->temperature);
}

TEST(PowerSources, MachinesWithoutABattery)
{
    for (const MachineKind kind : {MachineKind::boardArm, MachineKind::virtualMachine}) {
        const Machine machine(kind);
        SysfsPowerSources sources(machine.sys());
        EXPECT_EQ(BatteryReader::read(sources.read()), BatterySnapshot{});
        EXPECT_FALSE(BatteryHealthReader::read(sources.read()));
    }
    SysfsPowerSources nowhere(QStringLiteral("/nowhere"));
    EXPECT_FALSE(nowhere.read().source);
    EXPECT_FALSE(nowhere.read().battery);
}

TEST(PowerSources, AMousesBatteryDoesNotMakeADesktopALaptop)
{
    const Machine machine(MachineKind::laptopAmd);
    machine.remove(supply("BAT1"));
    SysfsPowerSources sources(machine.sys());
    EXPECT_FALSE(sources.read().source);
    EXPECT_FALSE(sources.read().battery);
}

TEST_F(PowerSourcesTest, TheCapacitiesAreMilliamperesOrTenthsOfMilliwattsTimesHours)
{
    const auto charge = sources.read().battery;
    EXPECT_EQ(charge->designCapacity, 4400);
    EXPECT_EQ(charge->rawMaxCapacity, 3960);
    EXPECT_FALSE(charge->maxCapacity);
    unset("BAT0/charge_full");
    unset("BAT0/charge_full_design");
    set("BAT0/energy_full_design", "57000000");
    set("BAT0/energy_full", "51300000");
    const auto energy = sources.read().battery;
    EXPECT_EQ(energy->designCapacity, 5700);
    EXPECT_EQ(energy->rawMaxCapacity, 5130);
}

TEST_F(TwoBatteriesTest, AreOneChargeOfTheirEnergiesAndPowers)
{
    // 24 of 60 Wh at 9 W; the wear is 60 of 72 Wh.
    EXPECT_EQ(read(), (BatterySnapshot{.percent = 40,
                                       .isCharging = false,
                                       .isPluggedIn = false,
                                       .hasBattery = true,
                                       .timeToEmpty = 160,
                                       .timeToFull = -1}));
    EXPECT_EQ(BatteryHealthReader::read(sources.read()),
              (BatteryHealthSnapshot{.cycleCount = 412, .healthPercent = 83}));
    machine.remove(supply("BAT1"));
    EXPECT_EQ(read().percent, 95);
    EXPECT_EQ(sources.read().battery->cycleCount, 412);
}

TEST_F(TwoBatteriesTest, TheDirectionIsWhatComesOfBoth)
{
    struct Row
    {
        const char *online;
        const char *status0;
        const char *power0;
        const char *status1;
        const char *power1;
        bool isCharging;
        int toEmpty;
        int toFull;
    };
    // 24 Wh are there, 36 Wh are missing.
    for (const Row &row : {
             Row{"0", "Discharging", "3000000", "Discharging", "9000000", false, 120, -1},
             Row{"0", "Unknown", "0", "Discharging", "12000000", false, 120, -1},
             Row{"1", "Not charging", "0", "Charging", "18000000", true, -1, 120},
             Row{"1", "Charging", "6000000", "Charging", "12000000", true, -1, 120},
             Row{"1", "Full", "0", "Charging", "18000000", true, -1, 120},
             Row{"1", "Full", "0", "Full", "0", false, -1, -1},
             Row{"1", "Unknown", "0", "Not charging", "0", false, -1, -1},
             Row{"0", "Charging", "4000000", "Discharging", "16000000", false, 120, -1},
             Row{"1", "Charging", "20000000", "Discharging", "2000000", true, -1, 120},
             Row{"1", "Charging", "5000000", "Discharging", "5000000", false, -1, -1},
             Row{"0", "Unknown", "-4000000", "Discharging", "-8000000", false, 120, -1},
         }) {
        set("AC/online", row.online);
        set("BAT0/status", row.status0);
        set("BAT0/power_now", row.power0);
        set("BAT1/status", row.status1);
        set("BAT1/power_now", row.power1);
        const BatterySnapshot snapshot = read();
        const auto rowText =
            QByteArray(row.status0) + ' ' + row.power0 + ", " + row.status1 + ' ' + row.power1;
        EXPECT_EQ(snapshot.isCharging, row.isCharging) << rowText.constData();
        EXPECT_EQ(snapshot.timeToEmpty, row.toEmpty) << rowText.constData();
        EXPECT_EQ(snapshot.timeToFull, row.toFull) << rowText.constData();
        EXPECT_EQ(snapshot.percent, 40) << rowText.constData();
    }
}

TEST_F(TwoBatteriesTest, WithoutSuppliesOneThatChargesIsPluggedIn)
{
    machine.remove(supply("AC"));
    EXPECT_FALSE(read().isPluggedIn) << "one discharges";
    set("BAT0/status", "Charging");
    EXPECT_TRUE(read().isPluggedIn);
    set("BAT0/status", "Full");
    set("BAT1/status", "Unknown");
    EXPECT_TRUE(read().isPluggedIn);
}

TEST_F(TwoBatteriesTest, OneThatCountsChargeIsConvertedByItsVoltage)
{
    for (const char *file :
         {"BAT1/energy_full_design", "BAT1/energy_full", "BAT1/energy_now", "BAT1/power_now"})
        unset(file);
    set("BAT1/voltage_min_design", "12000000");
    set("BAT1/charge_full_design", "4000000");
    set("BAT1/charge_full", "3500000");
    set("BAT1/charge_now", "575000");
    set("BAT1/current_now", "750000");
    EXPECT_EQ(read().percent, 40);
    EXPECT_EQ(read().timeToEmpty, 160);
    EXPECT_EQ(BatteryHealthReader::read(sources.read())->healthPercent, 83);
}

TEST_F(TwoBatteriesTest, WhatCannotBeAddedUpIsTheMeanOfWhatTheDriversSay)
{
    machine.makeUnreadable(supply("BAT1/energy_now"));
    EXPECT_EQ(read().percent, 56) << "95 and 16";
    EXPECT_EQ(read().timeToEmpty, -1);
    unset("BAT1/capacity");
    EXPECT_EQ(read().percent, 95);
    unset("BAT0/capacity");
    EXPECT_EQ(read().percent, -1);
}

TEST_F(TwoBatteriesTest, TheHotterOneTellsTheTemperature)
{
    EXPECT_FALSE(sources.read().battery->temperature);
    set("BAT0/temp", "312");
    EXPECT_EQ(sources.read().battery->temperature, 3120);
    set("BAT1/temp", "405");
    EXPECT_EQ(sources.read().battery->temperature, 4050);
}

TEST_F(PowerSourcesTest, ABatteryThatIsTakenOutIsNotThere)
{
    set("BAT0/present", "0");
    EXPECT_FALSE(sources.read().source);
    EXPECT_FALSE(sources.read().battery);
    set("BAT0/present", "1");
    EXPECT_TRUE(sources.read().source);
    unset("BAT0/present");
    EXPECT_TRUE(sources.read().source);
}

TEST_F(PowerSourcesTest, ABatteryAtZero)
{
    set("BAT0/capacity", "0");
    set("BAT0/charge_now", "0");
    const BatterySnapshot snapshot = read();
    EXPECT_TRUE(snapshot.hasBattery);
    EXPECT_EQ(snapshot.percent, 0);
    EXPECT_EQ(snapshot.timeToEmpty, 0);
}

TEST_F(PowerSourcesTest, PercentComesFromTheGaugeWithoutACapacity)
{
    struct Row
    {
        const char *capacity;
        const char *now;
        const char *full;
        int percent;
    };
    for (const Row &row : {
             Row{"72", "1", "2", 72},
             Row{"103", "1", "2", 100},
             Row{"-1", "1000000", "4000000", 25},
             Row{"", "1000000", "4000000", 25},
             Row{"many", "5000000", "4000000", 100},
             Row{"", "1000000", "0", -1},
             Row{"", "", "4000000", -1},
         }) {
        set("BAT0/capacity", row.capacity);
        set("BAT0/charge_now", row.now);
        set("BAT0/charge_full", row.full);
        EXPECT_EQ(read().percent, row.percent) << row.capacity << ' ' << row.now << ' ' << row.full;
    }
}

TEST_F(PowerSourcesTest, AnySupplyThatIsOnlinePlugsIn)
{
    set("usb0/type", "USB");
    set("usb0/online", "0");
    EXPECT_FALSE(read().isPluggedIn);
    set("usb0/online", "1");
    EXPECT_TRUE(read().isPluggedIn);
    set("usb0/online", "2");
    EXPECT_TRUE(read().isPluggedIn);
    set("usb0/scope", "Device");
    EXPECT_FALSE(read().isPluggedIn);
    set("AC/online", "1");
    EXPECT_TRUE(read().isPluggedIn);
    EXPECT_FALSE(read().isCharging);
}

TEST_F(PowerSourcesTest, WithoutSuppliesTheStatusTells)
{
    unset("AC");
    struct Row
    {
        const char *status;
        const char *current;
        std::optional<QString> state;
    };
    const QString ac = QStringLiteral("AC Power");
    const QString battery = QStringLiteral("Battery Power");
    for (const Row &row : {
             Row{"Charging", "500000", ac},
             Row{"Full", "0", ac},
             Row{"Not charging", "0", ac},
             Row{"Discharging", "500000", battery},
             Row{"Unknown", "-500000", battery},
             Row{"Unknown", "500000", std::nullopt},
             Row{"", "500000", std::nullopt},
         }) {
        set("BAT0/status", row.status);
        set("BAT0/current_now", row.current);
        EXPECT_EQ(sources.read().source->powerSourceState, row.state) << row.status;
        EXPECT_EQ(sources.read().source->isCharging, row.status == QByteArray("Charging"));
    }
    set("AC/type", "Mains");
    set("BAT0/status", "Full");
    EXPECT_TRUE(read().isPluggedIn) << "a supply that does not tell";
}

TEST_F(PowerSourcesTest, TheTimesFollowTheDirection)
{
    struct Row
    {
        const char *online;
        const char *status;
        const char *current;
        int toEmpty;
        int toFull;
    };
    set("BAT0/charge_now", "1000000");
    set("BAT0/charge_full", "4000000");
    for (const Row &row : {
             Row{"0", "Discharging", "1000000", 60, -1},
             Row{"0", "Discharging", "-1000000", 60, -1},
             Row{"1", "Discharging", "-500000", 120, -1},
             Row{"1", "Charging", "1500000", -1, 120},
             Row{"1", "Charging", "-1500000", -1, 120},
             Row{"1", "Full", "1000", -1, -1},
             Row{"1", "Not charging", "1000", -1, -1},
             Row{"0", "Unknown", "1000000", 60, -1},
             Row{"1", "Unknown", "1000000", -1, -1},
             Row{"1", "Unknown", "-1000000", 60, -1},
             Row{"0", "Discharging", "0", -1, -1},
             Row{"0", "Discharging", "", -1, -1},
             Row{"0", "Discharging", "12 or so", -1, -1},
             // A month: the gauge has not settled.
             Row{"0", "Discharging", "1300", -1, -1},
         }) {
        set("AC/online", row.online);
        set("BAT0/status", row.status);
        set("BAT0/current_now", row.current);
        EXPECT_EQ(read().timeToEmpty, row.toEmpty) << row.status << ' ' << row.current;
        EXPECT_EQ(read().timeToFull, row.toFull) << row.status << ' ' << row.current;
    }
}

TEST_F(PowerSourcesTest, MoreThanFullIsNoTimeAway)
{
    set("BAT0/status", "Charging");
    set("BAT0/charge_now", "5000000");
    EXPECT_EQ(read().timeToFull, 0);
}

TEST_F(PowerSourcesTest, MissingAndSenselessFilesAreUnknownValues)
{
    for (const char *file : {"status", "capacity", "charge_now", "charge_full", "charge_full_design",
                             "current_now", "cycle_count", "temp", "voltage_now", "voltage_min_design"}) {
        const QByteArray path = QByteArray("BAT0/") + file;
        machine.makeUnreadable(supply(path.constData()));
    }
    const BatterySnapshot unknown{.percent = -1, .isPluggedIn = false, .hasBattery = true};
    EXPECT_EQ(read(), unknown);
    EXPECT_EQ(sources.read().battery->cycleCount, std::nullopt);
    EXPECT_FALSE(BatteryHealthReader::read(sources.read()));
}

TEST_F(PowerSourcesTest, CapacitiesThatCannotBeAreAbsent)
{
    for (const char *value : {"-4400000", "99999999999999999", "1e6", "99999999999999999999999", ""}) {
        set("BAT0/charge_full_design", value);
        set("BAT0/cycle_count", value);
        EXPECT_FALSE(sources.read().battery->designCapacity) << value;
        EXPECT_FALSE(sources.read().battery->cycleCount) << value;
    }
}

TEST(PowerSources, ThisMachineAnswers)
{
    SysfsPowerSources sources(QStringLiteral("/sys"));
    const BatterySnapshot snapshot = BatteryReader::read(sources.read());
    EXPECT_EQ(snapshot.hasBattery, sources.read().battery.has_value());
    EXPECT_GE(snapshot.percent, -1);
    EXPECT_LE(snapshot.percent, 100);
}

} // namespace brimlight::test
