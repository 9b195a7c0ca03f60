#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// Habits to tick off each day.
struct DailyHabitsWidget
{
    static WidgetMetadata metadata()
    {
        return {
            .kind = QStringLiteral("daily_habits"),
            .displayName = QStringLiteral("Habits"),
            .symbol = QStringLiteral("checkmark.seal.fill"),
            .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large, WidgetSize::wideTall},
            .defaultSize = WidgetSize::wide,
            .refresh = RefreshCadence::never()};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
