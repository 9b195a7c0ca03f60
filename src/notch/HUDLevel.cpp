#include "notch/HUDLevel.h"

#include "core/Formats.h"

#include <algorithm>

namespace brimlight::hudlevel {

QString symbol(const HUDType &type)
{
    if (type.kind == HUDType::Kind::brightness)
        return QStringLiteral("sun.max.fill");
    if (type.level == 0)
        return QStringLiteral("speaker.slash.fill");
    if (type.level < 0.33)
        return QStringLiteral("speaker.wave.1.fill");
    if (type.level < 0.66)
        return QStringLiteral("speaker.wave.2.fill");
    return QStringLiteral("speaker.wave.3.fill");
}

double barWidth(double level, double trackWidth)
{
    // A device that amplifies is above 1.
    return std::max(minimumBar, std::min(level, 1.0) * trackWidth);
}

QString percent(double level)
{
    // Volumes are of single precision, in which 0.45 is a little less and yet 45 of 100.
    constexpr double rounding = 1e-4;
    return formats::percentCut(level, rounding);
}

} // namespace brimlight::hudlevel
