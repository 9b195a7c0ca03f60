#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// The weather now and in the next days.
struct WeatherWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("weather"),
                .displayName = QStringLiteral("Weather"),
                .symbol = QStringLiteral("cloud.sun.fill"),
                .allowedSizes = {WidgetSize::small, WidgetSize::tall, WidgetSize::wide, WidgetSize::large,
                                 WidgetSize::wideTall},
                .defaultSize = WidgetSize::wide,
                .refresh = RefreshCadence::never(),
                .permissions = {WidgetPermission::weather}};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
