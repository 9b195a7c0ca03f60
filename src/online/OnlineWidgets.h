#pragma once

#include "grid/WidgetDefinition.h"

#include <vector>

namespace brimlight {

/// The kinds of widget for data from public web services. A template, since the program's stores are gathered
/// above this folder; of them it takes what its rows name.
template<typename Stores>
std::vector<WidgetDefinition> onlineWidgets([[maybe_unused]] Stores &stores)
{
    return {
        // The weather now and in the next days.
        {.metadata = {.kind = QStringLiteral("weather"),
                      .displayName = QStringLiteral("Weather"),
                      .symbol = QStringLiteral("cloud.sun.fill"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::tall, WidgetSize::wide,
                                       WidgetSize::large, WidgetSize::wideTall},
                      .defaultSize = WidgetSize::wide,
                      .refresh = RefreshCadence::never(),
                      .permissions = {WidgetPermission::weather}}},
        // Sunrise, sunset and the phase of the moon.
        {.metadata = {.kind = QStringLiteral("sunmoon"),
                      .displayName = QStringLiteral("Sun & Moon"),
                      .symbol = QStringLiteral("sun.and.horizon.fill"),
                      .allowedSizes = {WidgetSize::wide, WidgetSize::large, WidgetSize::wideTall},
                      .defaultSize = WidgetSize::large,
                      .refresh = RefreshCadence::seconds(30),
                      .permissions = {WidgetPermission::weather}}},
        // Prices of chosen stocks.
        {.metadata = {.kind = QStringLiteral("stocks"),
                      .displayName = QStringLiteral("Stocks"),
                      .symbol = QStringLiteral("chart.line.uptrend.xyaxis"),
                      .allowedSizes = {WidgetSize::wide, WidgetSize::large, WidgetSize::tall,
                                       WidgetSize::wideTall, WidgetSize::huge},
                      .defaultSize = WidgetSize::large,
                      .refresh = RefreshCadence::never()}},
        // Prices of chosen crypto currencies.
        {.metadata = {.kind = QStringLiteral("crypto"),
                      .displayName = QStringLiteral("Crypto"),
                      .symbol = QStringLiteral("bitcoinsign.circle"),
                      .allowedSizes = {WidgetSize::wide, WidgetSize::large, WidgetSize::tall,
                                       WidgetSize::wideTall, WidgetSize::huge},
                      .defaultSize = WidgetSize::large,
                      .refresh = RefreshCadence::never()}},
        // Exchange rates.
        {.metadata = {.kind = QStringLiteral("currency"),
                      .displayName = QStringLiteral("Currency"),
                      .symbol = QStringLiteral("dollarsign.arrow.circlepath"),
                      .allowedSizes = {WidgetSize::wide, WidgetSize::large, WidgetSize::tall,
                                       WidgetSize::huge},
                      .defaultSize = WidgetSize::large,
                      .refresh = RefreshCadence::never()}},
        // The latest builds of a repository.
        {.metadata = {.kind = QStringLiteral("github"),
                      .displayName = QStringLiteral("GitHub Actions"),
                      .symbol = QStringLiteral("terminal"),
                      .allowedSizes = {WidgetSize::wide, WidgetSize::large},
                      .defaultSize = WidgetSize::wide,
                      .refresh = RefreshCadence::seconds(60)}},
    };
}

} // namespace brimlight
