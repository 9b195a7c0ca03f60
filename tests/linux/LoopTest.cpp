#include "platform/linux/process/PipeUnixSignals.h"
#include "platform/linux/process/QtScheduler.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <csignal>

namespace brimlight::test {

using namespace std::chrono_literals;

namespace {

/// Turns the real loop until the condition holds; false after two seconds.
bool waitFor(const std::function<bool()> &condition)
{
    QEventLoop loop;
    QTimer guard;
    bool timedOut = false;
    QObject::connect(&guard, &QTimer::timeout, [&] { timedOut = true; });
    guard.start(2s);
    while (!condition() && !timedOut)
        loop.processEvents(QEventLoop::WaitForMoreEvents);
    return condition();
}

} // namespace

TEST(QtScheduler, AfterIsNeverEarlyAndRunsOnce)
{
    QtScheduler scheduler;
    QElapsedTimer clock;
    clock.start();
    qint64 ranAt = -1;
    int runs = 0;
    const auto work = scheduler.after(40ms, [&] {
        ranAt = clock.elapsed();
        ++runs;
    });
    EXPECT_EQ(runs, 0);
    bool later = false;
    const auto marker = scheduler.after(120ms, [&] { later = true; });
    EXPECT_TRUE(waitFor([&] { return later; }));
    EXPECT_EQ(runs, 1);
    EXPECT_GE(ranAt, 40);
}

TEST(QtScheduler, DestroyingTheHandleCancels)
{
    QtScheduler scheduler;
    bool ran = false;
    scheduler.after(1ms, [&] { ran = true; }).reset();
    bool later = false;
    const auto marker = scheduler.after(20ms, [&] { later = true; });
    EXPECT_TRUE(waitFor([&] { return later; }));
    EXPECT_FALSE(ran);
}

TEST(QtScheduler, AHandleMayDestroyItselfInItsBody)
{
    QtScheduler scheduler;
    std::unique_ptr<Scheduled> handle;
    int runs = 0;
    handle = scheduler.every(5ms, 0ms, [&] {
        ++runs;
        handle.reset();
    });
    EXPECT_TRUE(waitFor([&] { return runs > 0; }));
    EXPECT_FALSE(handle);
}

TEST(QtScheduler, EveryRepeats)
{
    QtScheduler scheduler;
    int runs = 0;
    const auto handle = scheduler.every(5ms, 1ms, [&] { ++runs; });
    EXPECT_TRUE(waitFor([&] { return runs >= 3; }));
}

TEST(QtScheduler, PostRunsInALaterTurnAndNotForAGoneContext)
{
    QtScheduler scheduler;
    QObject context;
    auto gone = std::make_unique<QObject>();
    bool ran = false;
    scheduler.post(*gone, [] { FAIL() << "its context is gone"; });
    scheduler.post(context, [&] { ran = true; });
    gone.reset();
    EXPECT_FALSE(ran);
    EXPECT_TRUE(waitFor([&] { return ran; }));
}

TEST(UnixSignals, ArriveOnTheLoopNotInTheHandler)
{
    PipeUnixSignals unixSignals;
    int first = 0;
    int second = 0;
    ASSERT_TRUE(unixSignals.install(SIGUSR1, [&] { ++first; }));
    ASSERT_TRUE(unixSignals.install(SIGUSR2, [&] { ++second; }));
    raise(SIGUSR1);
    raise(SIGUSR2);
    raise(SIGUSR1);
    EXPECT_EQ(first + second, 0);
    EXPECT_TRUE(waitFor([&] { return first == 2 && second == 1; }));
}

TEST(UnixSignals, GetTheirDefaultEffectBack)
{
    {
        PipeUnixSignals unixSignals;
        unixSignals.install(SIGUSR1, [] {});
    }
    struct sigaction now = {};
    sigaction(SIGUSR1, nullptr, &now);
    EXPECT_EQ(now.sa_handler, SIG_DFL);
}

} // namespace brimlight::test
