#pragma once

#include <QHash>
#include <QString>

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

/// Measures the rate between one call and the next, so each view needs one of its own. Links are followed one
/// by one: one that has gone takes nothing away from the others, one that is new or has been reset counts
/// from zero.
class NetworkReader
{
public:
    explicit NetworkReader(HostStatistics &statistics)
        : m_statistics(statistics)
    {
    }

    /// The first call, and one within the same tick of the clock, report 0; each moves the baseline, unless
    /// the interfaces cannot be listed.
    NetSnapshot read();

private:
    struct Bytes
    {
        uint64_t in = 0;
        uint64_t out = 0;
    };

    HostStatistics &m_statistics;
    QHash<QString, Bytes> m_prev;
    /// Seconds of uptime; 0 before the first sample.
    double m_prevTime = 0;
};

} // namespace brimlight
