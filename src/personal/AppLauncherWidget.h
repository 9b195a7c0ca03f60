#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// Chosen programs to start.
struct AppLauncherWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("launcher"),
                .displayName = QStringLiteral("App Launcher"),
                .symbol = QStringLiteral("square.grid.2x2"),
                .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                .defaultSize = WidgetSize::wide,
                .refresh = RefreshCadence::never()};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
