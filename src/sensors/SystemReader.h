#pragma once

#include <QList>
#include <QtQmlIntegration>

#include <cstdint>
#include <optional>

namespace brimlight {

struct SystemCounters;

/// Load of the processors and share of the memory in use, each from 0 to 1.
struct SystemSnapshot
{
    Q_GADGET
    QML_VALUE_TYPE(systemSnapshot)
    Q_PROPERTY(double cpu MEMBER cpu)
    Q_PROPERTY(double memUsed MEMBER memUsed)

public:
    double cpu = 0;
    double memUsed = 0;

    bool operator==(const SystemSnapshot &) const = default;
};

/// Measures the load between one call and the next, and remembers the last samples. A counter that cannot be
/// read keeps its last good value.
class SystemReader
{
public:
    static constexpr qsizetype historyLength = 60;

    /// Takes one sample. The first has no load yet and reports 0; the first after a pause keeps the last
    /// load, for the mean of the pause says nothing of now.
    SystemSnapshot read(const SystemCounters &counters);

    /// Oldest first, at most `historyLength` values each.
    const QList<double> &cpuHistory() const { return m_cpuHistory; }
    const QList<double> &memHistory() const { return m_memHistory; }

private:
    std::optional<double> readCPU(const SystemCounters &counters);

    uint64_t m_prevTotal = 0;
    uint64_t m_prevIdle = 0;
    /// Seconds of uptime.
    double m_prevTime = 0;
    double m_lastCPU = 0;
    double m_lastMem = 0;
    QList<double> m_cpuHistory;
    QList<double> m_memHistory;
};

} // namespace brimlight
