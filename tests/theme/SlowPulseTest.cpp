#include "theme/SlowPulse.h"

#include "fakes/HandDriver.h"

#include <gtest/gtest.h>

namespace brimlight::test {

using namespace std::chrono_literals;

TEST(SlowPulse, GoesUpInTwoSecondsAndBackInTwo)
{
    HandDriver time;
    SlowPulse pulse;
    pulse.setRunning(true);
    time.advanceBy(0ms);
    time.advanceBy(1000ms);
    EXPECT_NEAR(pulse.value(), 0.5, 0.01);
    time.advanceBy(1000ms);
    EXPECT_NEAR(pulse.value(), 1, 0.01);
    time.advanceBy(2000ms);
    EXPECT_NEAR(pulse.value(), 0, 0.01);
}

TEST(SlowPulse, StepsTenTimesASecondHoweverManyFramesTheScreenHas)
{
    HandDriver time;
    SlowPulse pulse;
    int steps = 0;
    pulse.setRunning(true);
    QObject::connect(&pulse, &SlowPulse::valueChanged, &pulse, [&] { ++steps; });
    time.advanceBy(0ms);
    for (int frame = 0; frame < 100; ++frame)
        time.advanceBy(10ms);
    EXPECT_EQ(steps, 10);
}

TEST(SlowPulse, RestsAtZero)
{
    HandDriver time;
    SlowPulse pulse;
    pulse.setRunning(true);
    time.advanceBy(0ms);
    time.advanceBy(700ms);
    EXPECT_GT(pulse.value(), 0);
    pulse.setRunning(false);
    EXPECT_EQ(pulse.value(), 0);
    time.advanceBy(700ms);
    EXPECT_EQ(pulse.value(), 0);
}

} // namespace brimlight::test
