#include "theme/Spring.h"

#include <QPointF>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace brimlight {

double Spring::value(std::chrono::duration<double> time) const
{
    const double t = std::max(time.count(), 0.0);
    const double omega = 2 * std::numbers::pi / m_response;
    const double decay = m_damping * omega;
    if (m_damping < 1) {
        const double damped = omega * std::sqrt(1 - m_damping * m_damping);
        return 1 - std::exp(-decay * t) * (std::cos(damped * t) + decay / damped * std::sin(damped * t));
    }
    if (m_damping == 1)
        return 1 - std::exp(-omega * t) * (1 + omega * t);
    const double root = omega * std::sqrt(m_damping * m_damping - 1);
    const double slow = -decay + root;
    const double fast = -decay - root;
    return 1 - (fast * std::exp(slow * t) - slow * std::exp(fast * t)) / (fast - slow);
}

double Spring::velocity(double seconds) const
{
    constexpr double h = 1e-5;
    const double before = std::max(seconds - h, 0.0);
    return (value(std::chrono::duration<double>(seconds + h)) -
            value(std::chrono::duration<double>(before))) /
           (seconds + h - before);
}

std::chrono::milliseconds Spring::settlingTime(double within) const
{
    // The last moment outside the band, found from behind: the slowest mode bounds where to begin.
    const double omega = 2 * std::numbers::pi / m_response;
    const double rate =
        m_damping <= 1 ? m_damping * omega : omega * (m_damping - std::sqrt(m_damping * m_damping - 1));
    const auto bound = static_cast<long>(std::ceil(1000 * 2 * std::log(1 / within) / rate));
    for (long ms = bound; ms > 0; --ms) {
        if (std::abs(1 - value(std::chrono::milliseconds(ms))) > within)
            return std::chrono::milliseconds(ms + 1);
    }
    return std::chrono::milliseconds(1);
}

QEasingCurve Spring::easing(double within) const
{
    // Cubic Hermite pieces written as Bezier segments; eight follow the closed form to within a thousandth.
    constexpr int pieces = 8;
    const double total = std::chrono::duration<double>(settlingTime(within)).count();
    const auto at = [&](double progress) { return value(std::chrono::duration<double>(progress * total)); };
    QEasingCurve curve(QEasingCurve::BezierSpline);
    for (int i = 0; i < pieces; ++i) {
        const double from = static_cast<double>(i) / pieces;
        const double to = static_cast<double>(i + 1) / pieces;
        const double third = (to - from) / 3;
        const double end = i + 1 == pieces ? 1 : at(to);
        curve.addCubicBezierSegment({from + third, at(from) + velocity(from * total) * total * third},
                                    {to - third, end - velocity(to * total) * total * third}, {to, end});
    }
    return curve;
}

} // namespace brimlight
