#include "sensors/SystemReader.h"

#include "platform/HostStatistics.h"

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

} // namespace

SystemSnapshot SystemReader::read()
{
    m_lastCPU = readCPU().value_or(m_lastCPU);
    m_lastMem = readMemoryUsed().value_or(m_lastMem);
    append(m_cpuHistory, m_lastCPU);
    append(m_memHistory, m_lastMem);
    return {.cpu = m_lastCPU, .memUsed = m_lastMem};
}

std::optional<double> SystemReader::readCPU()
{
    const auto ticks = m_statistics.cpuTicks();
    if (!ticks)
        return std::nullopt;
    const uint64_t idle = ticks->idle;
    const uint64_t total = uint64_t{ticks->user} + ticks->system + idle + ticks->nice;
    const uint64_t fromTotal = std::exchange(m_prevTotal, total);
    const uint64_t fromIdle = std::exchange(m_prevIdle, idle);
    if (fromTotal == 0 || total == fromTotal)
        return std::nullopt;
    return std::clamp(1.0 - advance(fromIdle, idle) / advance(fromTotal, total), 0.0, 1.0);
}

std::optional<double> SystemReader::readMemoryUsed()
{
    const auto pages = m_statistics.memoryPages();
    const uint64_t physical = m_statistics.physicalMemory();
    if (!pages || physical == 0)
        return std::nullopt;
    const auto inUse = static_cast<double>(pages->active + pages->wired + pages->compressor);
    return std::min(inUse * static_cast<double>(pages->pageSize) / static_cast<double>(physical), 1.0);
}

} // namespace brimlight
