#include "platform/linux/screens/QtScreens.h"

#include <gtest/gtest.h>

namespace brimlight::test {

TEST(Flipping, TheOriginIsTheLowerLeftOfThePrimaryScreen)
{
    const QRectF primary(0, 0, 1440, 900);
    EXPECT_EQ(flipped(primary, primary), (Rect{0, 0, 1440, 900}));
    EXPECT_EQ(flipped({620, 0, 200, 32}, primary), (Rect{620, 868, 200, 32}));
}

TEST(Flipping, ScreensBesideAndAboveKeepTheirPlace)
{
    const QRectF primary(1920, 1080, 1440, 900);
    EXPECT_EQ(flipped({0, 0, 1920, 1080}, primary), (Rect{-1920, 900, 1920, 1080}));
}

TEST(Flipping, ThereAndBackIsTheSame)
{
    const QRectF primary(1920, 1080, 1440, 900);
    const QRectF rect(100, 200, 300, 400);
    EXPECT_EQ(unflipped(flipped(rect, primary), primary), rect);
}

TEST(QtScreens, TheOffscreenPlatformHasOneMainScreen)
{
    const QtScreens screens(std::nullopt);
    ASSERT_EQ(screens.screens().size(), 1u);
    EXPECT_EQ(screens.mainScreen(), screens.screens().front());
    EXPECT_GT(screens.mainScreen()->frame.width, 0);
    EXPECT_EQ(screens.mainScreen()->frame.y, 0);
}

} // namespace brimlight::test
