#pragma once

#include "platform/HostStatistics.h"

#include <QHash>
#include <QStringList>

namespace brimlight::test {

/// Counters that stand where the test put them.
class FakeHostStatistics : public HostStatistics
{
public:
    std::optional<CpuTicks> cpuTicks() override
    {
        ++cpuReads;
        return ticks;
    }
    std::optional<MemoryPages> memoryPages() override { return pages; }
    uint64_t physicalMemory() override { return physical; }
    std::optional<QList<InterfaceCounters>> interfaces() override
    {
        return canListLinks ? std::optional(links) : std::nullopt;
    }
    std::optional<VolumeCapacity> volumeCapacity(const QString &path) override
    {
        volumesAsked.append(path);
        return volumes.contains(path) ? volumes.value(path) : capacity;
    }
    double uptime() override { return seconds; }
    ThermalState thermalState() override { return thermal; }

    std::optional<CpuTicks> ticks;
    std::optional<MemoryPages> pages;
    uint64_t physical = 0;
    QList<InterfaceCounters> links;
    bool canListLinks = true;
    /// Of the volumes that are not in `volumes`.
    std::optional<VolumeCapacity> capacity;
    QHash<QString, VolumeCapacity> volumes;
    double seconds = 0;
    ThermalState thermal = ThermalState::nominal;

    int cpuReads = 0;
    QStringList volumesAsked;
};

} // namespace brimlight::test
