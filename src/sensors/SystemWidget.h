#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// The load of processor and memory.
struct SystemWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("system"),
                .displayName = QStringLiteral("CPU / RAM"),
                .symbol = QStringLiteral("cpu"),
                .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                .defaultSize = WidgetSize::wide,
                .refresh = RefreshCadence::seconds(2)};
    }
    static WidgetDefinition definition()
    {
        return {.metadata = metadata(),
                .view = QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Sensors/SystemView.qml")),
                .stores = {QStringLiteral("machine")}};
    }
};

} // namespace brimlight
