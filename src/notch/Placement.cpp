#include "notch/Placement.h"

#include <algorithm>

namespace brimlight::placement {

std::optional<Screen> chooseScreen(const Screens &screens)
{
    const std::vector<Screen> all = screens.screens();
    const auto notched =
        std::find_if(all.begin(), all.end(), [](const Screen &screen) { return screen.safeAreaTop > 0; });
    if (notched != all.end())
        return *notched;
    if (auto main = screens.mainScreen())
        return main;
    if (!all.empty())
        return all.front();
    return std::nullopt;
}

double expandedHeight(const Content &content, const NotchGeometry &geometry, const Screen &screen)
{
    const double visible = screen.visibleFrame.height;
    if (content.showSettings)
        return std::min(0.85 * visible, maximumSettingsHeight);
    if (!content.onboardingCompleted)
        return onboardingHeight;
    if (content.isExpanded) {
        const double natural = content.rows * gridRowHeight + std::max(content.rows - 1, 0) * gridRowGap +
                               geometry.collapsedHeight + expandedChromeHeight;
        return std::min(std::max(natural, minimumGridHeight), std::min(0.9 * visible, maximumGridHeight));
    }
    if (content.showsHud)
        return geometry.collapsedHeight + hudExtraHeight;
    return geometry.collapsedHeight;
}

Rect frame(bool expanded, double expandedHeight, const NotchGeometry &geometry, const Screen &screen)
{
    const double width =
        expanded ? std::max(geometry.collapsedWidth, minimumExpandedWidth) : geometry.collapsedWidth;
    const double height = expanded ? expandedHeight : geometry.collapsedHeight;
    return {screen.frame.midX() - width / 2, screen.frame.maxY() - height, width, height};
}

Rect hudFrame(const Rect &strip)
{
    return {strip.x + hudSideGap, strip.y - hudTopGap - hudHeight, strip.width - 2 * hudSideGap, hudHeight};
}

QString rectString(const Rect &rect)
{
    const auto whole = [](double value) { return QString::number(static_cast<qint64>(value)); };
    return QStringLiteral("(%1,%2 %3x%4)")
        .arg(whole(rect.x), whole(rect.y), whole(rect.width), whole(rect.height));
}

} // namespace brimlight::placement
