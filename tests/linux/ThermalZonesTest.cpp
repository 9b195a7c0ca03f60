#include "platform/linux/kernel/ThermalZones.h"

#include "fixtures/machines.h"
#include "sensors/IOHIDBridge.h"

#include <gtest/gtest.h>

namespace brimlight::test {

namespace {

QString zoneFile(int zone, const char *file)
{
    return QStringLiteral("sys/class/thermal/thermal_zone%1/%2").arg(zone).arg(QLatin1String(file));
}

/// The names of the zones that count as the processor's.
QStringList cpuZones(const Machine &machine)
{
    ThermalZones zones(machine.sys());
    QStringList names;
    for (int i = 0; i < zones.match().value_or(0); ++i) {
        if (IOHIDBridge::isCpuName(zones.name(i)))
            names.append(zones.name(i));
    }
    return names;
}

} // namespace

TEST(ThermalZones, GiveANameAndDegreesEach)
{
    const Machine machine(MachineKind::laptopIntel);
    ThermalZones zones(machine.sys());
    ASSERT_EQ(zones.match(), 3);
    EXPECT_EQ(zones.name(0), QStringLiteral("acpitz"));
    EXPECT_EQ(zones.celsius(0), 27.8);
    EXPECT_EQ(zones.name(2), QStringLiteral("iwlwifi_1"));
    EXPECT_EQ(zones.celsius(2), 41);
}

TEST(ThermalZones, TheProcessorsZonesCountAsSuch)
{
    EXPECT_EQ(cpuZones(Machine(MachineKind::laptopIntel)), QStringList{QStringLiteral("CPU x86_pkg_temp")});
    EXPECT_EQ(cpuZones(Machine(MachineKind::boardArm)), QStringList{QStringLiteral("cpu-thermal")});
    EXPECT_EQ(cpuZones(Machine(MachineKind::laptopAmd)), QStringList());
}

TEST(ThermalZones, ComeInTheOrderOfTheirNumbers)
{
    const Machine machine(MachineKind::virtualMachine);
    for (const int zone : {10, 2, 0, 1})
        machine.write(zoneFile(zone, "type"), "zone" + QByteArray::number(zone) + '\n');
    ThermalZones zones(machine.sys());
    ASSERT_EQ(zones.match(), 4);
    EXPECT_EQ(zones.name(1), QStringLiteral("zone1"));
    EXPECT_EQ(zones.name(3), QStringLiteral("zone10"));
}

TEST(ThermalZones, NoneAreNotTheSameAsNoListing)
{
    const Machine machine(MachineKind::virtualMachine);
    EXPECT_EQ(ThermalZones(machine.sys()).match(), 0);
    machine.remove(QStringLiteral("sys/class/thermal"));
    EXPECT_FALSE(ThermalZones(machine.sys()).match());
}

TEST(ThermalZones, WhatCannotBeReadIsAbsent)
{
    const Machine machine(MachineKind::laptopIntel);
    ThermalZones zones(machine.sys());
    ASSERT_EQ(zones.match(), 3);
    machine.write(zoneFile(0, "temp"), "hot\n");
    EXPECT_FALSE(zones.celsius(0));
    machine.makeUnreadable(zoneFile(0, "temp"));
    EXPECT_FALSE(zones.celsius(0));
    machine.remove(zoneFile(1, "temp"));
    EXPECT_FALSE(zones.celsius(1));
    machine.write(zoneFile(1, "temp"), "65273000\n");
    EXPECT_EQ(zones.celsius(1), 65273);
}

TEST(ThermalZones, AZoneWithoutATypeHasNoName)
{
    const Machine machine(MachineKind::boardArm);
    machine.remove(zoneFile(0, "type"));
    ThermalZones zones(machine.sys());
    ASSERT_EQ(zones.match(), 1);
    EXPECT_EQ(zones.name(0), QString());
}

} // namespace brimlight::test
