#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// Glasses of water drunk today.
struct HydrationWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("hydration"),
                .displayName = QStringLiteral("Hydration"),
                .symbol = QStringLiteral("drop.fill"),
                .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large, WidgetSize::tall},
                .defaultSize = WidgetSize::large,
                .refresh = RefreshCadence::never()};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
