#pragma once

#include "grid/WidgetDefinition.h"

namespace brimlight {

/// Makes passwords.
struct PasswordGeneratorWidget
{
    static WidgetMetadata metadata()
    {
        return {
            .kind = QStringLiteral("password_generator"),
            .displayName = QStringLiteral("Passwords"),
            .symbol = QStringLiteral("key.fill"),
            .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large, WidgetSize::wideTall},
            .defaultSize = WidgetSize::wide,
            .refresh = RefreshCadence::never()};
    }
    static WidgetDefinition definition() { return {.metadata = metadata()}; }
};

} // namespace brimlight
