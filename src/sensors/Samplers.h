#pragma once

#include "platform/HostStatistics.h"
#include "platform/MachineInfo.h"
#include "platform/PowerSources.h"
#include "sensors/DiskReader.h"
#include "sensors/Sampler.h"

namespace brimlight {

/// A rate over more than this is one over a pause, and its baseline is of no use; twice the slowest tick.
constexpr double longestBaselineSeconds = 10;

/// What the load is told from; parts that cannot be read are absent.
struct SystemCounters
{
    std::optional<CpuTicks> ticks;
    std::optional<MemoryPages> pages;
    /// Bytes; 0 when unknown.
    uint64_t physicalMemory = 0;
    /// Seconds.
    double uptime = 0;
};

SystemCounters systemCounters(HostStatistics &statistics);

class SystemSampler : public Sampler<SystemCounters>
{
public:
    SystemSampler(HostStatistics &statistics, Scheduler &scheduler);
};

struct NetworkCounters
{
    /// Absent when they cannot be listed.
    std::optional<QList<InterfaceCounters>> links;
    /// Seconds.
    double uptime = 0;
};

NetworkCounters networkCounters(HostStatistics &statistics);

class NetworkSampler : public Sampler<NetworkCounters>
{
public:
    NetworkSampler(HostStatistics &statistics, Scheduler &scheduler);
};

class DiskSampler : public Sampler<DiskSnapshot>
{
public:
    /// `home` is the user's.
    DiskSampler(HostStatistics &statistics, const QString &home, Scheduler &scheduler);
};

class PowerSampler : public Sampler<PowerState>
{
public:
    PowerSampler(PowerSources &sources, Scheduler &scheduler);
};

class ThermalStateSampler : public Sampler<ThermalState>
{
public:
    ThermalStateSampler(HostStatistics &statistics, Scheduler &scheduler);
};

/// What this machine is, and how long it has been on.
struct MachineFacts
{
    QString osVersion;
    QString hostName;
    /// Empty when unknown.
    QString chip;
    /// Seconds.
    double uptime = 0;
};

class MachineSampler : public Sampler<MachineFacts>
{
public:
    MachineSampler(MachineInfo &info, HostStatistics &statistics, Scheduler &scheduler);
};

} // namespace brimlight
