#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// The load of processor and memory over time.
struct UsageGraphWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("usagegraph"),
                .displayName = QStringLiteral("CPU / RAM Graph"),
                .symbol = QStringLiteral("chart.xyaxis.line"),
                .allowedSizes = {WidgetSize::wide, WidgetSize::large, WidgetSize::banner,
                                 WidgetSize::wideTall, WidgetSize::huge},
                .defaultSize = WidgetSize::large,
                .refresh = RefreshCadence::seconds(2)};
    }
    static WidgetDefinition definition()
    {
        return {.metadata = metadata(),
                .view = QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Sensors/UsageGraphView.qml")),
                .stores = {QStringLiteral("systemHistory")}};
    }
};

} // namespace brimlight
