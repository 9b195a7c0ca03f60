#pragma once

#include "platform/Scheduler.h"
#include "platform/linux/process/AsideThreads.h"

namespace brimlight {

/// The Qt event loop of the thread it is used on.
class QtScheduler : public Scheduler
{
public:
    QDateTime now() const override;
    void post(QObject &context, std::function<void()> body) override;
    std::unique_ptr<Scheduled> after(std::chrono::milliseconds delay, std::function<void()> body) override;
    std::unique_ptr<Scheduled> every(std::chrono::milliseconds period, std::chrono::milliseconds tolerance,
                                     std::function<void()> body) override;
    void aside(QObject &context, std::function<void()> work, std::function<void()> done) override;
    /// Nothing that was put aside is under way.
    bool isAsideIdle() const { return m_threads.isIdle(); }

private:
    AsideThreads m_threads;
};

} // namespace brimlight
