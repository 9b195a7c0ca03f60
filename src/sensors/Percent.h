#pragma once

#include <QString>

#include <cmath>

namespace brimlight {

/// "37%", rounded.
inline QString wholePercent(double fraction)
{
    return QStringLiteral("%1%").arg(std::lround(fraction * 100));
}

} // namespace brimlight
