#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// The wear of the battery.
struct BatteryHealthWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("batteryhealth"),
                .displayName = QStringLiteral("Battery Health"),
                .symbol = QStringLiteral("cross.case.fill"),
                .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                .defaultSize = WidgetSize::small,
                .refresh = RefreshCadence::never()};
    }
    static WidgetDefinition definition()
    {
        return {.metadata = metadata(),
                .view = QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Sensors/BatteryHealthView.qml")),
                .stores = {QStringLiteral("machine")}};
    }
};

} // namespace brimlight
