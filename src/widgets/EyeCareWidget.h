#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// Reminds to look into the distance.
struct EyeCareWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("eye_care"),
                .displayName = QStringLiteral("Eye Care"),
                .symbol = QStringLiteral("eye"),
                .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                .defaultSize = WidgetSize::wide,
                .refresh = RefreshCadence::seconds(1)};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
