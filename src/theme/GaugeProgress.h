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
    ~GaugeProgress();
    Q_DISABLE_COPY_MOVE(GaugeProgress)

    double value() const { return m_value; }
    bool isRunning() const { return m_animation.state() != QAbstractAnimation::Stopped; }

    void moveTo(double target, const GaugeMotion &motion);
    void jumpTo(double target);
    /// Ends a movement where it was going to.
    void finish();

private:
    friend class CalmBeat;
    void stepTo(int beatTime);
    void stop();
    void assign(double value);

    std::function<void()> m_changed;
    double m_value;
    /// Paused while it moves calmly: then the beat moves it.
    QVariantAnimation m_animation;
    /// When that movement began, in milliseconds of the beat.
    int m_began = 0;
};

} // namespace brimlight
