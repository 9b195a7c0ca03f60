#include "theme/GaugeProgress.h"

#include <QCoreApplication>
#include <QPauseAnimation>
#include <QPointer>

#include <algorithm>
#include <utility>
#include <vector>

namespace brimlight {

/// What moves calmly steps to one beat, so that all that moves at a tick shares its frames. An animation that
/// only pauses, since Qt sleeps until its end; any other wakes the program at every frame of the screen.
class CalmBeat : public QPauseAnimation
{
public:
    static CalmBeat &instance()
    {
        static QPointer<CalmBeat> beat;
        if (!beat)
            beat = new CalmBeat(qApp);
        return *beat;
    }

    void join(GaugeProgress &progress)
    {
        m_moving.push_back(&progress);
        if (state() == Stopped)
            start();
    }

    void leave(GaugeProgress &progress)
    {
        std::erase(m_moving, &progress);
        if (m_moving.empty())
            stop();
    }

private:
    explicit CalmBeat(QObject *parent)
        : QPauseAnimation(static_cast<int>(GaugeMotion::calm.count()), parent)
    {
        setLoopCount(-1);
        connect(this, &CalmBeat::currentLoopChanged, this, &CalmBeat::step);
    }

    void step()
    {
        // A step may end or begin others.
        for (GaugeProgress *progress : std::vector(m_moving)) {
            if (std::ranges::find(m_moving, progress) != m_moving.end())
                progress->stepTo(currentTime());
        }
    }

    std::vector<GaugeProgress *> m_moving;
};

GaugeProgress::GaugeProgress(double start, std::function<void()> changed)
    : m_changed(std::move(changed))
    , m_value(start)
{
    QObject::connect(&m_animation, &QVariantAnimation::valueChanged, &m_animation,
                     [this](const QVariant &value) {
                         if (isRunning())
                             assign(value.toDouble());
                     });
    QObject::connect(&m_animation, &QVariantAnimation::finished, &m_animation, [this] {
        CalmBeat::instance().leave(*this);
        assign(m_animation.endValue().toDouble());
    });
}

GaugeProgress::~GaugeProgress()
{
    stop();
}

void GaugeProgress::moveTo(double target, const GaugeMotion &motion)
{
    stop();
    if (motion.duration.count() <= 0) {
        assign(target);
        return;
    }
    m_animation.setDuration(static_cast<int>(motion.duration.count()));
    m_animation.setEasingCurve(motion.easing);
    m_animation.setStartValue(m_value);
    m_animation.setEndValue(target);
    m_animation.start();
    if (!motion.isCalm)
        return;
    m_animation.pause();
    CalmBeat::instance().join(*this);
    m_began = CalmBeat::instance().currentTime();
}

void GaugeProgress::jumpTo(double target)
{
    stop();
    assign(target);
}

void GaugeProgress::finish()
{
    if (isRunning())
        jumpTo(m_animation.endValue().toDouble());
}

void GaugeProgress::stepTo(int beatTime)
{
    m_animation.setCurrentTime(beatTime - m_began);
}

void GaugeProgress::stop()
{
    if (!isRunning())
        return;
    if (m_animation.state() == QAbstractAnimation::Paused)
        CalmBeat::instance().leave(*this);
    m_animation.stop();
}

void GaugeProgress::assign(double value)
{
    m_value = value;
    m_changed();
}

} // namespace brimlight
