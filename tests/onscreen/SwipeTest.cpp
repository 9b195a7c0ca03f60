#include "OnScreenTest.h"

namespace brimlight::onscreen {

using namespace Qt::StringLiterals;

namespace {

/// The panel does not open by rest here, so that what opens it is a swipe.
class Swipe : public OnEachDesktop
{
protected:
    static constexpr uint8_t up = 4;
    static constexpr uint8_t down = 5;

    void SetUp() override
    {
        session.writeConfigFile(u"Brimlight/defaults.json"_s, R"({"brimlight.hoverDelay": 3600})");
        OnEachDesktop::SetUp();
    }
};

INSTANTIATE_TEST_SUITE_P(OnScreen, Swipe, testing::ValuesIn(anyDesktop), nameOf);

TEST_P(Swipe, DownOpensAndPins)
{
    hand.useTouchpad();
    hand.moveTo(onEdge());
    hand.scroll(up, 3);
    ASSERT_TRUE(waitForOpen());
    hand.moveTo(away());
    EXPECT_TRUE(staysOpen());
}

TEST_P(Swipe, TheFirstStepOnlyBeginsTheGesture)
{
    hand.useTouchpad();
    hand.moveTo(onEdge());
    hand.scroll(up, 2);
    EXPECT_TRUE(staysShut());
    hand.scroll(up, 3);
    EXPECT_TRUE(waitForOpen());
}

TEST_P(Swipe, UpClosesAPinnedPanel)
{
    hand.useTouchpad();
    const auto frame = openByTap();
    ASSERT_TRUE(frame);
    hand.moveTo({frame->center().x(), frame->bottom() - 20});
    hand.scroll(down, 3);
    EXPECT_TRUE(waitForClose());
}

TEST_P(Swipe, OneGestureSwipesOnce)
{
    hand.useTouchpad();
    hand.moveTo(onEdge());
    hand.scroll(up, 4);
    hand.scroll(down, 8);
    EXPECT_TRUE(waitForOpen());
    EXPECT_TRUE(staysOpen());
}

TEST_P(Swipe, ATouchpadThatIsPluggedInLaterCounts)
{
    hand.moveTo(onEdge());
    hand.scroll(up, 6);
    ASSERT_TRUE(staysShut());
    hand.useTouchpad();
    hand.scroll(up, 3);
    EXPECT_TRUE(waitForOpen());
}

TEST_P(Swipe, AMouseWheelNeverSwipes)
{
    hand.moveTo(onEdge());
    hand.scroll(up, 10);
    EXPECT_TRUE(staysShut());
    const auto frame = openByTap();
    ASSERT_TRUE(frame);
    hand.moveTo({frame->center().x(), frame->top() + 14});
    hand.scroll(down, 10);
    EXPECT_TRUE(staysOpen());
}

} // namespace
} // namespace brimlight::onscreen
