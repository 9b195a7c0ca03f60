#pragma once

#include "grid/WidgetDefinition.h"

#include <vector>

namespace brimlight {

/// The kinds of widget for what the user keeps in the program. A template, since the program's stores are
/// gathered above this folder; of them it takes what its rows name.
template<typename Stores>
std::vector<WidgetDefinition> personalWidgets([[maybe_unused]] Stores &stores)
{
    return {
        // The next events of the user's calendars.
        {.metadata = {.kind = QStringLiteral("events"),
                      .displayName = QStringLiteral("Events"),
                      .symbol = QStringLiteral("calendar.badge.clock"),
                      .allowedSizes = {WidgetSize::wide, WidgetSize::large, WidgetSize::tall,
                                       WidgetSize::wideTall, WidgetSize::huge},
                      .defaultSize = WidgetSize::large,
                      .refresh = RefreshCadence::never(),
                      .permissions = {WidgetPermission::calendar}}},
        // The user's open reminders.
        {.metadata = {.kind = QStringLiteral("reminders"),
                      .displayName = QStringLiteral("Reminders"),
                      .symbol = QStringLiteral("checklist"),
                      .allowedSizes = {WidgetSize::wide, WidgetSize::large, WidgetSize::tall,
                                       WidgetSize::wideTall, WidgetSize::huge},
                      .defaultSize = WidgetSize::large,
                      .refresh = RefreshCadence::never(),
                      .permissions = {WidgetPermission::reminders}}},
        // What was copied lately.
        {.metadata = {.kind = QStringLiteral("clipboard"),
                      .displayName = QStringLiteral("Clipboard"),
                      .symbol = QStringLiteral("doc.on.clipboard"),
                      .allowedSizes = {WidgetSize::wide, WidgetSize::large},
                      .defaultSize = WidgetSize::large,
                      .refresh = RefreshCadence::seconds(2)}},
        // Chosen programs to start.
        {.metadata = {.kind = QStringLiteral("launcher"),
                      .displayName = QStringLiteral("App Launcher"),
                      .symbol = QStringLiteral("square.grid.2x2"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                      .defaultSize = WidgetSize::wide,
                      .refresh = RefreshCadence::never()}},
        // Files dropped for later.
        {.metadata = {.kind = QStringLiteral("shelf"),
                      .displayName = QStringLiteral("File Shelf"),
                      .symbol = QStringLiteral("tray.full"),
                      .allowedSizes = {WidgetSize::wide, WidgetSize::large},
                      .defaultSize = WidgetSize::large,
                      .refresh = RefreshCadence::never()}},
        // The user's named shortcuts.
        {.metadata = {.kind = QStringLiteral("shortcuts"),
                      .displayName = QStringLiteral("Shortcuts"),
                      .symbol = QStringLiteral("square.stack.3d.up"),
                      .allowedSizes = {WidgetSize::wide, WidgetSize::large},
                      .defaultSize = WidgetSize::wide,
                      .refresh = RefreshCadence::never()}},
        // A timer that counts down.
        {.metadata = {.kind = QStringLiteral("timer"),
                      .displayName = QStringLiteral("Timer"),
                      .symbol = QStringLiteral("timer"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::wide},
                      .defaultSize = WidgetSize::wide,
                      .refresh = RefreshCadence::seconds(1)}},
        // A stopwatch with laps.
        {.metadata = {.kind = QStringLiteral("stopwatch"),
                      .displayName = QStringLiteral("Stopwatch"),
                      .symbol = QStringLiteral("stopwatch"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                      .defaultSize = WidgetSize::wide,
                      .refresh = RefreshCadence::never()}},
        // Days to chosen dates.
        {.metadata = {.kind = QStringLiteral("countdown"),
                      .displayName = QStringLiteral("Countdown"),
                      .symbol = QStringLiteral("hourglass"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large,
                                       WidgetSize::tall},
                      .defaultSize = WidgetSize::wide,
                      .refresh = RefreshCadence::seconds(30)}},
        // Habits to tick off each day.
        {.metadata = {.kind = QStringLiteral("daily_habits"),
                      .displayName = QStringLiteral("Habits"),
                      .symbol = QStringLiteral("checkmark.seal.fill"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large,
                                       WidgetSize::wideTall},
                      .defaultSize = WidgetSize::wide,
                      .refresh = RefreshCadence::never()}},
        // A note that keeps what is typed.
        {.metadata = {.kind = QStringLiteral("note"),
                      .displayName = QStringLiteral("Quick Note"),
                      .symbol = QStringLiteral("note.text"),
                      .allowedSizes = {WidgetSize::wide, WidgetSize::large},
                      .defaultSize = WidgetSize::large,
                      .refresh = RefreshCadence::never()}},
        // Tasks to tick off.
        {.metadata = {.kind = QStringLiteral("task_checklist"),
                      .displayName = QStringLiteral("Aufgaben"),
                      .symbol = QStringLiteral("checklist"),
                      .allowedSizes = {WidgetSize::small, WidgetSize::wide, WidgetSize::large},
                      .defaultSize = WidgetSize::wide,
                      .refresh = RefreshCadence::never()}},
    };
}

} // namespace brimlight
