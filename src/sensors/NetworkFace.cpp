#include "sensors/NetworkFace.h"

#include <algorithm>

namespace brimlight {
namespace {

constexpr double mega = 1e6;
constexpr double kilo = 1e3;

} // namespace

QString rateText(double bytesPerSecond)
{
    if (bytesPerSecond >= mega)
        return QString::asprintf("%.1f MB/s", bytesPerSecond / mega);
    if (bytesPerSecond >= kilo)
        return QString::asprintf("%.0f KB/s", bytesPerSecond / kilo);
    return QString::asprintf("%.0f B/s", bytesPerSecond);
}

QString compactRate(double bytesPerSecond)
{
    if (bytesPerSecond >= mega)
        return QString::asprintf("%.1fM", bytesPerSecond / mega);
    if (bytesPerSecond >= kilo)
        return QString::asprintf("%.0fK", bytesPerSecond / kilo);
    return QString::asprintf("%.0f", bytesPerSecond);
}

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
