#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// The time in digits.
struct ClockWidget
{
    static WidgetMetadata metadata()
    {
        return {
            .kind = QStringLiteral("clock"),
            .displayName = QStringLiteral("Clock"),
            .symbol = QStringLiteral("clock"),
            .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::banner, WidgetSize::wideTall},
            .defaultSize = WidgetSize::wide,
            .refresh = RefreshCadence::seconds(1),
            .hasSettings = true};
    }
    static WidgetDefinition definition()
    {
        return {.metadata = metadata(),
                .view = QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Widgets/ClockView.qml")),
                .settingsView = QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Widgets/ClockSettings.qml"))};
    }
};

} // namespace brimlight
