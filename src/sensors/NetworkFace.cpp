#include "sensors/NetworkFace.h"

#include <algorithm>
#include <utility>

namespace brimlight {

NetworkFace::NetworkFace(WidgetContext &context, NetworkSampler &counters)
    : WidgetLogic(context)
    , m_counters(counters, [this](const NetworkCounters &answer) { take(answer); })
{
    m_counters.takeLatest();
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
    m_isForTick = true;
    m_counters.ask();
}

void NetworkFace::take(const NetworkCounters &counters)
{
    const bool isForTick = std::exchange(m_isForTick, false);
    const auto rates = m_reader.read(counters);
    if (!rates)
        return;
    m_snapshot = *rates;
    if (isForTick)
        m_history.append(m_snapshot.down);
    if (m_history.size() > longestHistory)
        m_history.removeFirst();
    Q_EMIT changed();
}

} // namespace brimlight
