#include "app/AllWidgets.h"

#include "media/MediaWidget.h"
#include "online/CryptoWidget.h"
#include "online/CurrencyWidget.h"
#include "online/GitHubStatusWidget.h"
#include "online/StocksWidget.h"
#include "online/SunMoonWidget.h"
#include "online/WeatherWidget.h"
#include "personal/AppLauncherWidget.h"
#include "personal/CalendarEventsWidget.h"
#include "personal/ClipboardWidget.h"
#include "personal/CountdownWidget.h"
#include "personal/DailyHabitsWidget.h"
#include "personal/FileShelfWidget.h"
#include "personal/QuickNoteWidget.h"
#include "personal/RemindersWidget.h"
#include "personal/ShortcutsWidget.h"
#include "personal/StopwatchWidget.h"
#include "personal/TaskChecklistWidget.h"
#include "personal/TimerWidget.h"
#include "sensors/AudioVisualizerWidget.h"
#include "sensors/BatteryHealthWidget.h"
#include "sensors/BatteryWidget.h"
#include "sensors/DiskWidget.h"
#include "sensors/NetworkWidget.h"
#include "sensors/QuickTogglesWidget.h"
#include "sensors/SoundMeterWidget.h"
#include "sensors/SystemInfoWidget.h"
#include "sensors/SystemWidget.h"
#include "sensors/TemperatureWidget.h"
#include "sensors/UsageGraphWidget.h"
#include "widgets/AnalogClockWidget.h"
#include "widgets/BreathingWidget.h"
#include "widgets/CalculatorWidget.h"
#include "widgets/CalendarWidget.h"
#include "widgets/ClockWidget.h"
#include "widgets/DayProgressWidget.h"
#include "widgets/DiceRollerWidget.h"
#include "widgets/EyeCareWidget.h"
#include "widgets/HydrationWidget.h"
#include "widgets/PasswordGeneratorWidget.h"
#include "widgets/PomodoroWidget.h"
#include "widgets/ScreenMirrorWidget.h"
#include "widgets/UnitConverterWidget.h"
#include "widgets/WindowSnapperWidget.h"
#include "widgets/WorldClockWidget.h"

namespace brimlight {
std::vector<WidgetDefinition> allWidgets()
{
    return {
        ClockWidget::definition(),
        AnalogClockWidget::definition(),
        WorldClockWidget::definition(),
        DayProgressWidget::definition(),
        WeatherWidget::definition(),
        SunMoonWidget::definition(),
        MediaWidget::definition(),
        BatteryWidget::definition(),
        BatteryHealthWidget::definition(),
        SystemWidget::definition(),
        UsageGraphWidget::definition(),
        SystemInfoWidget::definition(),
        TemperatureWidget::definition(),
        NetworkWidget::definition(),
        DiskWidget::definition(),
        CalendarWidget::definition(),
        CalendarEventsWidget::definition(),
        RemindersWidget::definition(),
        StocksWidget::definition(),
        CryptoWidget::definition(),
        CurrencyWidget::definition(),
        ClipboardWidget::definition(),
        AudioVisualizerWidget::definition(),
        AppLauncherWidget::definition(),
        FileShelfWidget::definition(),
        ShortcutsWidget::definition(),
        TimerWidget::definition(),
        StopwatchWidget::definition(),
        CountdownWidget::definition(),
        DailyHabitsWidget::definition(),
        QuickNoteWidget::definition(),
        PasswordGeneratorWidget::definition(),
        CalculatorWidget::definition(),
        PomodoroWidget::definition(),
        QuickTogglesWidget::definition(),
        WindowSnapperWidget::definition(),
        TaskChecklistWidget::definition(),
        BreathingWidget::definition(),
        EyeCareWidget::definition(),
        HydrationWidget::definition(),
        ScreenMirrorWidget::definition(),
        SoundMeterWidget::definition(),
        DiceRollerWidget::definition(),
        UnitConverterWidget::definition(),
        GitHubStatusWidget::definition(),
    };
}

} // namespace brimlight
