#include "theme/GaugeProgress.h"

#include <utility>

namespace brimlight {

GaugeProgress::GaugeProgress(double start, std::function<void()> changed)
    : m_changed(std::move(changed))
    , m_value(start)
{
    QObject::connect(&m_animation, &QVariantAnimation::valueChanged, &m_animation,
                     [this](const QVariant &value) {
                         if (!isRunning() || m_animation.currentTime() - m_steppedAt < m_step)
                             return;
                         m_steppedAt = m_animation.currentTime();
                         assign(value.toDouble());
                     });
    QObject::connect(&m_animation, &QVariantAnimation::finished, &m_animation,
                     [this] { assign(m_animation.endValue().toDouble()); });
}

void GaugeProgress::moveTo(double target, const GaugeMotion &motion)
{
    m_animation.stop();
    if (motion.duration.count() <= 0) {
        assign(target);
        return;
    }
    m_step = static_cast<int>(motion.step.count());
    m_steppedAt = 0;
    m_animation.setDuration(static_cast<int>(motion.duration.count()));
    m_animation.setEasingCurve(motion.easing);
    m_animation.setStartValue(m_value);
    m_animation.setEndValue(target);
    m_animation.start();
}

void GaugeProgress::jumpTo(double target)
{
    m_animation.stop();
    assign(target);
}

void GaugeProgress::finish()
{
    if (isRunning())
        jumpTo(m_animation.endValue().toDouble());
}

void GaugeProgress::assign(double value)
{
    m_value = value;
    m_changed();
}

} // namespace brimlight
