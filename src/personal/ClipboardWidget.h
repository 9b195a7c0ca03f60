#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// What was copied lately.
struct ClipboardWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("clipboard"),
                .displayName = QStringLiteral("Clipboard"),
                .symbol = QStringLiteral("doc.on.clipboard"),
                .allowedSizes = {WidgetSize::wide, WidgetSize::large},
                .defaultSize = WidgetSize::large,
                .refresh = RefreshCadence::seconds(2)};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
