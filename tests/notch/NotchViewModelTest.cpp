#include "notch/NotchViewModel.h"

#include "fakes/Fakes.h"

#include <gtest/gtest.h>

namespace brimlight::test {
namespace {

QString key()
{
    return QStringLiteral("brimlight.onboardingCompleted");
}

} // namespace

TEST(NotchViewModel, StartsWithTheInitialValues)
{
    MemoryDefaults defaults;
    const NotchViewModel model(defaults);
    EXPECT_FALSE(model.isExpanded());
    EXPECT_FALSE(model.isPinned());
    EXPECT_EQ(model.currentPage(), 0);
    EXPECT_EQ(model.geometry(), NotchGeometry{});
    EXPECT_FALSE(model.showSettings());
    EXPECT_FALSE(model.isDragging());
    EXPECT_FALSE(model.flippedWidgetID());
    EXPECT_FALSE(model.optionsOpen());
    EXPECT_FALSE(model.hudType());
    EXPECT_FALSE(model.onboardingCompleted());
}

TEST(NotchViewModel, ReadsWhetherTheWalkThroughIsDone)
{
    MemoryDefaults defaults;
    defaults.values.insert(key(), true);
    EXPECT_TRUE(NotchViewModel(defaults).onboardingCompleted());
    defaults.values.insert(key(), QStringLiteral("true"));
    EXPECT_FALSE(NotchViewModel(defaults).onboardingCompleted());
}

TEST(NotchViewModel, AssigningAnEqualValueStillRewritesTheKeyAndNotifies)
{
    MemoryDefaults defaults;
    NotchViewModel model(defaults);
    int notified = 0;
    QObject::connect(&model, &NotchViewModel::onboardingCompletedChanged, [&] { ++notified; });
    model.setOnboardingCompleted(false);
    model.setOnboardingCompleted(false);
    EXPECT_EQ(defaults.writes, (QStringList{key(), key()}));
    EXPECT_EQ(notified, 2);
}

TEST(NotchViewModel, EveryAssignmentNotifiesEqualOrNot)
{
    MemoryDefaults defaults;
    NotchViewModel model(defaults);
    int notified = 0;
    const auto count = [&] { ++notified; };
    QObject::connect(&model, &NotchViewModel::isPinnedChanged, count);
    QObject::connect(&model, &NotchViewModel::hudTypeChanged, count);
    QObject::connect(&model, &NotchViewModel::flippedWidgetIDChanged, count);
    model.setPinned(false);
    model.setHudType(std::nullopt);
    model.setFlippedWidgetID(std::nullopt);
    EXPECT_EQ(notified, 3);
    EXPECT_TRUE(defaults.writes.isEmpty()) << "nothing else persists";
}

TEST(HUDType, IsEqualWhenCaseAndLevelAre)
{
    EXPECT_EQ(HUDType::volume(0.5), HUDType::volume(0.5));
    EXPECT_NE(HUDType::volume(0.5), HUDType::volume(0.6));
    EXPECT_NE(HUDType::volume(0.5), HUDType::brightness(0.5));
}

} // namespace brimlight::test
