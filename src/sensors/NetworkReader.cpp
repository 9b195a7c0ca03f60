#include "sensors/NetworkReader.h"

#include <utility>

namespace brimlight {
namespace {

/// A counter that is lower than before was reset in between.
double growth(uint64_t from, uint64_t to)
{
    return static_cast<double>(to >= from ? to - from : to);
}

} // namespace

std::optional<NetSnapshot> NetworkReader::read(const NetworkCounters &counters)
{
    if (!counters.links)
        return std::nullopt;
    const auto from = std::exchange(m_prevTime, counters.uptime);
    const double dt = counters.uptime - from.value_or(counters.uptime);
    QHash<QString, Bytes> links;
    NetSnapshot snapshot;
    for (const InterfaceCounters &link : *counters.links) {
        if (link.name.startsWith(QLatin1String("lo")))
            continue;
        const Bytes before = m_prev.value(link.name);
        links.insert(link.name, {.in = link.received, .out = link.sent});
        if (dt > 0) {
            snapshot.up += growth(before.out, link.sent) / dt;
            snapshot.down += growth(before.in, link.received) / dt;
        }
    }
    m_prev = links;
    return from && dt <= longestBaselineSeconds ? std::optional(snapshot) : std::nullopt;
}

} // namespace brimlight
