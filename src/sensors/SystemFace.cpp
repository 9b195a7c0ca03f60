#include "sensors/SystemFace.h"

#include "sensors/Percent.h"
#include "sensors/SignalColors.h"

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

QString SystemFace::cpuText() const
{
    return wholePercent(cpu());
}

QString SystemFace::ramText() const
{
    return wholePercent(ram());
}

QString SystemFace::detail() const
{
    return ramDetail(ram(), machine() ? machine()->statistics.physicalMemory() : 0);
}

} // namespace brimlight
