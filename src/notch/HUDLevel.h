#pragma once

#include "notch/HUDType.h"

#include <QString>

namespace brimlight {

/// How the heads-up display shows a value.
namespace hudlevel {

/// The least that is seen of the bar, in points.
inline constexpr double minimumBar = 4;

/// The name of the icon.
QString symbol(const HUDType &type);
/// The width of the bar's fill on a track of this width, in points.
double barWidth(double level, double trackWidth);
/// Cut to a whole number: "99%" for 0.999.
QString percent(double level);

} // namespace hudlevel
} // namespace brimlight
