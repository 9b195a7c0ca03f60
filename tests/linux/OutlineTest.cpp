#include "platform/linux/x11/OutlineRows.h"

#include <gtest/gtest.h>

namespace brimlight::test {
namespace {

constexpr Rect extent{0, 0, 400, 300};

bool covers(const std::vector<xcb_rectangle_t> &rows, int x, int y)
{
    return std::any_of(rows.begin(), rows.end(), [&](const xcb_rectangle_t &r) {
        return x >= r.x && x < r.x + r.width && y >= r.y && y < r.y + r.height;
    });
}

} // namespace

TEST(OutlineRows, ARectangleIsOneRow)
{
    const auto rows = outlineRows({.frame = {100, 200, 50, 60}}, extent, 1);
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].x, 100);
    EXPECT_EQ(rows[0].y, 40) << "y counts downwards from the top of the window";
    EXPECT_EQ(rows[0].width, 50);
    EXPECT_EQ(rows[0].height, 60);
}

TEST(OutlineRows, OnlyTheLowerCornersAreRound)
{
    const auto rows = outlineRows({.frame = {100, 100, 200, 200}, .bottomRadius = 32}, extent, 1);
    EXPECT_TRUE(covers(rows, 100, 0));
    EXPECT_TRUE(covers(rows, 299, 0));
    EXPECT_TRUE(covers(rows, 100, 160));
    EXPECT_FALSE(covers(rows, 100, 199));
    EXPECT_FALSE(covers(rows, 299, 199));
    EXPECT_TRUE(covers(rows, 200, 199));
    EXPECT_FALSE(covers(rows, 99, 50));
    // The quadratic corner passes the middle of its box at a quarter from the edges.
    EXPECT_TRUE(covers(rows, 109, 191));
    EXPECT_FALSE(covers(rows, 105, 195));
}

TEST(OutlineRows, AllCornersAreRoundWhereAsked)
{
    const auto rows =
        outlineRows({.frame = {100, 200, 100, 24}, .bottomRadius = 10, .topRadius = 10}, extent, 1);
    for (const int x : {100, 199}) {
        EXPECT_FALSE(covers(rows, x, 76));
        EXPECT_FALSE(covers(rows, x, 99));
        EXPECT_TRUE(covers(rows, x, 88));
    }
    for (int column = 100; column < 200; ++column) {
        for (int row = 0; row < 12; ++row)
            EXPECT_EQ(covers(rows, column, 76 + row), covers(rows, column, 99 - row)) << column << ' ' << row;
    }
    EXPECT_TRUE(covers(rows, 150, 76));
    EXPECT_TRUE(covers(rows, 150, 99));
    EXPECT_FALSE(covers(rows, 150, 75));
    EXPECT_FALSE(covers(rows, 150, 100));
}

TEST(OutlineRows, CountInPixelsOfTheScreen)
{
    const auto rows = outlineRows({.frame = {100, 200, 50, 60}}, extent, 2);
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].x, 200);
    EXPECT_EQ(rows[0].y, 80);
    EXPECT_EQ(rows[0].width, 100);
}

TEST(OutlineRows, EdgesBetweenPixelsGoToTheNearest)
{
    const auto rows = outlineRows({.frame = {100.4, 199.7, 49.4, 60.1}}, extent, 1);
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].x, 100);
    EXPECT_EQ(rows[0].width, 50) << "from 100.4 to 149.8";
    EXPECT_EQ(rows[0].y, 40) << "from 40.2 to 100.3";
    EXPECT_EQ(rows[0].height, 60);
}

TEST(OutlineRows, AnEmptyFrameCoversNothing)
{
    EXPECT_TRUE(outlineRows({.frame = {100, 200, 0, 60}}, extent, 1).empty());
    EXPECT_TRUE(outlineRows({.frame = {100, 200, 60, 0}, .bottomRadius = 20}, extent, 1).empty());
}

} // namespace brimlight::test
