#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// A circle to breathe with.
struct BreathingWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("breathing"),
                .displayName = QStringLiteral("Breathing"),
                .symbol = QStringLiteral("wind"),
                .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                .defaultSize = WidgetSize::large,
                .refresh = RefreshCadence::never()};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
