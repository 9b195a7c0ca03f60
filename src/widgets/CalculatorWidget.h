#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// A pocket calculator.
struct CalculatorWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("calculator"),
                .displayName = QStringLiteral("Calculator"),
                .symbol = QStringLiteral("calculator"),
                .allowedSizes = {WidgetSize::large, WidgetSize::wideTall, WidgetSize::huge},
                .defaultSize = WidgetSize::large,
                .refresh = RefreshCadence::never()};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
