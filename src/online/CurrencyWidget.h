#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// Exchange rates.
struct CurrencyWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("currency"),
                .displayName = QStringLiteral("Currency"),
                .symbol = QStringLiteral("dollarsign.arrow.circlepath"),
                .allowedSizes = {WidgetSize::wide, WidgetSize::large, WidgetSize::tall, WidgetSize::huge},
                .defaultSize = WidgetSize::large,
                .refresh = RefreshCadence::never()};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
