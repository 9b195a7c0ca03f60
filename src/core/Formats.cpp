#include "core/Formats.h"

#include <cmath>

namespace brimlight::formats {
namespace {

constexpr double kilo = 1e3;
constexpr double mega = 1e6;
constexpr double giga = 1e9;

} // namespace

QString percent(double fraction)
{
    return percentNumber(std::lround(fraction * 100));
}

QString percentCut(double fraction, double rounding)
{
    return percentNumber(static_cast<int>(fraction * 100 + rounding));
}

QString percentNumber(int64_t percent)
{
    return QStringLiteral("%1%").arg(percent);
}

int64_t wholeDegrees(double celsius, bool inCelsius)
{
    return std::llround(inCelsius ? celsius : celsius * 9 / 5 + 32);
}

QString degrees(double celsius, bool inCelsius)
{
    return QString::number(wholeDegrees(celsius, inCelsius)) + QStringLiteral("°");
}

QString gigabytes(int64_t bytes)
{
    const double value = static_cast<double>(bytes) / giga;
    return QString::asprintf(value >= 100 ? "%.0f GB" : "%.1f GB", value);
}

QString rate(double bytesPerSecond)
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

QString daysHoursMinutes(int64_t seconds)
{
    constexpr int64_t minute = 60;
    constexpr int64_t hour = 60 * minute;
    constexpr int64_t day = 24 * hour;
    if (seconds >= day)
        return QStringLiteral("%1d %2h").arg(seconds / day).arg(seconds % day / hour);
    if (seconds >= hour)
        return QStringLiteral("%1h %2m").arg(seconds / hour).arg(seconds % hour / minute);
    return QStringLiteral("%1m").arg(seconds / minute);
}

QString hoursAndMinutes(int minutes)
{
    return QString::asprintf("%d:%02d", minutes / 60, minutes % 60);
}

} // namespace brimlight::formats
