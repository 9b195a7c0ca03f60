#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// Tasks to tick off.
struct TaskChecklistWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("task_checklist"),
                .displayName = QStringLiteral("Aufgaben"),
                .symbol = QStringLiteral("checklist"),
                .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                .defaultSize = WidgetSize::wide,
                .refresh = RefreshCadence::never()};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
