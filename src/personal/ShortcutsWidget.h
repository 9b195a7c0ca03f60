#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// The user's named shortcuts.
struct ShortcutsWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("shortcuts"),
                .displayName = QStringLiteral("Shortcuts"),
                .symbol = QStringLiteral("square.stack.3d.up"),
                .allowedSizes = {WidgetSize::wide, WidgetSize::large},
                .defaultSize = WidgetSize::wide,
                .refresh = RefreshCadence::never()};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
