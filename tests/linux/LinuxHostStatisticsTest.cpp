#include "platform/linux/kernel/LinuxHostStatistics.h"

#include "fixtures/machines.h"
#include "sensors/DiskReader.h"
#include "sensors/NetworkReader.h"
#include "sensors/SystemReader.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QStorageInfo>

#include <unistd.h>

namespace brimlight::test {

namespace {

constexpr uint64_t kibibyte = 1024;
constexpr uint64_t page = 4096;

struct OnMachine
{
    explicit OnMachine(MachineKind kind)
        : machine(kind)
    {
    }
    void zone(int number, const char *file, const QByteArray &content) const
    {
        machine.write(QStringLiteral("sys/class/thermal/thermal_zone%1/").arg(number) + QLatin1String(file),
                      content + '\n');
    }
    void cooling(int number, const char *file, const QByteArray &content) const
    {
        machine.write(QStringLiteral("sys/class/thermal/cooling_device%1/").arg(number) + QLatin1String(file),
                      content + '\n');
    }

    Machine machine;
    LinuxHostStatistics statistics{machine.proc(), machine.sys()};
};

uint64_t sum(const MemoryPages &pages)
{
    return pages.active + pages.wired + pages.compressor;
}

} // namespace

TEST(CpuTicks, TheColumnsGoToTheFourCounters)
{
    //                                 user nice system idle iowait irq softirq steal guest guest_nice
    const auto ticks = parseCpuTicks("cpu  1000 200 30 40000 500 6 7 80 999 111\ncpu0 1 1 1 1\n");
    ASSERT_TRUE(ticks);
    EXPECT_EQ(ticks->user, 1000U);
    EXPECT_EQ(ticks->nice, 200U);
    EXPECT_EQ(ticks->system, 30U + 6 + 7 + 80);
    EXPECT_EQ(ticks->idle, 40500U);
}

TEST(CpuTicks, AnOldKernelHasFourColumns)
{
    const auto ticks = parseCpuTicks("cpu 4 3 2 1");
    ASSERT_TRUE(ticks);
    EXPECT_EQ(ticks->system, 2U);
    EXPECT_EQ(ticks->idle, 1U);
}

TEST(CpuTicks, WideCountersAreCutToThirtyTwoBits)
{
    const auto ticks = parseCpuTicks("cpu  4294967297 0 4294967295 8589934600 4 1 2 0 0 0\n");
    ASSERT_TRUE(ticks);
    EXPECT_EQ(ticks->user, 1U);
    EXPECT_EQ(ticks->system, 2U);
    EXPECT_EQ(ticks->idle, 12U);
}

TEST(CpuTicks, WhatIsNoSuchLineIsRefused)
{
    for (const char *bytes :
         {"", "\n", "cpu", "cpu  1 2 3", "cpu  1 2 3 x", "cpu  1 2 3 -4", "cpu  1 2 3 4 y",
          "cpu0 1 2 3 4 5 6 7 8", "intr 1 2 3 4", "cpu  99999999999999999999 2 3 4"})
        EXPECT_FALSE(parseCpuTicks(bytes)) << bytes;
}

TEST(MemoryInfo, NeedsTotalAndAvailable)
{
    EXPECT_FALSE(parseMemoryInfo(""));
    EXPECT_FALSE(parseMemoryInfo("MemTotal: 100 kB\n"));
    EXPECT_FALSE(parseMemoryInfo("MemAvailable: 100 kB\n"));
    EXPECT_FALSE(parseMemoryInfo("MemTotal: all kB\nMemAvailable: 100 kB\n"));
    const auto info = parseMemoryInfo("MemTotal: 100 kB\nMemAvailable: 40 kB\n");
    ASSERT_TRUE(info);
    EXPECT_EQ(info->total, 100 * kibibyte);
    EXPECT_EQ(info->available, 40 * kibibyte);
    EXPECT_EQ(info->anonymous, 0U);
    EXPECT_EQ(info->compressed, 0U);
}

TEST(PagesInUse, AddUpToWhatIsNotAvailable)
{
    const MemoryPages pages = pagesInUse(
        {.total = 100 * page, .available = 40 * page, .anonymous = 30 * page, .compressed = 5 * page}, 4096);
    EXPECT_EQ(pages.active, 30U);
    EXPECT_EQ(pages.compressor, 5U);
    EXPECT_EQ(pages.wired, 25U);
    EXPECT_EQ(pages.pageSize, 4096U);
}

TEST(PagesInUse, NeverMoreThanWhatIsNotAvailable)
{
    EXPECT_EQ(
        sum(pagesInUse(
            {.total = 100 * page, .available = 90 * page, .anonymous = 80 * page, .compressed = 70 * page},
            4096)),
        10U);
    EXPECT_EQ(sum(pagesInUse({.total = 100 * page, .available = 120 * page, .anonymous = page}, 4096)), 0U);
}

TEST(HostStatistics, RecordedMachines)
{
    struct Row
    {
        MachineKind kind;
        uint32_t idle;
        uint64_t totalKibibytes;
        uint64_t availableKibibytes;
    };
    for (const Row &row : {
             Row{MachineKind::laptopIntel, 5194031 + 9720, 16184328, 9123452},
             Row{MachineKind::laptopAmd, 9127731 + 3002, 32257400, 26740016},
             Row{MachineKind::boardArm, 3140220 + 880, 3885396, 3010444},
             Row{MachineKind::virtualMachine, 201330 + 120, 2014032, 1602212},
         }) {
        OnMachine on(row.kind);
        ASSERT_TRUE(on.statistics.cpuTicks());
        EXPECT_EQ(on.statistics.cpuTicks()->idle, row.idle);
        EXPECT_EQ(on.statistics.physicalMemory(), row.totalKibibytes * kibibyte);
        const auto pages = on.statistics.memoryPages();
        ASSERT_TRUE(pages);
        EXPECT_NEAR(static_cast<double>(sum(*pages) * pages->pageSize),
                    static_cast<double>((row.totalKibibytes - row.availableKibibytes) * kibibyte),
                    static_cast<double>(pages->pageSize));
        EXPECT_EQ(on.statistics.thermalState(), ThermalState::nominal);
    }
}

TEST(HostStatistics, ARecordedMachineUnderLoad)
{
    OnMachine on(MachineKind::laptopIntel);
    SystemReader reader;
    EXPECT_NEAR(reader.read(systemCounters(on.statistics)).memUsed, 0.4363, 0.0001);
    on.machine.write(QStringLiteral("proc/stat"), "cpu  251470 1873 70934 5194071 9720 0 4316 0 0 0\n");
    EXPECT_DOUBLE_EQ(reader.read(systemCounters(on.statistics)).cpu, 0.6);
}

TEST(Interfaces, AreThoseOfTheTableWithTheirWideCounters)
{
    OnMachine on(MachineKind::desktopHybrid);
    const auto link = [](const char *name, uint64_t received, uint64_t sent) {
        return InterfaceCounters{.name = QLatin1String(name), .received = received, .sent = sent};
    };
    EXPECT_EQ(on.statistics.interfaces(),
              (QList<InterfaceCounters>{link("lo", 8812345678, 8812345678),
                                        link("enp5s0", 987654321012, 12345678901),
                                        link("tun0", 5000000000, 700000000), link("docker0", 120000, 340000),
                                        link("veth5f1c2ab", 90000000, 80000000)}));
}

TEST(Interfaces, ATunnelCountsAndAContainersEndIsNoTraffic)
{
    OnMachine on(MachineKind::desktopHybrid);
    NetworkReader reader;
    reader.read(networkCounters(on.statistics));
    const QString table = QStringLiteral("proc/net/dev");
    QFile file(on.machine.path(table));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArray after = file.readAll();
    after.truncate(after.indexOf("veth"));
    after.replace("987654321012", "987654323012").replace("5000000000", "5000001500");
    on.machine.write(table, after);
    on.machine.write(QStringLiteral("proc/uptime"), "273647.18 2190000.40\n");
    const auto snapshot = reader.read(networkCounters(on.statistics));
    ASSERT_TRUE(snapshot);
    EXPECT_NEAR(snapshot->down, 700, 1e-6) << "2000 and 1500 bytes in five seconds";
    EXPECT_EQ(snapshot->up, 0);
}

TEST(Interfaces, WhatIsNoSuchTableIsRefused)
{
    const QByteArray headings = "Inter-|   Receive |  Transmit\n face |bytes packets|bytes packets\n";
    for (const char *bytes : {"", "\n", "eth0: 1 2 3 4 5 6 7 8 9 10\n", "a\nb\nc\n"})
        EXPECT_FALSE(parseInterfaces(bytes)) << bytes;
    EXPECT_EQ(parseInterfaces(headings), QList<InterfaceCounters>());
    for (const char *line : {"eth0: 1 2 3\n", "eth0 1 2 3 4 5 6 7 8 9 10\n", "eth0: x 0 0 0 0 0 0 0 9 0\n",
                             "eth0: 1 0 0 0 0 0 0 0 -9 0\n", "eth0:\n", ":\n"})
        EXPECT_EQ(parseInterfaces(headings + line), QList<InterfaceCounters>()) << line;
}

TEST(HostStatistics, UptimeIsThatOfTheKernelsFile)
{
    EXPECT_EQ(OnMachine(MachineKind::desktopHybrid).statistics.uptime(), 273642.18);
    EXPECT_EQ(OnMachine(MachineKind::laptopIntel).statistics.uptime(), 13829.54);
}

TEST(HostStatistics, MissingFilesAreAbsentCounters)
{
    LinuxHostStatistics nowhere(QStringLiteral("/nowhere"), QStringLiteral("/nowhere"));
    EXPECT_FALSE(nowhere.cpuTicks());
    EXPECT_FALSE(nowhere.memoryPages());
    EXPECT_FALSE(nowhere.interfaces());
    EXPECT_EQ(nowhere.physicalMemory(), 0U);
    EXPECT_EQ(nowhere.thermalState(), ThermalState::nominal);
    EXPECT_FALSE(nowhere.volumeCapacity(QStringLiteral("/nowhere/at/all")));
}

TEST(HostStatistics, ThermalZonesTellByTheirTripPoints)
{
    OnMachine on(MachineKind::laptopAmd);
    struct Row
    {
        const char *temperature;
        ThermalState state;
    };
    for (const Row &row : {Row{"89999", ThermalState::nominal}, Row{"90000", ThermalState::fair},
                           Row{"95000", ThermalState::serious}, Row{"98000", ThermalState::critical},
                           Row{"120000", ThermalState::critical}, Row{"-274000", ThermalState::nominal},
                           Row{"warm", ThermalState::nominal}, Row{"46000", ThermalState::nominal}}) {
        on.zone(0, "temp", row.temperature);
        EXPECT_EQ(on.statistics.thermalState(), row.state) << row.temperature;
    }
}

TEST(HostStatistics, TripPointsThatNobodySetAndThoseOfFansDoNotCount)
{
    OnMachine on(MachineKind::boardArm);
    on.zone(1, "temp", "60000");
    on.zone(1, "trip_point_0_type", "active");
    on.zone(1, "trip_point_0_temp", "50000");
    on.zone(1, "trip_point_1_type", "passive");
    on.zone(1, "trip_point_1_temp", "0");
    on.zone(1, "trip_point_2_type", "critical");
    on.zone(1, "trip_point_2_temp", "-274000");
    EXPECT_EQ(on.statistics.thermalState(), ThermalState::nominal);
    on.zone(1, "trip_point_3_type", "passive");
    on.zone(1, "trip_point_3_temp", "60000");
    EXPECT_EQ(on.statistics.thermalState(), ThermalState::fair);
}

TEST(HostStatistics, TheWorstZoneCounts)
{
    OnMachine on(MachineKind::laptopIntel);
    on.zone(7, "temp", "80000");
    on.zone(7, "trip_point_0_type", "hot");
    on.zone(7, "trip_point_0_temp", "75000");
    EXPECT_EQ(on.statistics.thermalState(), ThermalState::serious);
    on.machine.remove(QStringLiteral("sys/class/thermal/thermal_zone7"));
    EXPECT_EQ(on.statistics.thermalState(), ThermalState::nominal);
}

TEST(HostStatistics, AProcessorThatIsSlowedDownIsWarm)
{
    OnMachine on(MachineKind::boardArm);
    on.cooling(0, "cur_state", "3");
    EXPECT_EQ(on.statistics.thermalState(), ThermalState::fair);
    on.cooling(0, "cur_state", "9");
    EXPECT_EQ(on.statistics.thermalState(), ThermalState::serious);
    on.cooling(0, "cur_state", "0");
    on.cooling(1, "type", "pwm-fan");
    on.cooling(1, "cur_state", "4");
    on.cooling(1, "max_state", "4");
    EXPECT_EQ(on.statistics.thermalState(), ThermalState::nominal);
}

TEST(HostStatisticsOfThisMachine, TicksAgreeWithTheProcessorsAddedUp)
{
    LinuxHostStatistics statistics;
    const auto before = statistics.cpuTicks();
    ASSERT_TRUE(before);
    uint64_t user = 0;
    QFile stat(QStringLiteral("/proc/stat"));
    ASSERT_TRUE(stat.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = stat.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("cpu") && !line.startsWith("cpu "))
            user += line.simplified().split(' ').value(1).toULongLong();
    }
    const auto after = statistics.cpuTicks();
    ASSERT_TRUE(after);
    // Rounding to ticks happens in every one.
    const double slack = static_cast<double>(::sysconf(_SC_NPROCESSORS_CONF)) + 1;
    EXPECT_GE(static_cast<double>(static_cast<uint32_t>(user)) + slack, before->user);
    EXPECT_LE(static_cast<double>(static_cast<uint32_t>(user)) - slack, after->user);
    EXPECT_GT(after->idle + after->user + after->system, 0U);
}

