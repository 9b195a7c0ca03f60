#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// A timer that counts down.
struct TimerWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("timer"),
                .displayName = QStringLiteral("Timer"),
                .symbol = QStringLiteral("timer"),
                .allowedSizes = {WidgetSize::small, WidgetSize::wide},
                .defaultSize = WidgetSize::wide,
                .refresh = RefreshCadence::seconds(1)};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
