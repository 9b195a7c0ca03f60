#include "sensors/DiskFace.h"

#include "sensors/Percent.h"
#include "theme/SignalColors.h"

namespace brimlight {
namespace {

constexpr double watchFrom = 0.8;
constexpr double redFrom = 0.92;

} // namespace

QString gb(int64_t bytes)
{
    const double value = static_cast<double>(bytes) / 1e9;
    return QString::asprintf(value >= 100 ? "%.0f GB" : "%.1f GB", value);
}

QColor diskTint(double usedFraction, const QColor &accent)
{
    return signalColors::byLevel(usedFraction, watchFrom, redFrom, accent);
}

QString diskStatus(double usedFraction)
{
    return usedFraction < watchFrom ? QStringLiteral("Healthy") : QStringLiteral("Watch");
}

DiskFace::DiskFace(WidgetContext &context, HostStatistics &statistics)
    : WidgetLogic(context)
    , m_statistics(statistics)
{
    read();
}

QString DiskFace::percent() const
{
    return wholePercent(m_snapshot.usedFraction);
}

} // namespace brimlight
