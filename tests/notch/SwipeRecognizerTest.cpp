#include "notch/SwipeRecognizer.h"

#include <gtest/gtest.h>

namespace brimlight::test {

using Swipe = SwipeRecognizer::Swipe;
using Phase = ScrollEvent::Phase;

class Swipes : public testing::Test
{
protected:
    void begin() { recognizer.handle({.phase = Phase::began}); }
    std::optional<Swipe> change(double dx, double dy)
    {
        const auto outcome = recognizer.handle({.phase = Phase::changed, .deltaX = dx, .deltaY = dy});
        EXPECT_TRUE(outcome.consumed);
        return outcome.swipe;
    }

    SwipeRecognizer recognizer;
};

TEST_F(Swipes, TwentyAndTenFireOnceAtTheSecondEvent)
{
    begin();
    EXPECT_FALSE(change(20, 0));
    EXPECT_EQ(change(10, 0), Swipe::right);
    EXPECT_FALSE(change(100, 0));
    begin();
    EXPECT_EQ(change(-100, 0), Swipe::left);
}

TEST_F(Swipes, ATieIsVertical)
{
    begin();
    EXPECT_EQ(change(-30, 30), Swipe::down);
}

TEST_F(Swipes, TheThresholdItselfIsNotEnough)
{
    begin();
    EXPECT_FALSE(change(28, 0));
    EXPECT_FALSE(change(-56, -28));
    EXPECT_EQ(change(0, -0.5), Swipe::up);
}

TEST_F(Swipes, HorizontalMustBeStrictlyLarger)
{
    begin();
    EXPECT_EQ(change(31, -30), Swipe::right);
    begin();
    EXPECT_EQ(change(30, -31), Swipe::up);
}

TEST_F(Swipes, EndAndCancelForgetTheMotion)
{
    for (const Phase phase : {Phase::ended, Phase::cancelled}) {
        begin();
        EXPECT_FALSE(change(20, 0));
        EXPECT_TRUE(recognizer.handle({.phase = phase}).consumed);
        EXPECT_FALSE(change(20, 0));
    }
}

TEST_F(Swipes, TheDeltaOfTheFirstEventDoesNotCount)
{
    recognizer.handle({.phase = Phase::began, .deltaX = 100});
    EXPECT_FALSE(change(20, 0));
}

TEST_F(Swipes, EventsWithoutAPhasePassOnAndNeverSwipe)
{
    for (int i = 0; i < 10; ++i) {
        const auto outcome = recognizer.handle({.phase = Phase::none, .deltaX = 100, .deltaY = 100});
        EXPECT_FALSE(outcome.consumed);
        EXPECT_FALSE(outcome.swipe);
    }
}

} // namespace brimlight::test