TEST(HostStatisticsOfThisMachine, PhysicalMemoryIsWhatTheLibraryCounts)
{
    LinuxHostStatistics statistics;
    const auto pages = static_cast<uint64_t>(::sysconf(_SC_PHYS_PAGES));
    EXPECT_EQ(statistics.physicalMemory(), pages * static_cast<uint64_t>(::sysconf(_SC_PAGESIZE)));
    const auto used = statistics.memoryPages();
    ASSERT_TRUE(used);
    EXPECT_GT(sum(*used), 0U);
    EXPECT_LT(sum(*used), pages);
}

TEST(HostStatisticsOfThisMachine, InterfacesAreThoseOfTheKernelsTable)
{
    const auto namesInTable = [] {
        QFile table(QStringLiteral("/proc/net/dev"));
        EXPECT_TRUE(table.open(QIODevice::ReadOnly));
        QStringList names;
        const QList<QByteArray> lines = table.readAll().split('\n');
        for (const QByteArray &line : lines) {
            if (line.contains(':'))
                names.append(QString::fromLocal8Bit(line.left(line.indexOf(':')).trimmed()));
        }
        names.sort();
        return names;
    };
    LinuxHostStatistics statistics;
    QStringList table;
    QStringList names;
    // Interfaces may come and go while this runs.
    do {
        table = namesInTable();
        names.clear();
        const auto interfaces = statistics.interfaces();
        ASSERT_TRUE(interfaces);
        for (const InterfaceCounters &counters : *interfaces)
            names.append(counters.name);
        names.sort();
    } while (table != namesInTable());
    EXPECT_EQ(names, table);
    EXPECT_TRUE(names.contains(QStringLiteral("lo")));
}

