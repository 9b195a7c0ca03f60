#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// Prices of chosen stocks.
struct StocksWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("stocks"),
                .displayName = QStringLiteral("Stocks"),
                .symbol = QStringLiteral("chart.line.uptrend.xyaxis"),
                .allowedSizes = {WidgetSize::wide, WidgetSize::large, WidgetSize::tall, WidgetSize::wideTall,
                                 WidgetSize::huge},
                .defaultSize = WidgetSize::large,
                .refresh = RefreshCadence::never()};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
