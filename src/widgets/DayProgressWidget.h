#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// How much of the day has passed.
struct DayProgressWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("day_progress"),
                .displayName = QStringLiteral("Day Progress"),
                .symbol = QStringLiteral("chart.pie.fill"),
                .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large, WidgetSize::banner,
                                 WidgetSize::wideTall},
                .defaultSize = WidgetSize::wide,
                .refresh = RefreshCadence::seconds(60)};
    }
    static WidgetDefinition definition()
    {
        return {.metadata = metadata(),
                .view = QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Widgets/DayProgressView.qml"))};
    }
};

} // namespace brimlight
