#include "sensors/SystemReader.h"

#include "sensors/Samplers.h"

#include "fakes/FakeHostStatistics.h"
#include "platform/linux/kernel/LinuxHostStatistics.h"

#include <gtest/gtest.h>

#include <ctime>
#include <limits>

namespace brimlight::test {

constexpr uint64_t page = 4096;

class SystemReaderTest : public testing::Test
{
protected:
    SystemReaderTest()
    {
        statistics.ticks = CpuTicks{.user = 100, .system = 50, .idle = 800, .nice = 50};
        statistics.pages = MemoryPages{.active = 300, .wired = 200, .compressor = 100, .pageSize = page};
        statistics.physical = 1000 * page;
    }

    void spend(uint32_t busy, uint32_t idle)
    {
        statistics.ticks->user += busy;
        statistics.ticks->idle += idle;
    }

    FakeHostStatistics statistics;
    SystemReader reader;
};

TEST_F(SystemReaderTest, TheFirstReadHasNoLoadButMemory)
{
    EXPECT_EQ(reader.read(systemCounters(statistics)), (SystemSnapshot{.cpu = 0, .memUsed = 0.6}));
}

TEST_F(SystemReaderTest, TheSecondReadHasTheLoadInBetween)
{
    reader.read(systemCounters(statistics));
    spend(30, 70);
    EXPECT_DOUBLE_EQ(reader.read(systemCounters(statistics)).cpu, 0.3);
}

TEST_F(SystemReaderTest, EveryCounterButIdleIsLoad)
{
    reader.read(systemCounters(statistics));
    statistics.ticks->user += 1;
    statistics.ticks->system += 2;
    statistics.ticks->nice += 3;
    statistics.ticks->idle += 4;
    EXPECT_DOUBLE_EQ(reader.read(systemCounters(statistics)).cpu, 0.6);
}

TEST_F(SystemReaderTest, WithoutATickInBetweenTheLastLoadStaysAndIsAppended)
{
    reader.read(systemCounters(statistics));
    spend(25, 75);
    reader.read(systemCounters(statistics));
    EXPECT_DOUBLE_EQ(reader.read(systemCounters(statistics)).cpu, 0.25);
    EXPECT_EQ(reader.cpuHistory(), (QList<double>{0, 0.25, 0.25}));
}

TEST_F(SystemReaderTest, CountersThatCannotBeReadKeepTheLastValues)
{
    reader.read(systemCounters(statistics));
    spend(50, 50);
    const SystemSnapshot last = reader.read(systemCounters(statistics));
    statistics.ticks.reset();
    statistics.pages.reset();
    EXPECT_EQ(reader.read(systemCounters(statistics)), last);
    EXPECT_EQ(reader.cpuHistory().size(), 3);
    EXPECT_EQ(reader.memHistory(), (QList<double>{0.6, 0.6, 0.6}));
}

TEST_F(SystemReaderTest, AFailedReadDoesNotMoveTheBaseline)
{
    reader.read(systemCounters(statistics));
    const auto ticks = statistics.ticks;
    statistics.ticks.reset();
    reader.read(systemCounters(statistics));
    statistics.ticks = ticks;
    spend(20, 80);
    EXPECT_DOUBLE_EQ(reader.read(systemCounters(statistics)).cpu, 0.2);
}

TEST_F(SystemReaderTest, CountersAtZeroAreStillTheFirstSample)
{
    statistics.ticks = CpuTicks{};
    reader.read(systemCounters(statistics));
    spend(50, 50);
    EXPECT_EQ(reader.read(systemCounters(statistics)).cpu, 0);
    spend(50, 50);
    EXPECT_DOUBLE_EQ(reader.read(systemCounters(statistics)).cpu, 0.5);
}

TEST_F(SystemReaderTest, TheSumOfTheCountersDoesNotWrap)
{
    constexpr uint32_t most = std::numeric_limits<uint32_t>::max();
    statistics.ticks = CpuTicks{.user = most - 1000, .system = 0, .idle = most - 1000, .nice = most};
    reader.read(systemCounters(statistics));
    spend(100, 300);
    EXPECT_DOUBLE_EQ(reader.read(systemCounters(statistics)).cpu, 0.25);
}

TEST_F(SystemReaderTest, LoadStaysInItsRangeWhenACounterWrapsOrGoesBack)
{
    struct Row
    {
        CpuTicks from;
        CpuTicks to;
        double cpu;
    };
    constexpr uint32_t most = std::numeric_limits<uint32_t>::max();
    for (const Row &row : {
             // Idle was corrected downwards.
             Row{{.user = 100, .idle = 800}, {.user = 120, .idle = 797}, 1},
             // More idle time than time at all.
             Row{{.user = 100, .idle = 800}, {.user = 90, .idle = 900}, 0},
             Row{{.user = most - 9, .idle = 500}, {.user = 10, .idle = 580}, 1},
             Row{{.user = 500, .idle = most - 9}, {.user = 520, .idle = 70}, 0},
         }) {
        statistics.ticks = row.from;
        SystemReader fresh;
        fresh.read(systemCounters(statistics));
        statistics.ticks = row.to;
        EXPECT_NEAR(fresh.read(systemCounters(statistics)).cpu, row.cpu, 1e-6)
            << row.from.user << ' ' << row.from.idle;
        spend(10, 30);
        EXPECT_DOUBLE_EQ(fresh.read(systemCounters(statistics)).cpu, 0.25);
    }
}

TEST_F(SystemReaderTest, MoreMemoryInUseThanThereIsCountsAsAll)
{
    statistics.physical = 10 * page;
    EXPECT_EQ(reader.read(systemCounters(statistics)).memUsed, 1);
}

TEST_F(SystemReaderTest, UnknownPhysicalMemoryKeepsTheLastValue)
{
    statistics.physical = 0;
    EXPECT_EQ(reader.read(systemCounters(statistics)).memUsed, 0);
    statistics.physical = 6000 * page;
    EXPECT_DOUBLE_EQ(reader.read(systemCounters(statistics)).memUsed, 0.1);
    statistics.physical = 0;
    EXPECT_DOUBLE_EQ(reader.read(systemCounters(statistics)).memUsed, 0.1);
}

TEST_F(SystemReaderTest, TheSixtyFirstSampleDropsTheOldest)
{
    const auto sample = [&](int i) {
        statistics.pages->active = i;
        reader.read(systemCounters(statistics));
    };
    statistics.pages = MemoryPages{.pageSize = page};
    for (int i = 0; i < 60; ++i)
        sample(i);
    EXPECT_EQ(reader.memHistory().size(), 60);
    EXPECT_EQ(reader.memHistory().first(), 0);
    sample(60);
    EXPECT_EQ(reader.memHistory().size(), 60);
    EXPECT_EQ(reader.cpuHistory().size(), 60);
    EXPECT_DOUBLE_EQ(reader.memHistory().first(), 0.001);
    EXPECT_DOUBLE_EQ(reader.memHistory().last(), 0.060);
    for (int i = 0; i < 200; ++i)
        sample(i);
    EXPECT_EQ(reader.memHistory().size(), 60);
    EXPECT_EQ(reader.cpuHistory().size(), 60);
}

TEST_F(SystemReaderTest, EachReaderHasItsOwnBaseline)
{
    reader.read(systemCounters(statistics));
    spend(100, 0);
    SystemReader second;
    EXPECT_EQ(second.read(systemCounters(statistics)).cpu, 0);
    EXPECT_EQ(reader.read(systemCounters(statistics)).cpu, 1);
}

TEST(SystemReaderOnThisMachine, SeesLoadWhileItWorks)
{
    LinuxHostStatistics statistics;
    SystemReader reader;
    const SystemSnapshot first = reader.read(systemCounters(statistics));
    EXPECT_EQ(first.cpu, 0);
    EXPECT_GT(first.memUsed, 0);
    EXPECT_LT(first.memUsed, 1);
    // A tenth of a second of work, whatever else runs.
    const auto ticksOfWork = [] { return std::clock() * 10 / CLOCKS_PER_SEC; };
    const auto start = ticksOfWork();
    while (ticksOfWork() <= start + 1)
        continue;
    EXPECT_GT(reader.read(systemCounters(statistics)).cpu, 0);
}

} // namespace brimlight::test
