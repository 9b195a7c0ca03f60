#pragma once

#include "notch/NotchGeometry.h"

#include <QString>

namespace brimlight {

/// Where the panel stands and how large it is. Pure arithmetic in logical coordinates.
namespace placement {

inline constexpr double minimumExpandedWidth = 536;
inline constexpr double gridRowHeight = 74;
inline constexpr double gridRowGap = 12;
inline constexpr double expandedChromeHeight = 80;
inline constexpr double minimumGridHeight = 170;
inline constexpr double maximumGridHeight = 600;
inline constexpr double maximumSettingsHeight = 540;
inline constexpr double onboardingHeight = 300;
inline constexpr double hudExtraHeight = 36;
inline constexpr double hudHeight = 24;
inline constexpr double hudTopGap = 6;
inline constexpr double hudSideGap = 16;

/// The first screen with a camera housing, else the main one, else the first, else none.
std::optional<Screen> chooseScreen(const Screens &screens);

/// What decides the height of the panel, in the order in which it is asked.
struct Content
{
    bool showSettings = false;
    bool onboardingCompleted = true;
    bool isExpanded = true;
    /// Rows of the page that is shown.
    int rows = 3;
    bool showsHud = false;
};

double expandedHeight(const Content &content, const NotchGeometry &geometry, const Screen &screen);

/// Top centre of the screen, its top edge on the screen's top edge. `expandedHeight` counts only when
/// expanded.
Rect frame(bool expanded, double expandedHeight, const NotchGeometry &geometry, const Screen &screen);

/// Where the heads-up display stands under the strip, in logical coordinates.
Rect hudFrame(const Rect &strip);

/// "(x,y widthxheight)" with each number cut to an integer, for trace lines.
QString rectString(const Rect &rect);

} // namespace placement
} // namespace brimlight
