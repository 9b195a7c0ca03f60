#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// The traffic of the network.
struct NetworkWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("network"),
                .displayName = QStringLiteral("Network"),
                .symbol = QStringLiteral("network"),
                .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large, WidgetSize::banner},
                .defaultSize = WidgetSize::wide,
                .refresh = RefreshCadence::seconds(1)};
    }
    static WidgetDefinition definition()
    {
        return {.metadata = metadata(),
                .view = QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Sensors/NetworkView.qml")),
                .stores = {QStringLiteral("machine")}};
    }
};

} // namespace brimlight
