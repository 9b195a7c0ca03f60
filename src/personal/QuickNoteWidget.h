#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// A note that keeps what is typed.
struct QuickNoteWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("note"),
                .displayName = QStringLiteral("Quick Note"),
                .symbol = QStringLiteral("note.text"),
                .allowedSizes = {WidgetSize::wide, WidgetSize::large},
                .defaultSize = WidgetSize::large,
                .refresh = RefreshCadence::never()};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
