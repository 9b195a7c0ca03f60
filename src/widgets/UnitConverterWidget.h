#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// Converts between units.
struct UnitConverterWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("unit_converter"),
                .displayName = QStringLiteral("Unit Converter"),
                .symbol = QStringLiteral("arrow.left.arrow.right"),
                .allowedSizes = {WidgetSize::wide, WidgetSize::large},
                .defaultSize = WidgetSize::large,
                .refresh = RefreshCadence::never()};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
