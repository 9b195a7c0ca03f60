#include "sensors/SystemReader.h"

#include "sensors/Samplers.h"

#include <algorithm>
#include <utility>

namespace brimlight {
namespace {

void append(QList<double> &history, double value)
{
    history.append(value);
    if (history.size() > SystemReader::historyLength)
        history.removeFirst();
}

/// How far a counter went; below 0 when it wrapped or the kernel corrected it.
double advance(uint64_t from, uint64_t to)
{
    return static_cast<double>(to) - static_cast<double>(from);
}

std::optional<double> memoryUsed(const SystemCounters &counters)
{
    if (!counters.pages || counters.physicalMemory == 0)
        return std::nullopt;
    const MemoryPages &pages = *counters.pages;
    const auto inUse = static_cast<double>(pages.active + pages.wired + pages.compressor);
    return std::min(
        inUse * static_cast<double>(pages.pageSize) / static_cast<double>(counters.physicalMemory), 1.0);
}

} // namespace

SystemSnapshot SystemReader::read(const SystemCounters &counters)
{
    m_lastCPU = readCPU(counters).value_or(m_lastCPU);
    m_lastMem = memoryUsed(counters).value_or(m_lastMem);
    append(m_cpuHistory, m_lastCPU);
    append(m_memHistory, m_lastMem);
    return {.cpu = m_lastCPU, .memUsed = m_lastMem};
}

std::optional<double> SystemReader::readCPU(const SystemCounters &counters)
{
    const auto &ticks = counters.ticks;
    if (!ticks)
        return std::nullopt;
    const uint64_t idle = ticks->idle;
    const uint64_t total = uint64_t{ticks->user} + ticks->system + idle + ticks->nice;
    const uint64_t fromTotal = std::exchange(m_prevTotal, total);
    const uint64_t fromIdle = std::exchange(m_prevIdle, idle);
    const double fromTime = std::exchange(m_prevTime, counters.uptime);
    if (fromTotal == 0 || total == fromTotal || counters.uptime - fromTime > longestBaselineSeconds)
        return std::nullopt;
    return std::clamp(1.0 - advance(fromIdle, idle) / advance(fromTotal, total), 0.0, 1.0);
}

} // namespace brimlight
