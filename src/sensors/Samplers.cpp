#include "sensors/Samplers.h"

namespace brimlight {

SystemCounters systemCounters(HostStatistics &statistics)
{
    return {.ticks = statistics.cpuTicks(),
            .pages = statistics.memoryPages(),
            .physicalMemory = statistics.physicalMemory(),
            .uptime = statistics.uptime()};
}

SystemSampler::SystemSampler(HostStatistics &statistics, Scheduler &scheduler)
    : Sampler(scheduler, [&statistics] { return systemCounters(statistics); })
{
}

NetworkCounters networkCounters(HostStatistics &statistics)
{
    return {.links = statistics.interfaces(), .uptime = statistics.uptime()};
}

NetworkSampler::NetworkSampler(HostStatistics &statistics, Scheduler &scheduler)
    : Sampler(scheduler, [&statistics] { return networkCounters(statistics); })
{
}

DiskSampler::DiskSampler(HostStatistics &statistics, const QString &home, Scheduler &scheduler)
    : Sampler(scheduler, [&statistics, home] { return DiskReader::read(statistics, home); })
{
}

PowerSampler::PowerSampler(PowerSources &sources, Scheduler &scheduler)
    : Sampler(scheduler, [&sources] { return sources.read(); })
{
}

ThermalStateSampler::ThermalStateSampler(HostStatistics &statistics, Scheduler &scheduler)
    : Sampler(scheduler, [&statistics] { return statistics.thermalState(); })
{
}

MachineSampler::MachineSampler(MachineInfo &info, HostStatistics &statistics, Scheduler &scheduler)
    : Sampler(scheduler, [&info, &statistics] {
        return MachineFacts{.osVersion = info.osVersion(),
                            .hostName = info.hostName(),
                            .chip = info.chip().value_or(QString()),
                            .uptime = statistics.uptime()};
    })
{
}

} // namespace brimlight
