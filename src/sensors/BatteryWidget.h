#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// The charge of the battery.
struct BatteryWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("battery"),
                .displayName = QStringLiteral("Battery"),
                .symbol = QStringLiteral("battery.100"),
                .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                .defaultSize = WidgetSize::small,
                .refresh = RefreshCadence::seconds(30),
                .hasSettings = true};
    }
    static WidgetDefinition definition()
    {
        return {.metadata = metadata(),
                .view = QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Sensors/BatteryView.qml")),
                .settingsView = QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Sensors/BatterySettings.qml")),
                .stores = {QStringLiteral("machine")}};
    }
};

} // namespace brimlight
