#include "app/AllWidgets.h"

#include "app/Stores.h"
#include "fakes/FakePlatform.h"

#include <gtest/gtest.h>

#include <QSet>

namespace brimlight::test {
namespace {

using enum WidgetSize;
constexpr auto never = RefreshCadence::never();
constexpr auto seconds = RefreshCadence::seconds;

struct Row
{
    const char *kind;
    const char *displayName;
    const char *symbol;
    QList<WidgetSize> allowedSizes;
    WidgetSize defaultSize;
    RefreshCadence refresh;
    QList<WidgetPermission> permissions;
    bool hasSettings;
};

// clang-format off
const std::vector<Row> table = {
    {"clock", "Clock", "clock", {small, wide, banner, wideTall}, wide, seconds(1), {}, true},
    {"analogclock", "Analog Clock", "clock.circle", {small, large}, small, seconds(1), {}, false},
    {"worldclock", "World Clock", "globe", {wide, large, tall, huge}, wide, seconds(1), {}, false},
    {"day_progress", "Day Progress", "chart.pie.fill", {small, wide, large, banner, wideTall}, wide, seconds(60), {}, false},
    {"weather", "Weather", "cloud.sun.fill", {small, tall, wide, large, wideTall}, wide, never, {WidgetPermission::weather}, false},
    {"sunmoon", "Sun & Moon", "sun.and.horizon.fill", {wide, large, wideTall}, large, seconds(30), {WidgetPermission::weather}, false},
    {"media", "Now Playing", "play.circle.fill", {wide, large, wideTall}, wide, seconds(1), {}, false},
    {"battery", "Battery", "battery.100", {small, wide, large}, small, seconds(30), {}, true},
    {"batteryhealth", "Battery Health", "cross.case.fill", {small, wide, large}, small, never, {}, false},
    {"system", "CPU / RAM", "cpu", {small, wide, large}, wide, seconds(2), {}, false},
    {"usagegraph", "CPU / RAM Graph", "chart.xyaxis.line", {wide, large, banner, wideTall, huge}, large, seconds(2), {}, false},
    {"sysinfo", "System Info", "macbook", {wide, large, tall, huge}, large, seconds(5), {}, false},
    {"temperature", "Temperature", "thermometer.medium", {small, wide}, small, seconds(2), {}, false},
    {"network", "Network", "network", {small, wide, large, banner}, wide, seconds(1), {}, false},
    {"disk", "Disk", "internaldrive", {small, wide, large}, small, seconds(10), {}, false},
    {"calendar", "Calendar", "calendar", {wide, large, huge}, large, never, {}, false},
    {"events", "Events", "calendar.badge.clock", {wide, large, tall, wideTall, huge}, large, never, {WidgetPermission::calendar}, false},
    {"reminders", "Reminders", "checklist", {wide, large, tall, wideTall, huge}, large, never, {WidgetPermission::reminders}, false},
    {"stocks", "Stocks", "chart.line.uptrend.xyaxis", {wide, large, tall, wideTall, huge}, large, never, {}, false},
    {"crypto", "Crypto", "bitcoinsign.circle", {wide, large, tall, wideTall, huge}, large, never, {}, false},
    {"currency", "Currency", "dollarsign.arrow.circlepath", {wide, large, tall, huge}, large, never, {}, false},
    {"clipboard", "Clipboard", "doc.on.clipboard", {wide, large}, large, seconds(2), {}, false},
    {"audio", "Audio Visualizer", "waveform", {wide, large}, wide, never, {WidgetPermission::microphone}, false},
    {"launcher", "App Launcher", "square.grid.2x2", {small, wide, large}, wide, never, {}, false},
    {"shelf", "File Shelf", "tray.full", {wide, large}, large, never, {}, false},
    {"shortcuts", "Shortcuts", "square.stack.3d.up", {wide, large}, wide, never, {}, false},
    {"timer", "Timer", "timer", {small, wide}, wide, seconds(1), {}, false},
    {"stopwatch", "Stopwatch", "stopwatch", {small, wide, large}, wide, never, {}, false},
    {"countdown", "Countdown", "hourglass", {small, wide, large, tall}, wide, seconds(30), {}, false},
    {"daily_habits", "Habits", "checkmark.seal.fill", {small, wide, large, wideTall}, wide, never, {}, false},
    {"note", "Quick Note", "note.text", {wide, large}, large, never, {}, false},
    {"password_generator", "Passwords", "key.fill", {small, wide, large, wideTall}, wide, never, {}, false},
    {"calculator", "Calculator", "calculator", {large, wideTall, huge}, large, never, {}, false},
    {"pomodoro", "Pomodoro", "timer", {wide, large}, large, never, {}, true},
    {"quicktoggles", "System Toggles", "switch.2", {small, wide, large}, wide, never, {}, false},
    {"window_snapper", "Window Snapper", "macwindow.badge.plus", {small, wide}, wide, never, {WidgetPermission::accessibility}, false},
    {"task_checklist", "Aufgaben", "checklist", {small, wide, large}, wide, never, {}, false},
    {"breathing", "Breathing", "wind", {small, wide, large}, large, never, {}, false},
    {"eye_care", "Eye Care", "eye", {small, wide, large}, wide, seconds(1), {}, false},
    {"hydration", "Hydration", "drop.fill", {small, wide, large, tall}, large, never, {}, false},
    {"mirror", "Quick Mirror", "camera.fill", {small, wide, large}, large, never, {}, false},
    {"sound_meter", "Sound Meter", "waveform", {small, wide, large}, wide, never, {WidgetPermission::microphone}, false},
    {"dice", "Dice Roller", "die.face.5.fill", {small, wide, large}, large, never, {}, false},
    {"unit_converter", "Unit Converter", "arrow.left.arrow.right", {wide, large}, large, never, {}, false},
    {"github", "GitHub Actions", "terminal", {wide, large}, wide, seconds(60), {}, false},
};
// clang-format on

WidgetMetadata metadataOf(const Row &row)
{
    return {.kind = QString::fromUtf8(row.kind),
            .displayName = QString::fromUtf8(row.displayName),
            .symbol = QString::fromUtf8(row.symbol),
            .allowedSizes = row.allowedSizes,
            .defaultSize = row.defaultSize,
            .refresh = row.refresh,
            .permissions = row.permissions,
            .hasSettings = row.hasSettings};
}

class AllWidgets : public testing::Test, protected FakePlatform
{
protected:
    Stores stores{platform, log};
    const WidgetRegistry &registry = stores.registry;
    const std::vector<WidgetDefinition> &all = stores.registry.all();
};

} // namespace

TEST_F(AllWidgets, AreTheFortyFiveOfTheTableInItsOrder)
{
    EXPECT_EQ(table.size(), 45U);
    ASSERT_EQ(all.size(), table.size());
    for (size_t i = 0; i < table.size(); ++i) {
        const WidgetMetadata &metadata = all[i].metadata;
        const WidgetMetadata expected = metadataOf(table[i]);
        SCOPED_TRACE(table[i].kind);
        EXPECT_EQ(metadata.kind, expected.kind);
        EXPECT_EQ(metadata.displayName, expected.displayName);
        EXPECT_EQ(metadata.symbol, expected.symbol);
        EXPECT_EQ(metadata.allowedSizes, expected.allowedSizes);
        EXPECT_EQ(metadata.defaultSize, expected.defaultSize);
        EXPECT_EQ(metadata.refresh, expected.refresh);
        EXPECT_EQ(metadata.permissions, expected.permissions);
        EXPECT_EQ(metadata.hasSettings, expected.hasSettings);
        EXPECT_EQ(metadata, expected);
    }
}

TEST_F(AllWidgets, TheDefaultSizeIsAllowedAndEachSizeOfferedOnce)
{
    for (const WidgetDefinition &definition : all) {
        const WidgetMetadata &metadata = definition.metadata;
        SCOPED_TRACE(qPrintable(metadata.kind));
        EXPECT_TRUE(metadata.allowedSizes.contains(metadata.defaultSize));
        EXPECT_EQ(QSet(metadata.allowedSizes.begin(), metadata.allowedSizes.end()).size(),
                  metadata.allowedSizes.size());
    }
}

TEST_F(AllWidgets, ThreeKindsHaveSettingsAndNoOtherHasABack)
{
    QStringList kinds;
    for (const WidgetDefinition &definition : all) {
        if (definition.metadata.hasSettings)
            kinds.append(definition.metadata.kind);
        else
            EXPECT_TRUE(definition.settingsView.isEmpty()) << qPrintable(definition.metadata.kind);
    }
    EXPECT_EQ(kinds,
              (QStringList{QStringLiteral("clock"), QStringLiteral("battery"), QStringLiteral("pomodoro")}));
}

TEST_F(AllWidgets, ASymbolIsNoKeyButAKindIs)
{
    const auto symbol = [&](const char *kind) {
        return registry.definition(QString::fromLatin1(kind))->metadata.symbol;
    };
    EXPECT_EQ(symbol("timer"), symbol("pomodoro"));
    EXPECT_EQ(symbol("audio"), symbol("sound_meter"));
    EXPECT_EQ(symbol("reminders"), symbol("task_checklist"));
    QSet<QString> kinds;
    for (const WidgetDefinition &definition : registry.all())
        kinds.insert(definition.metadata.kind);
    EXPECT_EQ(kinds.size(), 45);
}

TEST_F(AllWidgets, SizesThatAKindIsTooSmallOrTooPoorForAreNotOffered)
{
    const auto &calculator = registry.definition(QStringLiteral("calculator"))->metadata.allowedSizes;
    EXPECT_FALSE(calculator.contains(small));
    EXPECT_FALSE(calculator.contains(wide));
    for (const WidgetSize size : registry.definition(QStringLiteral("temperature"))->metadata.allowedSizes)
        EXPECT_EQ(rowSpan(size), 1);
}

TEST_F(AllWidgets, TheDefaultLayoutUsesKnownKindsInAllowedSizes)
{
    for (const WidgetInstance &instance : GridLayout::defaultLayout().instances) {
        const WidgetDefinition *definition = registry.definition(instance.kind);
        ASSERT_TRUE(definition) << qPrintable(instance.kind);
        EXPECT_TRUE(definition->metadata.allowedSizes.contains(instance.size)) << qPrintable(instance.kind);
    }
}

} // namespace brimlight::test
