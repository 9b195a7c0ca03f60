#pragma once

#include "platform/HostStatistics.h"

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
    QList<InterfaceCounters> interfaces() override { return links; }
    std::optional<VolumeCapacity> volumeCapacity(const QString &path) override
    {
        volumesAsked.append(path);
        return capacity;
    }
    double uptime() override { return seconds; }
    ThermalState thermalState() override { return thermal; }

    std::optional<CpuTicks> ticks;
    std::optional<MemoryPages> pages;
    uint64_t physical = 0;
    QList<InterfaceCounters> links;
    std::optional<VolumeCapacity> capacity;
    double seconds = 0;
    ThermalState thermal = ThermalState::nominal;

    int cpuReads = 0;
    QStringList volumesAsked;
};

} // namespace brimlight::test
