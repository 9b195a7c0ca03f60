#include "fakes/Fakes.h"
#include "notch/NotchContainer.h"

#include <gtest/gtest.h>

namespace brimlight::test {

using Phase = ScrollEvent::Phase;

/// Which of a touchpad's gestures scroll and which swipe.
class ScrollOrSwipe : public testing::Test
{
protected:
    ScrollOrSwipe()
    {
        container.setCallbacks({.onSwipeLeft = [this] { swipes.append(QStringLiteral("left")); },
                                .onSwipeRight = [this] { swipes.append(QStringLiteral("right")); },
                                .onSwipeDown = [this] { swipes.append(QStringLiteral("down")); },
                                .onSwipeUp = [this] { swipes.append(QStringLiteral("up")); }});
    }

    bool send(Phase phase, double dx = 0, double dy = 0)
    {
        return surface.events.scrolled(
            {.phase = phase, .deltaX = dx, .deltaY = dy, .scrollable = scrollable});
    }
    bool begin(double dx = 0, double dy = 0) { return send(Phase::began, dx, dy); }
    bool change(double dx, double dy) { return send(Phase::changed, dx, dy); }

    static constexpr ScrollAxes column{.vertical = true};
    FakeSurface surface;
    NotchContainer container{surface};
    ScrollAxes scrollable;
    QStringList swipes;
};

TEST_F(ScrollOrSwipe, OverWhatCannotBeScrolledItSwipes)
{
    EXPECT_TRUE(begin());
    EXPECT_TRUE(change(0, -40));
    EXPECT_EQ(swipes, QStringList{QStringLiteral("up")});
}

TEST_F(ScrollOrSwipe, OverWhatCanBeScrolledTheContentGetsItAndNothingSwipes)
{
    scrollable = column;
    begin();
    EXPECT_FALSE(change(0, -40));
    EXPECT_FALSE(change(0, -400));
    EXPECT_FALSE(send(Phase::ended));
    EXPECT_TRUE(swipes.isEmpty());
}

TEST_F(ScrollOrSwipe, TheFirstEventScrollsWhenItMoves)
{
    scrollable = column;
    EXPECT_FALSE(begin(0, -3));
}

TEST_F(ScrollOrSwipe, WhatBeganAsScrollingStaysScrolling)
{
    scrollable = column;
    begin();
    change(0, -5);
    scrollable = {};
    EXPECT_FALSE(change(-100, 0));
    EXPECT_FALSE(change(0, 100));
    EXPECT_TRUE(swipes.isEmpty());
}

TEST_F(ScrollOrSwipe, TheNextGestureIsDecidedAnew)
{
    scrollable = column;
    begin();
    change(0, -40);
    send(Phase::ended);
    scrollable = {};
    begin();
    EXPECT_TRUE(change(0, -40));
    EXPECT_EQ(swipes, QStringList{QStringLiteral("up")});
}

TEST_F(ScrollOrSwipe, SidewaysOverAColumnTurnsThePage)
{
    scrollable = column;
    begin();
    EXPECT_TRUE(change(-10, 2));
    EXPECT_TRUE(change(-30, 2));
    EXPECT_EQ(swipes, QStringList{QStringLiteral("left")});
}

TEST_F(ScrollOrSwipe, AColumnIsNeverClosedByFingersThatWanderOff)
{
    scrollable = column;
    begin();
    change(-2, 0);
    EXPECT_TRUE(change(0, -200));
    EXPECT_TRUE(swipes.isEmpty());
}

} // namespace brimlight::test
