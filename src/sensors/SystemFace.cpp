#include "sensors/SystemFace.h"

#include "core/Formats.h"
#include "theme/SignalColors.h"

namespace brimlight {

QColor loadTint(double fraction, const QColor &accent)
{
    constexpr double orangeFrom = 0.7;
    constexpr double redFrom = 0.9;
    return signalColors::byLevel(fraction, orangeFrom, redFrom, accent);
}

QString ramDetail(double usedFraction, uint64_t total)
{
    const double gigabytes = static_cast<double>(total) / 1e9;
    return QString::asprintf("RAM %.1f / %.0f GB", usedFraction * gigabytes, gigabytes);
}

SystemFace::SystemFace(WidgetContext &context, SystemSampler &counters)
    : WidgetLogic(context)
    , m_counters(counters, [this](const SystemCounters &answer) { take(answer); })
{
    m_counters.takeLatest();
}

void SystemFace::take(const SystemCounters &counters)
{
    m_snapshot = m_reader.read(counters);
    m_physicalMemory = counters.physicalMemory;
    Q_EMIT changed();
}

QString SystemFace::cpuText() const
{
    return formats::percent(cpu());
}

QString SystemFace::ramText() const
{
    return formats::percent(ram());
}

QString SystemFace::detail() const
{
    return ramDetail(ram(), m_physicalMemory);
}

} // namespace brimlight
