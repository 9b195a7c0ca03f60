#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// Sunrise, sunset and the phase of the moon.
struct SunMoonWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("sunmoon"),
                .displayName = QStringLiteral("Sun & Moon"),
                .symbol = QStringLiteral("sun.and.horizon.fill"),
                .allowedSizes = {WidgetSize::wide, WidgetSize::large, WidgetSize::wideTall},
                .defaultSize = WidgetSize::large,
                .refresh = RefreshCadence::seconds(30),
                .permissions = {WidgetPermission::weather}};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
