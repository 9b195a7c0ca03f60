#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// The current month.
struct CalendarWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("calendar"),
                .displayName = QStringLiteral("Calendar"),
                .symbol = QStringLiteral("calendar"),
                .allowedSizes = {WidgetSize::wide, WidgetSize::large, WidgetSize::huge},
                .defaultSize = WidgetSize::large,
                .refresh = RefreshCadence::never()};
    }
    static WidgetDefinition definition()
    {
        return {.metadata = metadata(),
                .view = QUrl(QStringLiteral("qrc:/qt/qml/Brimlight/Widgets/CalendarView.qml"))};
    }
};

} // namespace brimlight
