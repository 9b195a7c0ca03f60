#include "OnScreenTest.h"

namespace brimlight::onscreen {

using namespace Qt::StringLiterals;

namespace {

class Hover : public OnEachDesktop
{
protected:
    static constexpr milliseconds hoverDelay{500};
    static constexpr milliseconds collapseDelay{120};

    std::optional<QRect> openByRest()
    {
        hand.moveTo(onStrip());
        return waitForOpen();
    }

    /// `from` names the last place of the pointer before it goes away.
    void expectLeavingCloses(QPoint (*from)(const QRect &frame))
    {
        for (int i = 0; i < 3; ++i) {
            const auto frame = openByRest();
            ASSERT_TRUE(frame);
            hand.moveTo(from(*frame));
            const auto left = Clock::now();
            hand.moveTo(away(), milliseconds(20));
            ASSERT_TRUE(waitForClose());
            EXPECT_GE(Clock::now() - left, collapseDelay);
        }
    }
};

INSTANTIATE_TEST_SUITE_P(OnScreen, Hover, testing::ValuesIn(anyDesktop), nameOf);

TEST_P(Hover, RestOpensAfterTheHoverDelay)
{
    const auto entered = Clock::now();
    const auto frame = openByRest();
    ASSERT_TRUE(frame);
    EXPECT_GE(Clock::now() - entered, hoverDelay);
    EXPECT_EQ(frame->top(), 0);
    EXPECT_EQ(frame->width(), 536);
    EXPECT_NEAR(frame->center().x(), x.size().width() / 2, 1);
}

TEST_P(Hover, TheUpperEdgeOfTheScreenIsPartOfTheStrip)
{
    hand.moveTo({strip.center().x(), 0});
    EXPECT_TRUE(waitForOpen());
}

TEST_P(Hover, GrazeShorterThanTheDelayDoesNotOpen)
{
    hand.moveTo(onStrip());
    hand.moveTo(away(), milliseconds(200));
    EXPECT_TRUE(staysShut());
}

TEST_P(Hover, PointerBesideTheStripDoesNotOpen)
{
    hand.moveTo({strip.right() + 2, 10});
    EXPECT_TRUE(staysShut());
}

TEST_P(Hover, LeavingClosesAfterTheCollapseDelay)
{
    expectLeavingCloses([](const QRect &frame) { return frame.center(); });
}

TEST_P(Hover, LeavingFromTheMarginClosesToo)
{
    // Off the window already: no event of its own tells the program of it.
    expectLeavingCloses([](const QRect &frame) { return QPoint(frame.center().x(), frame.bottom() + 4); });
}

TEST_P(Hover, ComingBackWithinTheCollapseDelayKeepsItOpen)
{
    ASSERT_TRUE(openByRest());
    hand.moveTo(away());
    hand.moveTo(onStrip(), milliseconds(60));
    EXPECT_TRUE(staysOpen());
}

TEST_P(Hover, AFewPixelsOutsideStillCountAsInside)
{
    const auto frame = openByRest();
    ASSERT_TRUE(frame);
    hand.moveTo({frame->center().x(), frame->bottom() + 5});
    EXPECT_TRUE(staysOpen());
    hand.moveTo({frame->center().x(), frame->bottom() + 8});
    EXPECT_TRUE(waitForClose());
}

TEST_P(Hover, MovingAboutInTheOpenPanelKeepsItOpen)
{
    const auto frame = openByRest();
    ASSERT_TRUE(frame);
    for (const QPoint point :
         {frame->center(), frame->topLeft() + QPoint(3, 3), frame->bottomRight() - QPoint(40, 4)})
        hand.moveTo(point, milliseconds(100));
    EXPECT_TRUE(staysOpen());
}

TEST_P(Hover, OpensAgainAfterItHasClosed)
{
    ASSERT_TRUE(openByRest());
    hand.moveTo(away());
    ASSERT_TRUE(waitForClose());
    EXPECT_TRUE(openByRest());
}

/// A delay that is longer than the collapse takes to be drawn.
class SlowHover : public Hover
{
protected:
    void SetUp() override
    {
        session.writeConfigFile(u"Brimlight/defaults.json"_s,
                                R"({"brimlight.hoverDelay": 1.5, "brimlight.onboardingCompleted": true})");
        Hover::SetUp();
    }
};

INSTANTIATE_TEST_SUITE_P(OnScreen, SlowHover, testing::ValuesIn(anyDesktop), nameOf);

TEST_P(SlowHover, ComingBackWhileTheCollapseIsDrawnOpensAgain)
{
    for (const auto pause : {milliseconds(0), milliseconds(160)}) {
        ASSERT_TRUE(openByRest());
        hand.moveTo(away());
        ASSERT_TRUE(waitForClose());
        hand.moveTo(onStrip(), pause);
        EXPECT_TRUE(waitForOpen()) << pause.count();
        hand.moveTo(away());
        ASSERT_TRUE(waitForClose());
    }
}

} // namespace
} // namespace brimlight::onscreen
