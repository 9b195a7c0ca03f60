#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// What is playing, with its transport keys.
struct MediaWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("media"),
                .displayName = QStringLiteral("Now Playing"),
                .symbol = QStringLiteral("play.circle.fill"),
                .allowedSizes = {WidgetSize::wide, WidgetSize::large, WidgetSize::wideTall},
                .defaultSize = WidgetSize::wide,
                .refresh = RefreshCadence::seconds(1)};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
