#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// Days to chosen dates.
struct CountdownWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("countdown"),
                .displayName = QStringLiteral("Countdown"),
                .symbol = QStringLiteral("hourglass"),
                .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large, WidgetSize::tall},
                .defaultSize = WidgetSize::wide,
                .refresh = RefreshCadence::seconds(30)};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
