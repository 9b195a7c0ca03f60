#include "platform/linux/kernel/LinuxMachineInfo.h"

#include "fixtures/machines.h"

#include <gtest/gtest.h>

#include <QSysInfo>

namespace brimlight::test {
namespace {

LinuxMachineInfo infoOf(const Machine &machine)
{
    return LinuxMachineInfo(machine.proc(), machine.sys());
}

} // namespace

TEST(MachineInfo, ALaptopTellsItsChipAndModel)
{
    const Machine machine(MachineKind::laptopIntel);
    auto info = infoOf(machine);
    EXPECT_EQ(info.chip(), QStringLiteral("Intel(R) Core(TM) i5-8250U CPU @ 1.60GHz"));
    EXPECT_EQ(info.model(), QStringLiteral("Notebook 14 G3"));
    EXPECT_EQ(info.osBuild(), QStringLiteral("6.1.0-18-amd64"));
    EXPECT_EQ(info.osVersion(), QStringLiteral("Linux 6.1.0"));
    EXPECT_EQ(info.hostName(), QStringLiteral("notebook"));
}

TEST(MachineInfo, ABoardTellsThemInItsDeviceTree)
{
    const Machine machine(MachineKind::boardArm);
    auto info = infoOf(machine);
    EXPECT_EQ(info.chip(), QStringLiteral("brcm,bcm2711"));
    EXPECT_EQ(info.model(), QStringLiteral("Quad Board 4 Rev 1.4"));
}

TEST(MachineInfo, WhatIsNotToldIsAbsentOrAskedOfTheSystem)
{
    LinuxMachineInfo info(QStringLiteral("/nonexistent"), QStringLiteral("/nonexistent"));
    EXPECT_FALSE(info.chip());
    EXPECT_FALSE(info.model());
    EXPECT_EQ(info.osBuild(), QSysInfo::kernelVersion());
    EXPECT_EQ(info.hostName(), QSysInfo::machineHostName());
}

TEST(MachineInfo, AnEmptyNameIsNone)
{
    const Machine machine(MachineKind::virtualMachine);
    machine.write(QStringLiteral("proc/cpuinfo"), "model name\t: \nprocessor\t: 0\n");
    machine.write(QStringLiteral("sys/class/dmi/id/product_name"), "\n");
    auto info = infoOf(machine);
    EXPECT_FALSE(info.chip());
    EXPECT_FALSE(info.model());
}

TEST(MachineInfo, TheVersionHasThreeNumbers)
{
    EXPECT_EQ(osVersionOfRelease(QStringLiteral("6.1.0-18-amd64")), QStringLiteral("Linux 6.1.0"));
    EXPECT_EQ(osVersionOfRelease(QStringLiteral("6.6.31-v8")), QStringLiteral("Linux 6.6.31"));
    EXPECT_EQ(osVersionOfRelease(QStringLiteral("6.12-rc3")), QStringLiteral("Linux 6.12.0"));
    EXPECT_EQ(osVersionOfRelease(QStringLiteral("5.15.90.1-custom")), QStringLiteral("Linux 5.15.90"));
    EXPECT_EQ(osVersionOfRelease(QString()), QStringLiteral("Linux 0.0.0"));
}

} // namespace brimlight::test
