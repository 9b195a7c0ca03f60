#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// A stopwatch with laps.
struct StopwatchWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("stopwatch"),
                .displayName = QStringLiteral("Stopwatch"),
                .symbol = QStringLiteral("stopwatch"),
                .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                .defaultSize = WidgetSize::wide,
                .refresh = RefreshCadence::never()};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