TEST(HostStatisticsOfThisMachine, TheRootVolumeIsAskedForTheUsersShare)
{
    LinuxHostStatistics statistics(QStringLiteral("/proc"), QStringLiteral("/sys"));
    const QStorageInfo root(QStringLiteral("/"));
    const DiskSnapshot disk = DiskReader::read(statistics, QStringLiteral("/"));
    EXPECT_EQ(disk.totalBytes, root.bytesTotal());
    // Others write meanwhile.
    EXPECT_NEAR(static_cast<double>(disk.freeBytes), static_cast<double>(root.bytesAvailable()), 1e9);
    EXPECT_GE(disk.usedFraction, 0);
    EXPECT_LE(disk.usedFraction, 1);
}

TEST(HostStatisticsOfThisMachine, AVolumeInMemoryIsKnown)
{
    LinuxHostStatistics statistics(QStringLiteral("/proc"), QStringLiteral("/sys"));
    const auto memory = statistics.volumeCapacity(QStringLiteral("/dev/shm"));
    ASSERT_TRUE(memory);
    EXPECT_TRUE(memory->isInMemory);
    const auto proc = statistics.volumeCapacity(QStringLiteral("/proc"));
    ASSERT_TRUE(proc);
    EXPECT_FALSE(proc->isInMemory);
}

TEST(HostStatisticsOfThisMachine, UptimeIsThatOfOtherPrograms)
{
    const auto ofFile = [] {
        QFile file(QStringLiteral("/proc/uptime"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll().split(' ').first().toDouble();
    };
    LinuxHostStatistics statistics;
    const double before = ofFile();
    const double between = statistics.uptime();
    EXPECT_LE(before, between);
    EXPECT_LE(between, ofFile());
}

TEST(HostStatisticsOfThisMachine, UptimeIsAboveZeroAndNeverGoesBack)
{
    LinuxHostStatistics statistics;
    double last = 0;
    for (int i = 0; i < 100; ++i) {
        const double now = statistics.uptime();
        EXPECT_GT(now, 0);
        EXPECT_GE(now, last);
        last = now;
    }
}

} // namespace brimlight::test
