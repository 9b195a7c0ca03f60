#include "theme/SlowPulse.h"

#include "theme/Motion.h"

namespace brimlight {

SlowPulse::SlowPulse(QObject *parent)
    : QObject(parent)
    , m_beat(static_cast<int>(step.count()))
{
    m_beat.setLoopCount(-1);
    connect(&m_beat, &QAbstractAnimation::currentLoopChanged, this, [this] {
        const double halves = static_cast<double>(m_beat.currentTime() % (2 * half.count())) /
                              static_cast<double>(half.count());
        setValue(Motion::easeInOut().valueForProgress(halves < 1 ? halves : 2 - halves));
    });
}

void SlowPulse::setRunning(bool running)
{
    if (running == isRunning())
        return;
    if (running)
        m_beat.start();
    else
        m_beat.stop();
    Q_EMIT runningChanged();
    setValue(0);
}

void SlowPulse::setValue(double value)
{
    m_value = value;
    Q_EMIT valueChanged();
}

} // namespace brimlight
