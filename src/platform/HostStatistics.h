#pragma once

#include <QList>
#include <QString>

#include <cstdint>
#include <optional>

namespace brimlight {

/// Time that all processors together have spent since the start, in ticks; wraps.
struct CpuTicks
{
    uint32_t user = 0;
    uint32_t system = 0;
    uint32_t idle = 0;
    uint32_t nice = 0;
};

/// Memory that cannot be taken away from its users without writing it somewhere, in pages.
struct MemoryPages
{
    uint64_t active = 0;
    uint64_t wired = 0;
    uint64_t compressor = 0;
    /// Bytes.
    uint64_t pageSize = 0;
};

struct InterfaceCounters
{
    QString name;
    /// Bytes since the interface came up.
    uint64_t received = 0;
    uint64_t sent = 0;

    bool operator==(const InterfaceCounters &) const = default;
};

struct VolumeCapacity
{
    /// Bytes.
    int64_t total = 0;
    /// What the user could still fill.
    int64_t available = 0;
    bool isReadOnly = false;
    /// Gone with the next start.
    bool isInMemory = false;
};

/// 0 to 3 in the order of severity.
enum class ThermalState { nominal, fair, serious, critical };

/// Counters of the machine. A call waits for whatever answers it, which may be for ever: it belongs on a
/// thread of its own, and calls may come from several threads at once.
class HostStatistics
{
public:
    virtual ~HostStatistics() = default;
    virtual std::optional<CpuTicks> cpuTicks() = 0;
    virtual std::optional<MemoryPages> memoryPages() = 0;
    /// Bytes; 0 when unknown.
    virtual uint64_t physicalMemory() = 0;
    /// One entry for each interface of the link layer; absent when they cannot be listed.
    virtual std::optional<QList<InterfaceCounters>> interfaces() = 0;
    virtual std::optional<VolumeCapacity> volumeCapacity(const QString &path) = 0;
    /// Seconds since the machine was started, awake or not.
    virtual double uptime() = 0;
    virtual ThermalState thermalState() = 0;
};

} // namespace brimlight
