#include "sensors/NetworkFace.h"

#include <algorithm>

namespace brimlight {

NetworkFace::NetworkFace(WidgetContext &context, HostStatistics &statistics)
    : WidgetLogic(context)
    , m_reader(statistics)
{
}

QList<double> NetworkFace::bars() const
{
    QList<double> bars = m_history;
    const double top = bars.isEmpty() ? 1.0 : std::max(*std::ranges::max_element(bars), 1.0);
    for (double &bar : bars)
        bar /= top;
    return bars;
}

void NetworkFace::tick()
{
    m_snapshot = m_reader.read();
    m_history.append(m_snapshot.down);
    if (m_history.size() > longestHistory)
        m_history.removeFirst();
}

} // namespace brimlight
