#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// Switches of the system.
struct QuickTogglesWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("quicktoggles"),
                .displayName = QStringLiteral("System Toggles"),
                .symbol = QStringLiteral("switch.2"),
                .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                .defaultSize = WidgetSize::wide,
                .refresh = RefreshCadence::never()};
    }
    static WidgetDefinition definition()
    {
        return {.metadata = metadata(),
                .view = QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Sensors/QuickTogglesView.qml")),
                .stores = {QStringLiteral("switches")}};
    }
};

} // namespace brimlight
