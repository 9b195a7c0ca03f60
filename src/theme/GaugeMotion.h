#pragma once

#include "theme/Spring.h"

#include <QEasingCurve>

#include <chrono>

namespace brimlight {

/// How long a change takes and along which curve.
struct GaugeMotion
{
    std::chrono::milliseconds duration;
    QEasingCurve easing;

    static GaugeMotion spring(std::chrono::duration<double> response, double dampingFraction)
    {
        const Spring spring(response, dampingFraction);
        return {spring.settlingTime(), spring.easing()};
    }

    /// A ring following its value.
    static GaugeMotion ringChange() { return spring(std::chrono::duration<double>(0.5), 0.8); }
    /// The first sweep of a ring and the first drawing of a line.
    static GaugeMotion reveal() { return {std::chrono::milliseconds(450), QEasingCurve::OutQuad}; }
    /// A line taking new samples.
    static GaugeMotion samplesChange() { return {std::chrono::milliseconds(250), QEasingCurve::OutQuad}; }
    /// The digits of a clock.
    static GaugeMotion roll() { return spring(std::chrono::duration<double>(0.35), 0.85); }
};

} // namespace brimlight
