#include "notch/NotchGeometry.h"

#include <gtest/gtest.h>

namespace brimlight::test {
namespace {

Screen screen(double width, double top)
{
    return {.localizedName = {},
            .frame = {0, 0, width, 900},
            .visibleFrame = {0, 0, width, 900},
            .safeAreaTop = top};
}

const NotchGeometry plain{.hasNotch = false, .collapsedWidth = 200, .collapsedHeight = 32};

} // namespace

TEST(NotchGeometry, NoScreenGivesTheDefault)
{
    EXPECT_EQ(NotchGeometry::forScreen(std::nullopt), plain);
}

TEST(NotchGeometry, NoInsetGivesTheDefaultWhateverTheSize)
{
    for (const double width : {320.0, 1440.0, 7680.0})
        EXPECT_EQ(NotchGeometry::forScreen(screen(width, 0)), plain);
    EXPECT_EQ(NotchGeometry::forScreen(screen(1440, -4)), plain);
}

TEST(NotchGeometry, ALowInsetKeepsTheMinimumHeight)
{
    for (const double top : {1.0, 24.0, 32.0}) {
        const NotchGeometry geometry = NotchGeometry::forScreen(screen(1512, top));
        EXPECT_TRUE(geometry.hasNotch);
        EXPECT_EQ(geometry.collapsedHeight, 32);
    }
    EXPECT_EQ(NotchGeometry::forScreen(screen(1512, 38)).collapsedHeight, 38);
}

TEST(NotchGeometry, WithoutAuxiliaryAreasThePanelIsAsWideAsTheScreen)
{
    EXPECT_EQ(NotchGeometry::forScreen(screen(1512, 38)).collapsedWidth, 1512);
}

TEST(NotchGeometry, TheWidthIsWhatTheAuxiliaryAreasLeave)
{
    Screen notched = screen(1512, 38);
    notched.auxiliaryTopLeftArea = Rect{0, 862, 660, 38};
    EXPECT_EQ(NotchGeometry::forScreen(notched).collapsedWidth, 852);
    notched.auxiliaryTopRightArea = Rect{852, 862, 660, 38};
    EXPECT_EQ(NotchGeometry::forScreen(notched).collapsedWidth, 192);
}

TEST(NotchGeometry, AuxiliaryAreasAsWideAsTheScreenGiveTheDefaultWidth)
{
    Screen notched = screen(1512, 38);
    notched.auxiliaryTopLeftArea = Rect{0, 862, 756, 38};
    notched.auxiliaryTopRightArea = Rect{756, 862, 756, 38};
    const NotchGeometry geometry = NotchGeometry::forScreen(notched);
    EXPECT_TRUE(geometry.hasNotch);
    EXPECT_EQ(geometry.collapsedWidth, 200);
}

} // namespace brimlight::test
