#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// Spells of work and pauses.
struct PomodoroWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("pomodoro"),
                .displayName = QStringLiteral("Pomodoro"),
                .symbol = QStringLiteral("timer"),
                .allowedSizes = {WidgetSize::wide, WidgetSize::large},
                .defaultSize = WidgetSize::large,
                .refresh = RefreshCadence::never(),
                .hasSettings = true};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
