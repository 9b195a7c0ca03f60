#include "notch/NotchPanel.h"

#include "fakes/Fakes.h"

#include <gtest/gtest.h>

#include <memory>

namespace brimlight::test {
namespace {

constexpr Rect strip{620, 868, 200, 32};
constexpr Rect open{452, 542, 536, 358};

} // namespace

class Panel : public testing::Test
{
protected:
    Panel() { panel.setFrame(strip, false); }

    void expand()
    {
        panel.setContentVisible(true);
        panel.setFrame(open, true);
    }
    void collapse()
    {
        panel.setContentVisible(false);
        panel.setFrame(strip, true);
    }

    FakeSurface surface;
    NotchPanel panel{surface};
};

TEST_F(Panel, CollapsedAtRestNothingIsDrawnAndTheStripFeels)
{
    EXPECT_FALSE(panel.isDrawn());
    EXPECT_TRUE(surface.outlines.empty());
    EXPECT_EQ(surface.extent(), strip);
    EXPECT_EQ(surface.sensor.strip, strip);
}

TEST_F(Panel, TheLogicalFrameJumpsWhileTheDrawnOneFollows)
{
    expand();
    EXPECT_EQ(panel.frame(), open);
    EXPECT_TRUE(panel.isAnimating());
    EXPECT_EQ(panel.pane().size(), QSizeF(200, 32));
    panel.finishAnimation();
    EXPECT_EQ(panel.pane().size(), QSizeF(536, 358));
    EXPECT_FALSE(panel.isAnimating());
}

TEST_F(Panel, TheSurfaceGrowsOnceBeforeTheExpansionAndShrinksOnceAfterTheCollapse)
{
    const size_t before = surface.extents.size();
    expand();
    ASSERT_EQ(surface.extents.size(), before + 1);
    const Rect grown = surface.extent();
    EXPECT_GE(grown.width, 536);
    EXPECT_GE(grown.height, 600);
    EXPECT_EQ(grown.maxY(), open.maxY());
    panel.finishAnimation();
    panel.setFrame({452, 300, 536, 600}, true);
    panel.finishAnimation();
    EXPECT_EQ(surface.extents.size(), before + 1) << "a taller page fits";
    collapse();
    EXPECT_EQ(surface.extent(), grown);
    EXPECT_TRUE(panel.isDrawn());
    panel.finishAnimation();
    EXPECT_EQ(surface.extent(), strip);
    EXPECT_FALSE(panel.isDrawn());
    EXPECT_TRUE(surface.outlines.empty());
}

TEST_F(Panel, WhatIsDrawnIsWhatTakesThePointer)
{
    expand();
    panel.finishAnimation();
    ASSERT_EQ(surface.outlines.size(), 1u);
    EXPECT_EQ(surface.outlines.front(),
              (SurfaceOutline{.frame = open, .bottomRadius = 32, .blursBehind = true}));
}

TEST_F(Panel, TheTopEdgeNeverLeavesTheScreensEdge)
{
    QObject::connect(&panel, &NotchPanel::paneChanged, [&] { EXPECT_EQ(panel.pane().top(), 0); });
    expand();
    for (int frame = 0; frame < 40; ++frame)
        panel.advanceAnimation(std::chrono::milliseconds(frame * 16));
}

TEST_F(Panel, TurningRoundHalfWayStartsFromWhatIsDrawn)
{
    expand();
    panel.advanceAnimation(std::chrono::milliseconds(100));
    const QSizeF half = panel.pane().size();
    EXPECT_GT(half.height(), 32);
    EXPECT_LT(half.height(), 358);
    collapse();
    EXPECT_EQ(panel.pane().size(), half);
    panel.finishAnimation();
    EXPECT_FALSE(panel.isDrawn());
}

TEST_F(Panel, MovingToAnotherScreenIsNotAnimated)
{
    expand();
    panel.setFrame({2000, 542, 536, 358}, true);
    EXPECT_FALSE(panel.isAnimating());
    EXPECT_EQ(surface.outlines.front().frame.x, 2000);
}

TEST_F(Panel, IsPlacedAgainWhereTheSameCoordinatesAreAnotherPlace)
{
    for (const Rect &frame : {strip, open}) {
        panel.setContentVisible(frame == open);
        panel.setFrame(frame, false);
        const size_t before = surface.extents.size();
        panel.setFrame(frame, false);
        ASSERT_EQ(surface.extents.size(), before + 1);
        EXPECT_EQ(surface.extents[before], surface.extents[before - 1]);
    }
}

TEST_F(Panel, APopoverMovesWithThePanel)
{
    expand();
    QObject owner;
    panel.showPopover(&owner, {300, 50, 100, 80});
    const Rect before = surface.outlines.back().frame;
    Rect moved = open;
    moved.x += 1440;
    moved.y += 200;
    panel.setFrame(moved, false);
    const Rect after{before.x + 1440, before.y + 200, 100, 80};
    EXPECT_EQ(surface.outlines.back().frame, after);
    EXPECT_TRUE(panel.contains({after.midX(), after.y}, 0));
    EXPECT_FALSE(panel.contains({before.midX(), before.y}, 0));
}

TEST_F(Panel, AHitTestGrowsByItsMargin)
{
    EXPECT_TRUE(panel.contains({614, 880}, 6));
    EXPECT_FALSE(panel.contains({613.9, 880}, 6));
    EXPECT_TRUE(panel.contains({700, 862}, 6));
    EXPECT_FALSE(panel.contains({700, 861.9}, 6));
}

TEST_F(Panel, APopoverGoesWithItsOwner)
{
    expand();
    panel.finishAnimation();
    auto owner = std::make_unique<QObject>();
    panel.setPopoverFrame(*owner, {700, 480, 100, 60});
    EXPECT_EQ(surface.outlines.size(), 2u);
    EXPECT_TRUE(panel.contains({750, 500}, 0));
    owner.reset();
    EXPECT_EQ(surface.outlines.size(), 1u);
    EXPECT_FALSE(panel.contains({750, 500}, 0));
}

} // namespace brimlight::test
