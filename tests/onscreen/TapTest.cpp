#include "OnScreenTest.h"

namespace brimlight::onscreen {

using namespace Qt::StringLiterals;

namespace {

class Tap : public OnEachDesktop
{
protected:
    /// A place without controls: the header keeps to the sides.
    static QPoint bareSurface(const QRect &frame) { return {frame.center().x(), frame.top() + 14}; }
};

INSTANTIATE_TEST_SUITE_P(OnScreen, Tap, testing::ValuesIn(anyDesktop), nameOf);

TEST_P(Tap, OnTheStripsEdgePins)
{
    hand.clickAt(onEdge());
    ASSERT_TRUE(waitForOpen());
    EXPECT_TRUE(panel->waitForLine(u"^Tap toggle pin -> pinned=true$"_s));
    hand.moveTo(away());
    EXPECT_TRUE(staysOpen());
}

/// Where nothing opens by rest.
class TapAlone : public Tap
{
protected:
    void SetUp() override
    {
        session.writeConfigFile(u"Brimlight/defaults.json"_s, R"({"brimlight.hoverDelay": 3600})");
        Tap::SetUp();
    }
};

INSTANTIATE_TEST_SUITE_P(OnScreen, TapAlone, testing::ValuesIn(anyDesktop), nameOf);

TEST_P(TapAlone, OnTheStripsEdgeOpens)
{
    hand.clickAt(onEdge());
    EXPECT_TRUE(waitForOpen());
}

TEST_P(Tap, OnTheBareSurfaceCloses)
{
    const auto frame = openByTap();
    ASSERT_TRUE(frame);
    hand.clickAt(bareSurface(*frame));
    EXPECT_TRUE(waitForClose());
}

TEST_P(Tap, AfterClosingWithThePointerOverTheStripItStaysClosedUntilItComesAnew)
{
    ASSERT_TRUE(openByTap());
    hand.clickAt(onStrip());
    ASSERT_TRUE(waitForClose());
    EXPECT_TRUE(staysShut());
    hand.moveTo(onStrip() + QPoint(5, 5));
    EXPECT_TRUE(staysShut());
    hand.moveTo(away());
    hand.moveTo(onStrip(), milliseconds(300));
    EXPECT_TRUE(waitForOpen());
}

TEST_P(Tap, BesideTheStripReachesTheWindowBelow)
{
    Victim victim(session.display(), Victim::Kind::plain);
    expectClicksReach(victim,
                      {{strip.left() - 2, 10}, {strip.right() + 2, 10}, {onStrip().x(), strip.bottom() + 2}});
}

TEST_P(Tap, OnTheStripsEdgeDoesNotReachTheWindowBelow)
{
    Victim victim(session.display(), Victim::Kind::plain);
    ASSERT_TRUE(openByTap());
    // What is pressed afterwards is the first thing that the window below hears of.
    const QPoint outside(x.size().width() / 2, x.size().height() * 3 / 4 - 5);
    hand.clickAt(outside);
    ASSERT_TRUE(waitUntil([&] { return !victim.presses().empty(); }));
    EXPECT_EQ(victim.presses(), std::vector{outside});
}

TEST_P(Tap, OnTheOpenPanelDoesNotReachTheWindowBelow)
{
    Victim victim(session.display(), Victim::Kind::plain);
    const auto frame = openByTap();
    ASSERT_TRUE(frame);
    hand.clickAt(bareSurface(*frame));
    ASSERT_TRUE(waitForClose());
    EXPECT_TRUE(victim.presses().empty());
}

} // namespace
} // namespace brimlight::onscreen
