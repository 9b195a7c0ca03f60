#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// The next events of the user's calendars.
struct CalendarEventsWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("events"),
                .displayName = QStringLiteral("Events"),
                .symbol = QStringLiteral("calendar.badge.clock"),
                .allowedSizes = {WidgetSize::wide, WidgetSize::large, WidgetSize::tall, WidgetSize::wideTall,
                                 WidgetSize::huge},
                .defaultSize = WidgetSize::large,
                .refresh = RefreshCadence::never(),
                .permissions = {WidgetPermission::calendar}};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
