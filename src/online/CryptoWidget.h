#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// Prices of chosen crypto currencies.
struct CryptoWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("crypto"),
                .displayName = QStringLiteral("Crypto"),
                .symbol = QStringLiteral("bitcoinsign.circle"),
                .allowedSizes = {WidgetSize::wide, WidgetSize::large, WidgetSize::tall, WidgetSize::wideTall,
                                 WidgetSize::huge},
                .defaultSize = WidgetSize::large,
                .refresh = RefreshCadence::never()};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
