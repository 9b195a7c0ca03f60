#pragma once

#include "platform/Screens.h"

#include <optional>

namespace brimlight {

/// How large the collapsed panel is on a screen, in points.
struct NotchGeometry
{
    bool hasNotch = false;
    double collapsedWidth = 200;
    double collapsedHeight = 32;

    bool operator==(const NotchGeometry &) const = default;

    /// As wide as the camera housing of the screen and never lower than 32; 200 by 32 without a housing or
    /// screen.
    static NotchGeometry forScreen(const std::optional<Screen> &screen);
};

} // namespace brimlight
