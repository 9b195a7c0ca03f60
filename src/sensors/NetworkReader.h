#pragma once

#include "sensors/Samplers.h"

#include <QHash>

namespace brimlight {

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
    /// Absent without a baseline: on the first call, after a pause, and when the interfaces cannot be listed,
    /// which alone leaves the baseline as it was. Within one tick of the clock the rates are 0.
    std::optional<NetSnapshot> read(const NetworkCounters &counters);

private:
    struct Bytes
    {
        uint64_t in = 0;
        uint64_t out = 0;
    };

    QHash<QString, Bytes> m_prev;
    /// Seconds of uptime; absent before the first sample.
    std::optional<double> m_prevTime;
};

} // namespace brimlight
