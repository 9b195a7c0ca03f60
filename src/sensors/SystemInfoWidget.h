#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// What machine this is and how it fares.
struct SystemInfoWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("sysinfo"),
                .displayName = QStringLiteral("System Info"),
                .symbol = QStringLiteral("macbook"),
                .allowedSizes = {WidgetSize::wide, WidgetSize::large, WidgetSize::tall, WidgetSize::huge},
                .defaultSize = WidgetSize::large,
                .refresh = RefreshCadence::seconds(5)};
    }
    static WidgetDefinition definition()
    {
        return {.metadata = metadata(),
                .view = QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Sensors/SystemInfoView.qml")),
                .stores = {QStringLiteral("machine")}};
    }
};

} // namespace brimlight
