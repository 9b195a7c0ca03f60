#include "notch/Placement.h"

#include "fakes/Fakes.h"

#include <gtest/gtest.h>

namespace brimlight::test {
namespace {

Screen screen(double width, double height, double visibleHeight)
{
    return {
        .localizedName = {}, .frame = {0, 0, width, height}, .visibleFrame = {0, 0, width, visibleHeight}};
}

} // namespace

TEST(Placement, StandsTopCentreAndExpandsToTheMinimumWidth)
{
    const Screen plain = screen(1440, 900, 900);
    EXPECT_EQ(placement::frame(false, 358, {}, plain), (Rect{620, 868, 200, 32}));
    EXPECT_EQ(placement::frame(true, 358, {}, plain), (Rect{452, 542, 536, 358}));
}

TEST(Placement, TheFrameOfTheScreenCountsNotItsVisibleFrame)
{
    Screen barred = screen(1440, 900, 860);
    EXPECT_EQ(placement::frame(false, 0, {}, barred).maxY(), 900);
}

TEST(Placement, AHousingWiderThanTheMinimumKeepsItsWidth)
{
    const NotchGeometry wide{.hasNotch = true, .collapsedWidth = 700, .collapsedHeight = 40};
    EXPECT_EQ(placement::frame(true, 300, wide, screen(1440, 900, 900)).width, 700);
}

TEST(Placement, AScreenBesideThePrimaryKeepsItsOffset)
{
    Screen second = screen(1920, 1080, 1080);
    second.frame.x = -1920;
    second.frame.y = 200;
    EXPECT_EQ(placement::frame(false, 0, {}, second), (Rect{-1060, 1248, 200, 32}));
}

TEST(Placement, AVisibleHeightOf500LimitsSettingsTo425AndTheGridTo450)
{
    const Screen low = screen(1440, 520, 500);
    EXPECT_DOUBLE_EQ(placement::expandedHeight({.showSettings = true}, {}, low), 425);
    EXPECT_DOUBLE_EQ(placement::expandedHeight({.rows = 8}, {}, low), 450);
}

TEST(Placement, SettingsAreAtMost540High)
{
    EXPECT_EQ(placement::expandedHeight({.showSettings = true}, {}, screen(1440, 900, 900)), 540);
}

TEST(Placement, SettingsComeBeforeTheWalkThrough)
{
    const Screen plain = screen(1440, 900, 900);
    EXPECT_EQ(placement::expandedHeight({.showSettings = true, .onboardingCompleted = false}, {}, plain),
              540);
    EXPECT_EQ(placement::expandedHeight({.onboardingCompleted = false}, {}, plain), 300);
}

TEST(Placement, RowsGapsAndChromeMakeTheHeight)
{
    const Screen plain = screen(1440, 900, 900);
    EXPECT_EQ(placement::expandedHeight({.rows = 3}, {}, plain), 3 * 74 + 2 * 12 + 32 + 80);
    EXPECT_EQ(placement::expandedHeight({.rows = 8}, {}, plain), 600);
}

TEST(Placement, APageWithoutRowsStillGetsTheMinimum)
{
    EXPECT_EQ(placement::expandedHeight({.rows = 0}, {}, screen(1440, 900, 900)), 170);
}

TEST(Placement, ATinyScreenCapsEvenTheMinimum)
{
    EXPECT_DOUBLE_EQ(placement::expandedHeight({.rows = 0}, {}, screen(320, 100, 100)), 90);
}

TEST(Placement, CollapsedHeightGrowsOnlyForTheHeadsUpDisplay)
{
    const Screen plain = screen(1440, 900, 900);
    EXPECT_EQ(placement::expandedHeight({.isExpanded = false, .showsHud = true}, {}, plain), 68);
    EXPECT_EQ(placement::expandedHeight({.isExpanded = false}, {}, plain), 32);
}

TEST(Placement, RectStringCutsToIntegers)
{
    EXPECT_EQ(placement::rectString({452.9, 542.1, 536.99, 358}), QStringLiteral("(452,542 536x358)"));
    EXPECT_EQ(placement::rectString({-0.9, -12.7, 0, 0}), QStringLiteral("(0,-12 0x0)"));
}

TEST(ChooseScreen, PrefersTheNotchedThenTheMainThenTheFirst)
{
    FakeScreens screens;
    EXPECT_FALSE(placement::chooseScreen(screens));
    screens.list = {screen(800, 600, 600), screen(1024, 768, 768)};
    EXPECT_EQ(placement::chooseScreen(screens), screens.list[0]);
    screens.main = screens.list[1];
    EXPECT_EQ(placement::chooseScreen(screens), screens.list[1]);
    screens.list[0].safeAreaTop = 30;
    EXPECT_EQ(placement::chooseScreen(screens), screens.list[0]);
}

} // namespace brimlight::test
