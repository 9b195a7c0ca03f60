#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// The picture of the camera.
struct ScreenMirrorWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("mirror"),
                .displayName = QStringLiteral("Quick Mirror"),
                .symbol = QStringLiteral("camera.fill"),
                .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                .defaultSize = WidgetSize::large,
                .refresh = RefreshCadence::never()};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
