#include "app/AllWidgets.h"

#include "app/Stores.h"
#include "media/MediaWidgets.h"
#include "online/OnlineWidgets.h"
#include "personal/PersonalWidgets.h"
#include "sensors/SensorWidgets.h"
#include "widgets/ToolWidgets.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace brimlight {
namespace {

using namespace std::string_view_literals;

/// The order of the gallery.
constexpr std::array order{
    "clock"sv,          "analogclock"sv,  "worldclock"sv,   "day_progress"sv,
    "weather"sv,        "sunmoon"sv,      "media"sv,        "battery"sv,
    "batteryhealth"sv,  "system"sv,       "usagegraph"sv,   "sysinfo"sv,
    "temperature"sv,    "network"sv,      "disk"sv,         "calendar"sv,
    "events"sv,         "reminders"sv,    "stocks"sv,       "crypto"sv,
    "currency"sv,       "clipboard"sv,    "audio"sv,        "launcher"sv,
    "shelf"sv,          "shortcuts"sv,    "timer"sv,        "stopwatch"sv,
    "countdown"sv,      "daily_habits"sv, "note"sv,         "password_generator"sv,
    "calculator"sv,     "pomodoro"sv,     "quicktoggles"sv, "window_snapper"sv,
    "task_checklist"sv, "breathing"sv,    "eye_care"sv,     "hydration"sv,
    "mirror"sv,         "sound_meter"sv,  "dice"sv,         "unit_converter"sv,
    "github"sv,
};

qsizetype place(const WidgetDefinition &definition)
{
    return std::ranges::find(order, definition.metadata.kind.toStdString()) - order.begin();
}

} // namespace

std::vector<WidgetDefinition> allWidgets(Stores &stores)
{
    std::vector<WidgetDefinition> all;
    for (auto &&kinds : {toolWidgets(stores), onlineWidgets(stores), mediaWidgets(stores),
                         sensorWidgets(stores), personalWidgets(stores)})
        all.insert(all.end(), kinds.begin(), kinds.end());
    std::ranges::stable_sort(all, {}, place);
    return all;
}

} // namespace brimlight
