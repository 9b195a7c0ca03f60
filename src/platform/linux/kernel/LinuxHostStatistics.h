#pragma once

#include "platform/HostStatistics.h"

#include <QByteArray>

namespace brimlight {

/// The first line of /proc/stat. Absent when it is none.
std::optional<CpuTicks> parseCpuTicks(const QByteArray &stat);

/// What /proc/meminfo says, in bytes.
struct MemoryInfo
{
    uint64_t total = 0;
    /// What programs could still get without swapping.
    uint64_t available = 0;
    /// Pages of programs that no file stands behind.
    uint64_t anonymous = 0;
    /// Pages that were compressed instead of written out, as they are stored.
    uint64_t compressed = 0;
};
/// Absent without total and available.
std::optional<MemoryInfo> parseMemoryInfo(const QByteArray &meminfo);

/// Their sum is what is not available.
MemoryPages pagesInUse(const MemoryInfo &info, uint64_t pageSize);

/// The kernel's table of links, /proc/net/dev. Absent when it is none.
std::optional<QList<InterfaceCounters>> parseInterfaces(const QByteArray &table);

/// The kernel's counters. `proc` and `sys` are the folders where it shows them. docs/counters.md says why it
/// is these.
class LinuxHostStatistics : public HostStatistics
{
public:
    explicit LinuxHostStatistics(const QString &proc = QStringLiteral("/proc"),
                                 const QString &sys = QStringLiteral("/sys"));

    std::optional<CpuTicks> cpuTicks() override;
    std::optional<MemoryPages> memoryPages() override;
    uint64_t physicalMemory() override;
    std::optional<QList<InterfaceCounters>> interfaces() override;
    std::optional<VolumeCapacity> volumeCapacity(const QString &path) override;
    double uptime() override;
    ThermalState thermalState() override;

private:
    std::optional<MemoryInfo> memoryInfo() const;
    ThermalState worst(const QString &folders, ThermalState (*read)(const QString &folder)) const;

    QString m_proc;
    QString m_thermal;
};

} // namespace brimlight
