#pragma once

#include <QAnimationDriver>
#include <QCoreApplication>
#include <QVariantAnimation>

#include <chrono>

namespace brimlight::test {

/// Animations move when the test says so.
class HandDriver : public QAnimationDriver
{
public:
    HandDriver()
    {
        install();
        // Whenever the first animation starts, Qt adds what the clock on the wall shows. This one takes it
        // all.
        m_heartbeat.setStartValue(0);
        m_heartbeat.setEndValue(1);
        m_heartbeat.setDuration(1000);
        m_heartbeat.setLoopCount(-1);
        m_heartbeat.start();
        advanceBy(std::chrono::milliseconds(0));
    }
    ~HandDriver() override
    {
        m_heartbeat.stop();
        uninstall();
    }

    qint64 elapsed() const override { return m_now; }
    void advanceBy(std::chrono::milliseconds time)
    {
        // Animations that were started in this event begin in the next one.
        QCoreApplication::processEvents();
        m_now += time.count();
        advanceAnimation();
        QCoreApplication::processEvents();
    }

private:
    qint64 m_now = 0;
    QVariantAnimation m_heartbeat;
};

} // namespace brimlight::test
