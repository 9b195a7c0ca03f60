#include "sensors/NetworkReader.h"

#include "platform/HostStatistics.h"

namespace brimlight {

NetSnapshot NetworkReader::read()
{
    const Totals total = totals();
    const double now = m_statistics.uptime();
    NetSnapshot snapshot;
    if (m_prevTime > 0 && m_prevTime < now) {
        const double dt = now - m_prevTime;
        snapshot.up = static_cast<double>(total.out - m_prevOut) / dt;
        snapshot.down = static_cast<double>(total.in - m_prevIn) / dt;
    }
    m_prevIn = total.in;
    m_prevOut = total.out;
    m_prevTime = now;
    return snapshot;
}

NetworkReader::Totals NetworkReader::totals()
{
    Totals sum;
    const QList<InterfaceCounters> interfaces = m_statistics.interfaces();
    for (const InterfaceCounters &counters : interfaces) {
        if (counters.name.startsWith(QLatin1String("lo")))
            continue;
        sum.in += counters.received;
        sum.out += counters.sent;
    }
    return sum;
}

} // namespace brimlight
