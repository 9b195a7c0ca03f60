#include "sensors/Samplers.h"

#include "fixtures/machines.h"
#include "platform/linux/kernel/LinuxHostStatistics.h"
#include "platform/linux/kernel/SysfsPowerSources.h"
#include "platform/linux/process/QtScheduler.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>

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

} // namespace brimlight::test
