#include "grid/WidgetRegistry.h"

#include <gtest/gtest.h>

namespace brimlight::test {
namespace {

WidgetDefinition named(const char *kind, const char *displayName)
{
    return {.metadata = {.kind = QString::fromLatin1(kind), .displayName = QString::fromLatin1(displayName)}};
}

} // namespace

TEST(WidgetRegistry, AKindIsComparedExactly)
{
    const WidgetRegistry registry({named("clock", "Clock"), named("timer", "Timer")});
    ASSERT_TRUE(registry.definition(QStringLiteral("timer")));
    EXPECT_EQ(registry.definition(QStringLiteral("timer")), &registry.all()[1]);
    for (const char *kind : {"", "Clock", "clock ", "cloc"})
        EXPECT_FALSE(registry.definition(QString::fromLatin1(kind))) << kind;
}

TEST(WidgetRegistry, TheFirstOfTwoWithOneKindIsFound)
{
    const WidgetRegistry registry({named("clock", "First"), named("clock", "Second")});
    EXPECT_EQ(registry.definition(QStringLiteral("clock"))->metadata.displayName, QStringLiteral("First"));
}

TEST(WidgetRegistry, AnEmptyOneKnowsNothing)
{
    EXPECT_FALSE(WidgetRegistry({}).definition(QStringLiteral("clock")));
}

TEST(WidgetPermissions, TextIsTheCaseName)
{
    struct Row
    {
        WidgetPermission permission;
        const char *text;
    };
    for (const Row &row :
         {Row{WidgetPermission::calendar, "calendar"}, Row{WidgetPermission::reminders, "reminders"},
          Row{WidgetPermission::weather, "weather"}, Row{WidgetPermission::microphone, "microphone"},
          Row{WidgetPermission::accessibility, "accessibility"}})
        EXPECT_EQ(rawValue(row.permission), QLatin1String(row.text));
}

TEST(RefreshCadences, EqualByTheirInterval)
{
    EXPECT_EQ(RefreshCadence::seconds(2), RefreshCadence::seconds(2));
    EXPECT_NE(RefreshCadence::seconds(2), RefreshCadence::seconds(5));
    EXPECT_NE(RefreshCadence::seconds(0), RefreshCadence::never());
}

} // namespace brimlight::test
