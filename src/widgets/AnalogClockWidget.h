#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// The time on a dial.
struct AnalogClockWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("analogclock"),
                .displayName = QStringLiteral("Analog Clock"),
                .symbol = QStringLiteral("clock.circle"),
                .allowedSizes = {WidgetSize::small, WidgetSize::large},
                .defaultSize = WidgetSize::small,
                .refresh = RefreshCadence::seconds(1)};
    }
    static WidgetDefinition definition()
    {
        return {.metadata = metadata(),
                .view = QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Widgets/AnalogClockView.qml"))};
    }
};

} // namespace brimlight
