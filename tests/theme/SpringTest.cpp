#include "theme/Spring.h"

#include <gtest/gtest.h>

#include <cmath>

namespace brimlight::test {

using namespace std::chrono_literals;
using Seconds = std::chrono::duration<double>;

TEST(Spring, GoesFromRestToItsGoal)
{
    for (const double damping : {0.3, 0.7, 0.85, 1.0, 1.4}) {
        const Spring spring(Seconds(0.34), damping);
        EXPECT_DOUBLE_EQ(spring.value(0s), 0);
        EXPECT_NEAR(spring.value(1ms), 0, 0.01) << "no initial velocity";
        EXPECT_NEAR(spring.value(60s), 1, 1e-9);
    }
}

TEST(Spring, SolvesTheEquationOfTheDampedOscillator)
{
    for (const double damping : {0.3, 0.85, 1.0, 1.4}) {
        const Spring spring(Seconds(0.5), damping);
        const double omega = 2 * M_PI / 0.5;
        constexpr double h = 1e-4;
        for (double t = 0.01; t < 1; t += 0.07) {
            const auto x = [&](double at) { return 1 - spring.value(Seconds(at)); };
            const double acceleration = (x(t + h) - 2 * x(t) + x(t - h)) / (h * h);
            const double velocity = (x(t + h) - x(t - h)) / (2 * h);
            EXPECT_NEAR(acceleration + 2 * damping * omega * velocity + omega * omega * x(t), 0, 0.01)
                << damping << " at " << t;
        }
    }
}

TEST(Spring, OvershootsOnlyBelowCriticalDamping)
{
    const auto peak = [](double damping) {
        const Spring spring(Seconds(0.34), damping);
        double highest = 0;
        for (int ms = 0; ms < 2000; ++ms)
            highest = std::max(highest, spring.value(std::chrono::milliseconds(ms)));
        return highest;
    };
    // Overshoot of a second-order system: exp(-pi zeta / sqrt(1 - zeta^2)).
    EXPECT_NEAR(peak(0.7), 1 + std::exp(-M_PI * 0.7 / std::sqrt(1 - 0.49)), 1e-4);
    EXPECT_LE(peak(1.0), 1);
    EXPECT_LE(peak(1.4), 1);
}

TEST(Spring, IsWithinAThousandthFromItsSettlingTimeOn)
{
    for (const double damping : {0.3, 0.7, 0.85, 1.0, 1.4}) {
        const Spring spring(Seconds(0.34), damping);
        const auto settled = spring.settlingTime();
        for (int ms = 0; ms < 1000; ++ms)
            EXPECT_LE(std::abs(1 - spring.value(settled + std::chrono::milliseconds(ms))), 0.001);
        EXPECT_GT(std::abs(1 - spring.value(settled - 1ms)), 0.001);
    }
}

TEST(Spring, EasingFollowsTheClosedForm)
{
    for (const double damping : {0.5, 0.7, 0.85, 1.0}) {
        const Spring spring(Seconds(0.34), damping);
        const QEasingCurve curve = spring.easing();
        const Seconds total = spring.settlingTime();
        for (int i = 0; i <= 100; ++i)
            EXPECT_NEAR(curve.valueForProgress(i / 100.0), spring.value(total * (i / 100.0)), 0.015)
                << damping << " at " << i;
        EXPECT_EQ(curve.valueForProgress(1), 1);
    }
}

} // namespace brimlight::test
