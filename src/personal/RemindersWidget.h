#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// The user's open reminders.
struct RemindersWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("reminders"),
                .displayName = QStringLiteral("Reminders"),
                .symbol = QStringLiteral("checklist"),
                .allowedSizes = {WidgetSize::wide, WidgetSize::large, WidgetSize::tall, WidgetSize::wideTall,
                                 WidgetSize::huge},
                .defaultSize = WidgetSize::large,
                .refresh = RefreshCadence::never(),
                .permissions = {WidgetPermission::reminders}};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
