#pragma once

#include "grid/WidgetDefinition.h"
#include "widgets/CalendarFace.h"
#include "widgets/ClockFace.h"
#include "widgets/DayProgressFace.h"
#include "widgets/WorldClockFace.h"

#include <vector>

namespace brimlight {

/// The kinds of widget for clocks and tools. A template, since the program's stores are gathered above this
/// folder; of them it takes what its rows name.
template<typename Stores>
std::vector<WidgetDefinition> toolWidgets([[maybe_unused]] Stores &stores)
{
    return {
        // The time in digits.
        {.metadata = {.kind = QStringLiteral("clock"),
                      .displayName = QStringLiteral("Clock"),
                      .symbol = QStringLiteral("clock"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::banner,
                                       WidgetSize::wideTall},
                      .defaultSize = WidgetSize::wide,
                      .refresh = RefreshCadence::seconds(1),
                      .hasSettings = true},
         .view = widgetView("Widgets", "ClockView"),
         .settingsView = widgetView("Widgets", "ClockSettings"),
         .makeLogic = makes<ClockFace>()},
        // The time on a dial.
        {.metadata = {.kind = QStringLiteral("analogclock"),
                      .displayName = QStringLiteral("Analog Clock"),
                      .symbol = QStringLiteral("clock.circle"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::large},
                      .defaultSize = WidgetSize::small,
                      .refresh = RefreshCadence::seconds(1)},
         .view = widgetView("Widgets", "AnalogClockView")},
        // The time in other cities.
        {.metadata = {.kind = QStringLiteral("worldclock"),
                      .displayName = QStringLiteral("World Clock"),
                      .symbol = QStringLiteral("globe"),
                      .allowedSizes = {WidgetSize::wide, WidgetSize::large, WidgetSize::tall,
                                       WidgetSize::huge},
                      .defaultSize = WidgetSize::wide,
                      .refresh = RefreshCadence::seconds(1)},
         .view = widgetView("Widgets", "WorldClockView"),
         .makeLogic = makes<WorldClockFace>()},
        // How much of the day has passed.
        {.metadata = {.kind = QStringLiteral("day_progress"),
                      .displayName = QStringLiteral("Day Progress"),
                      .symbol = QStringLiteral("chart.pie.fill"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large,
                                       WidgetSize::banner, WidgetSize::wideTall},
                      .defaultSize = WidgetSize::wide,
                      .refresh = RefreshCadence::seconds(60)},
         .view = widgetView("Widgets", "DayProgressView"),
         .makeLogic = makes<DayProgressFace>()},
        // The current month.
        {.metadata = {.kind = QStringLiteral("calendar"),
                      .displayName = QStringLiteral("Calendar"),
                      .symbol = QStringLiteral("calendar"),
                      .allowedSizes = {WidgetSize::wide, WidgetSize::large, WidgetSize::huge},
                      .defaultSize = WidgetSize::large,
                      .refresh = RefreshCadence::never()},
         .view = widgetView("Widgets", "CalendarView"),
         .makeLogic = makes<CalendarFace>()},
        // Makes passwords.
        {.metadata = {.kind = QStringLiteral("password_generator"),
                      .displayName = QStringLiteral("Passwords"),
                      .symbol = QStringLiteral("key.fill"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large,
                                       WidgetSize::wideTall},
                      .defaultSize = WidgetSize::wide,
                      .refresh = RefreshCadence::never()}},
        // A pocket calculator.
        {.metadata = {.kind = QStringLiteral("calculator"),
                      .displayName = QStringLiteral("Calculator"),
                      .symbol = QStringLiteral("calculator"),
                      .allowedSizes = {WidgetSize::large, WidgetSize::wideTall, WidgetSize::huge},
                      .defaultSize = WidgetSize::large,
                      .refresh = RefreshCadence::never()}},
        // Spells of work and pauses.
        {.metadata = {.kind = QStringLiteral("pomodoro"),
                      .displayName = QStringLiteral("Pomodoro"),
                      .symbol = QStringLiteral("timer"),
                      .allowedSizes = {WidgetSize::wide, WidgetSize::large},
                      .defaultSize = WidgetSize::large,
                      .refresh = RefreshCadence::never(),
                      .hasSettings = true}},
        // Moves the front window to a part of the screen.
        {.metadata = {.kind = QStringLiteral("window_snapper"),
                      .displayName = QStringLiteral("Window Snapper"),
                      .symbol = QStringLiteral("macwindow.badge.plus"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::wide},
                      .defaultSize = WidgetSize::wide,
                      .refresh = RefreshCadence::never(),
                      .permissions = {WidgetPermission::accessibility}}},
        // A circle to breathe with.
        {.metadata = {.kind = QStringLiteral("breathing"),
                      .displayName = QStringLiteral("Breathing"),
                      .symbol = QStringLiteral("wind"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                      .defaultSize = WidgetSize::large,
                      .refresh = RefreshCadence::never()}},
        // Reminds to look into the distance.
        {.metadata = {.kind = QStringLiteral("eye_care"),
                      .displayName = QStringLiteral("Eye Care"),
                      .symbol = QStringLiteral("eye"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                      .defaultSize = WidgetSize::wide,
                      .refresh = RefreshCadence::seconds(1)}},
        // Glasses of water drunk today.
        {.metadata = {.kind = QStringLiteral("hydration"),
                      .displayName = QStringLiteral("Hydration"),
                      .symbol = QStringLiteral("drop.fill"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large,
                                       WidgetSize::tall},
                      .defaultSize = WidgetSize::large,
                      .refresh = RefreshCadence::never()}},
        // The picture of the camera.
        {.metadata = {.kind = QStringLiteral("mirror"),
                      .displayName = QStringLiteral("Quick Mirror"),
                      .symbol = QStringLiteral("camera.fill"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                      .defaultSize = WidgetSize::large,
                      .refresh = RefreshCadence::never()}},
        // Rolls dice.
        {.metadata = {.kind = QStringLiteral("dice"),
                      .displayName = QStringLiteral("Dice Roller"),
                      .symbol = QStringLiteral("die.face.5.fill"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                      .defaultSize = WidgetSize::large,
                      .refresh = RefreshCadence::never()}},
        // Converts between units.
        {.metadata = {.kind = QStringLiteral("unit_converter"),
                      .displayName = QStringLiteral("Unit Converter"),
                      .symbol = QStringLiteral("arrow.left.arrow.right"),
                      .allowedSizes = {WidgetSize::wide, WidgetSize::large},
                      .defaultSize = WidgetSize::large,
                      .refresh = RefreshCadence::never()}},
    };
}

} // namespace brimlight
