#include "platform/linux/process/QtScheduler.h"

#include <QPointer>
#include <QTimer>

namespace brimlight {
namespace {

class TimerScheduled : public Scheduled
{
public:
    TimerScheduled(std::chrono::milliseconds wait, Qt::TimerType type, bool once, std::function<void()> body)
    {
        m_timer.setTimerType(type);
        m_timer.setSingleShot(once);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [body = std::move(body)] {
            // The body may destroy this handle, and with it the closure that is running.
            const auto run = body;
            run();
        });
        m_timer.start(wait);
    }

private:
    QTimer m_timer;
};

} // namespace

QDateTime QtScheduler::now() const
{
    return QDateTime::currentDateTime();
}

void QtScheduler::post(QObject &context, std::function<void()> body)
{
    QMetaObject::invokeMethod(&context, std::move(body), Qt::QueuedConnection);
}

std::unique_ptr<Scheduled> QtScheduler::after(std::chrono::milliseconds delay, std::function<void()> body)
{
    // Coarse timers may fire early, which a delay must not.
    return std::make_unique<TimerScheduled>(delay, Qt::PreciseTimer, true, std::move(body));
}

std::unique_ptr<Scheduled> QtScheduler::every(std::chrono::milliseconds period,
                                              std::chrono::milliseconds tolerance, std::function<void()> body)
{
    // A coarse timer moves by up to a twentieth of its period to meet others.
    const Qt::TimerType type = tolerance >= period / 20 ? Qt::CoarseTimer : Qt::PreciseTimer;
    return std::make_unique<TimerScheduled>(period, type, false, std::move(body));
}

void QtScheduler::aside(QObject &context, std::function<void()> work, std::function<void()> done)
{
    m_threads.run(std::move(work), [guard = QPointer(&context), done = std::move(done)] {
        if (guard)
            done();
    });
}

} // namespace brimlight
