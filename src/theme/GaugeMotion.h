#pragma once

#include "theme/Spring.h"

#include <QEasingCurve>

#include <chrono>

namespace brimlight {

/// How long a change takes, along which curve and in which steps.
struct GaugeMotion
{
    /// Between two steps of what moves at every tick, all day, and only by a little: half the rate of the
    /// screen is smooth enough for it.
    static constexpr std::chrono::milliseconds calm{33};
    /// What moves by less, in points, need not be seen moving.
    static constexpr double unseenMove = 1.5;

    std::chrono::milliseconds duration;
    QEasingCurve easing;
    /// Steps every `calm`; at every frame of the screen otherwise.
    bool isCalm = false;

    /// Ends where the eye sees no more of it, a hundredth from the goal: what moves at every tick must not
    /// keep the renderer busy with a tail of equal frames.
    static GaugeMotion spring(std::chrono::duration<double> response, double dampingFraction)
    {
        constexpr double unseen = 0.01;
        const Spring spring(response, dampingFraction);
        return {spring.settlingTime(unseen), spring.easing(unseen), true};
    }

    /// A ring following its value.
    static GaugeMotion ringChange() { return spring(std::chrono::duration<double>(0.5), 0.8); }
    /// The first sweep of a ring and the first drawing of a line.
    static GaugeMotion reveal() { return {std::chrono::milliseconds(450), QEasingCurve::OutQuad}; }
    /// A line taking new samples.
    static GaugeMotion samplesChange()
    {
        return {std::chrono::milliseconds(250), QEasingCurve::OutQuad, true};
    }
    /// The digits of a clock.
    static GaugeMotion roll() { return spring(std::chrono::duration<double>(0.35), 0.85); }
};

} // namespace brimlight
