#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// The charge of the battery.
struct BatteryWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("battery"),
                .displayName = QStringLiteral("Battery"),
                .symbol = QStringLiteral("battery.100"),
                .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                .defaultSize = WidgetSize::small,
                .refresh = RefreshCadence::seconds(30),
                .hasSettings = true};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
