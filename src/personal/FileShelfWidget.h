#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// Files dropped for later.
struct FileShelfWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("shelf"),
                .displayName = QStringLiteral("File Shelf"),
                .symbol = QStringLiteral("tray.full"),
                .allowedSizes = {WidgetSize::wide, WidgetSize::large},
                .defaultSize = WidgetSize::large,
                .refresh = RefreshCadence::never()};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
