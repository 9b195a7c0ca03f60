#include "sensors/Sampler.h"

#include "fixtures/machines.h"
#include "platform/linux/kernel/LinuxHostStatistics.h"
#include "platform/linux/kernel/SysfsPowerSources.h"
#include "platform/linux/process/QtScheduler.h"
#include "sensors/Samplers.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QThread>

#include <future>
#include <memory>
#include <thread>

#include <fcntl.h>
#include <unistd.h>

namespace brimlight::test {
namespace {

/// Turns the loop until this holds.
template<typename Condition>
void waitUntil(Condition holds)
{
    while (!holds()) {
        QCoreApplication::processEvents();
        std::this_thread::yield();
    }
}

/// The end of a pipe that somebody has begun to read, which hangs until this goes.
class HungPipe
{
public:
    explicit HungPipe(const QString &path)
    {
        waitUntil([&] {
            m_descriptor = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
            return m_descriptor >= 0;
        });
    }
    ~HungPipe() { ::close(m_descriptor); }
    HungPipe(const HungPipe &) = delete;
    HungPipe &operator=(const HungPipe &) = delete;

    void write(const QByteArray &content) const
    {
        EXPECT_EQ(::write(m_descriptor, content.constData(), content.size()), content.size());
    }

private:
    int m_descriptor = -1;
};

/// Puts a question and turns the loop until it has been answered.
void waitForAnswer(AnySampler &sampler)
{
    sampler.ask();
    waitUntil([&sampler] { return !sampler.isAsking(); });
}

} // namespace

TEST(Samplers, AFileOfTheKernelThatBlocksHoldsUpNeitherTheLoopNorOtherSources)
{
    const Machine machine(MachineKind::laptopIntel);
    const QString memory = machine.makeBlocking(QStringLiteral("proc/meminfo"));
    const QString battery = machine.makeBlocking(QStringLiteral("sys/class/power_supply/BAT0/capacity"));
    LinuxHostStatistics statistics(machine.proc(), machine.sys());
    SysfsPowerSources sources(machine.sys());
    QtScheduler scheduler;
    SystemSampler system(statistics, scheduler);
    PowerSampler power(sources, scheduler);
    DiskSampler disk(statistics, QStringLiteral("/"), scheduler);
    ThermalStateSampler state(statistics, scheduler);
    system.ask();
    power.ask();
    auto hungMemory = std::make_unique<HungPipe>(memory);
    auto hungBattery = std::make_unique<HungPipe>(battery);
    waitForAnswer(disk);
    waitForAnswer(state);
    waitForAnswer(disk);
    EXPECT_TRUE(system.isAsking());
    EXPECT_TRUE(power.isAsking());
    EXPECT_FALSE(system.latest());

    hungBattery->write("64\n");
    hungBattery.reset();
    waitUntil([&] { return !power.isAsking(); });
    EXPECT_EQ(power.latest()->source->currentCapacity, 64);
    EXPECT_TRUE(system.isAsking());

    // It would be read again at once, for its sum.
    machine.remove(QStringLiteral("proc/meminfo"));
    hungMemory.reset();
    waitUntil([&] { return !system.isAsking(); });
    EXPECT_FALSE(system.latest()->pages);
    EXPECT_TRUE(system.latest()->ticks);
    waitUntil([&] { return scheduler.isAsideIdle(); });
}

TEST(Aside, WorkRunsElsewhereAndItsEndHere)
{
    QtScheduler scheduler;
    QObject context;
    QThread *worked = nullptr;
    QThread *ended = nullptr;
    scheduler.aside(
        context, [&worked] { worked = QThread::currentThread(); },
        [&ended] { ended = QThread::currentThread(); });
    EXPECT_EQ(ended, nullptr) << "not within the call";
    waitUntil([&ended] { return ended; });
    EXPECT_EQ(ended, QThread::currentThread());
    EXPECT_NE(worked, nullptr);
    EXPECT_NE(worked, ended);
}

TEST(Aside, WhatHangsLetsAllOthersPass)
{
    QtScheduler scheduler;
    QObject context;
    std::promise<void> gate;
    const std::shared_future<void> open = gate.get_future().share();
    constexpr int many = 20;
    int hung = 0;
    int passed = 0;
    for (int i = 0; i < many; ++i) {
        scheduler.aside(
            context, [open] { open.wait(); }, [&hung] { ++hung; });
        scheduler.aside(
            context, [] {}, [&passed] { ++passed; });
    }
    waitUntil([&passed] { return passed == many; });
    EXPECT_EQ(hung, 0);
    EXPECT_FALSE(scheduler.isAsideIdle());
    gate.set_value();
    waitUntil([&hung] { return hung == many; });
    EXPECT_TRUE(scheduler.isAsideIdle());
}

TEST(Aside, NothingEndsForAContextThatIsGone)
{
    QtScheduler scheduler;
    QObject stays;
    bool hasEnded = false;
    bool isOver = false;
    {
        QObject goes;
        scheduler.aside(
            goes, [] {}, [&hasEnded] { hasEnded = true; });
    }
    waitUntil([&] { return scheduler.isAsideIdle(); });
    scheduler.aside(
        stays, [] {}, [&isOver] { isOver = true; });
    waitUntil([&isOver] { return isOver; });
    EXPECT_FALSE(hasEnded);
}

TEST(Aside, TheSchedulerMayGoWhileWorkHangs)
{
    std::promise<void> gate;
    std::promise<void> left;
    const std::shared_future<void> open = gate.get_future().share();
    bool hasEnded = false;
    QObject context;
    {
        QtScheduler scheduler;
        scheduler.aside(
            context,
            [open, &left] {
                open.wait();
                left.set_value();
            },
            [&hasEnded] { hasEnded = true; });
    }
    gate.set_value();
    left.get_future().wait();
    QCoreApplication::processEvents();
    EXPECT_FALSE(hasEnded);
}

} // namespace brimlight::test
