#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// The time in other cities.
struct WorldClockWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("worldclock"),
                .displayName = QStringLiteral("World Clock"),
                .symbol = QStringLiteral("globe"),
                .allowedSizes = {WidgetSize::wide, WidgetSize::large, WidgetSize::tall, WidgetSize::huge},
                .defaultSize = WidgetSize::wide,
                .refresh = RefreshCadence::seconds(1)};
    }
    static WidgetDefinition definition()
    {
        return {.metadata = metadata(),
                .view = QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Widgets/WorldClockView.qml"))};
    }
};

} // namespace brimlight
