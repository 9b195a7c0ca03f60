#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// The latest builds of a repository.
struct GitHubStatusWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("github"),
                .displayName = QStringLiteral("GitHub Actions"),
                .symbol = QStringLiteral("terminal"),
                .allowedSizes = {WidgetSize::wide, WidgetSize::large},
                .defaultSize = WidgetSize::wide,
                .refresh = RefreshCadence::seconds(60)};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
