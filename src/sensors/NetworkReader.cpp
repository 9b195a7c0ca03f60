#include "sensors/NetworkReader.h"

#include "platform/HostStatistics.h"

#include <utility>

namespace brimlight {
namespace {

/// A counter that is lower than before was reset in between.
double advance(uint64_t from, uint64_t to)
{
    return static_cast<double>(to >= from ? to - from : to);
}

} // namespace

NetSnapshot NetworkReader::read()
{
    const auto interfaces = m_statistics.interfaces();
    if (!interfaces)
        return {};
    const double now = m_statistics.uptime();
    const double dt = now - std::exchange(m_prevTime, now);
    const bool isRate = dt < now && dt > 0;
    QHash<QString, Bytes> links;
    NetSnapshot snapshot;
    for (const InterfaceCounters &counters : *interfaces) {
        if (counters.name.startsWith(QLatin1String("lo")))
            continue;
        const Bytes before = m_prev.value(counters.name);
        links.insert(counters.name, {.in = counters.received, .out = counters.sent});
        if (isRate) {
            snapshot.up += advance(before.out, counters.sent) / dt;
            snapshot.down += advance(before.in, counters.received) / dt;
        }
    }
    m_prev = links;
    return snapshot;
}

} // namespace brimlight
