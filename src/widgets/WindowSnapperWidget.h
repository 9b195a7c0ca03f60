#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// Moves the front window to a part of the screen.
struct WindowSnapperWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("window_snapper"),
                .displayName = QStringLiteral("Window Snapper"),
                .symbol = QStringLiteral("macwindow.badge.plus"),
                .allowedSizes = {WidgetSize::small, WidgetSize::wide},
                .defaultSize = WidgetSize::wide,
                .refresh = RefreshCadence::never(),
                .permissions = {WidgetPermission::accessibility}};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
