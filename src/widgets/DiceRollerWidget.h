#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// Rolls dice.
struct DiceRollerWidget
{
    static WidgetMetadata metadata()
    {
        return {.kind = QStringLiteral("dice"),
                .displayName = QStringLiteral("Dice Roller"),
                .symbol = QStringLiteral("die.face.5.fill"),
                .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                .defaultSize = WidgetSize::large,
                .refresh = RefreshCadence::never()};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
