#pragma once

#include <QEasingCurve>

#include <chrono>

namespace brimlight {

/// The step response of a damped oscillator at rest, given as interface designers give it.
///
/// With omega = 2 pi / response and zeta = damping fraction the displacement from the goal follows
/// x'' + 2 zeta omega x' + omega^2 x = 0 with x(0) = 1, x'(0) = 0; `value` is 1 - x in closed form.
class Spring
{
public:
    /// `response` is the period of the undamped oscillation, above 0. `dampingFraction` is above 0; below 1
    /// the spring overshoots, at 1 it is critically damped.
    constexpr Spring(std::chrono::duration<double> response, double dampingFraction)
        : m_response(response.count())
        , m_damping(dampingFraction)
    {
    }

    /// From 0 at the start to 1 at rest; `time` counts from the start.
    double value(std::chrono::duration<double> time) const;

    /// The time after which the value stays within this distance of its goal.
    std::chrono::milliseconds settlingTime(double within = 0.001) const;

    /// The same motion as an easing curve over `settlingTime(within)`, which ends at the goal.
    QEasingCurve easing(double within = 0.001) const;

private:
    double velocity(double seconds) const;

    double m_response;
    double m_damping;
};

} // namespace brimlight
