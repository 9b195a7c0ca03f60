#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// The temperature of the processor.
struct TemperatureWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("temperature"),
                .displayName = QStringLiteral("Temperature"),
                .symbol = QStringLiteral("thermometer.medium"),
                .allowedSizes = {WidgetSize::small, WidgetSize::wide},
                .defaultSize = WidgetSize::small,
                .refresh = RefreshCadence::seconds(2)};
    }
    static WidgetDefinition definition()
    {
        return {.metadata = metadata(),
                .view = QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Sensors/TemperatureView.qml")),
                .stores = {QStringLiteral("machine"), QStringLiteral("temperature")}};
    }
};

} // namespace brimlight
