#pragma once

#include <cstdint>

namespace brimlight {

class HostStatistics;

/// Bytes per second over all interfaces but the loopback ones.
struct NetSnapshot
{
    double up = 0;
    double down = 0;

    bool operator==(const NetSnapshot &) const = default;
};

/// Measures the rate between one call and the next, so each view needs one of its own. A counter that wraps
/// or restarts makes one sample huge.
class NetworkReader
{
public:
    explicit NetworkReader(HostStatistics &statistics)
        : m_statistics(statistics)
    {
    }

    /// The first call, and one within the same tick of the clock, report 0; each moves the baseline.
    NetSnapshot read();

private:
    struct Totals
    {
        uint64_t in = 0;
        uint64_t out = 0;
    };
    Totals totals();

    HostStatistics &m_statistics;
    uint64_t m_prevIn = 0;
    uint64_t m_prevOut = 0;
    /// Seconds of uptime; 0 before the first sample.
    double m_prevTime = 0;
};

} // namespace brimlight
