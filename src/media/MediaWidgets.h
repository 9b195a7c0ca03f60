#pragma once

#include "grid/WidgetDefinition.h"

#include <vector>

namespace brimlight {

/// The kinds of widget for what plays. A template, since the program's stores are gathered above this
/// folder; of them it takes what its rows name.
template<typename Stores>
std::vector<WidgetDefinition> mediaWidgets([[maybe_unused]] Stores &stores)
{
    return {
        // What is playing, with its transport keys.
        {.metadata = {.kind = QStringLiteral("media"),
                      .displayName = QStringLiteral("Now Playing"),
                      .symbol = QStringLiteral("play.circle.fill"),
                      .allowedSizes = {WidgetSize::wide, WidgetSize::large, WidgetSize::wideTall},
                      .defaultSize = WidgetSize::wide,
                      .refresh = RefreshCadence::seconds(1)}},
    };
}

} // namespace brimlight
