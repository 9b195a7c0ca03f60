#pragma once

#include "theme/GaugeMotion.h"

#include <QVariantAnimation>

#include <functional>

namespace brimlight {

/// A number that a gauge draws, moving to where it is sent; at rest nothing runs.
class GaugeProgress
{
public:
    /// `changed` is called at every new number.
    explicit GaugeProgress(double start, std::function<void()> changed);

    double value() const { return m_value; }
    bool isRunning() const { return m_animation.state() == QAbstractAnimation::Running; }

    void moveTo(double target, const GaugeMotion &motion);
    void jumpTo(double target);
    /// Ends a movement where it was going to.
    void finish();

private:
    void assign(double value);

    std::function<void()> m_changed;
    double m_value;
    QVariantAnimation m_animation;
    /// Milliseconds of the animation.
    int m_step = 0;
    int m_steppedAt = 0;
};

} // namespace brimlight
