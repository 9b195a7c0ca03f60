#include "notch/NotchGeometry.h"

#include <algorithm>

namespace brimlight {

NotchGeometry NotchGeometry::forScreen(const std::optional<Screen> &screen)
{
    const NotchGeometry none;
    if (!screen || !(screen->safeAreaTop > 0))
        return none;
    const auto width = [](const std::optional<Rect> &area) { return area ? area->width : 0; };
    const double between =
        screen->frame.width - width(screen->auxiliaryTopLeftArea) - width(screen->auxiliaryTopRightArea);
    return {.hasNotch = true,
            .collapsedWidth = between > 0 ? between : none.collapsedWidth,
            .collapsedHeight = std::max(screen->safeAreaTop, none.collapsedHeight)};
}

} // namespace brimlight
