#include "sensors/SystemHistoryStore.h"

#include "fakes/FakeHostStatistics.h"
#include "fakes/ManualScheduler.h"

#include <gtest/gtest.h>

namespace brimlight::test {

using namespace std::chrono_literals;

constexpr uint64_t page = 4096;

class SystemHistoryStoreTest : public testing::Test
{
protected:
    SystemHistoryStoreTest()
    {
        statistics.ticks = CpuTicks{.user = 100, .idle = 900};
        statistics.pages = MemoryPages{.active = 500, .pageSize = page};
        statistics.physical = 1000 * page;
    }

    FakeHostStatistics statistics;
    void setActive(bool active)
    {
        store.setActive(active);
        scheduler.runPosted();
    }

    ManualScheduler scheduler;
    SystemSampler sampler{statistics, scheduler};
    SystemHistoryStore store{sampler, scheduler};
};

TEST_F(SystemHistoryStoreTest, StartsInactiveAndEmpty)
{
    EXPECT_FALSE(store.isActive());
    EXPECT_EQ(store.snapshot(), SystemSnapshot{});
    EXPECT_TRUE(store.cpuHistory().isEmpty());
    EXPECT_TRUE(store.memHistory().isEmpty());
    EXPECT_EQ(statistics.cpuReads, 0);
    EXPECT_EQ(scheduler.pendingCount(), 0);
}

TEST_F(SystemHistoryStoreTest, StartingSamplesAtOnceAndThenEveryTwoSeconds)
{
    setActive(true);
    EXPECT_EQ(store.snapshot(), (SystemSnapshot{.cpu = 0, .memUsed = 0.5}));
    EXPECT_EQ(store.memHistory().size(), 1);
    EXPECT_EQ(scheduler.lastPeriod, 2s);
    scheduler.advance(1999ms);
    EXPECT_EQ(store.memHistory().size(), 1);
    statistics.ticks = CpuTicks{.user = 140, .idle = 960};
    scheduler.advance(1ms);
    EXPECT_DOUBLE_EQ(store.snapshot().cpu, 0.4);
    EXPECT_EQ(store.cpuHistory(), (QList<double>{0, 0.4}));
    EXPECT_EQ(store.memHistory(), (QList<double>{0.5, 0.5}));
}

TEST_F(SystemHistoryStoreTest, ActivatingTwiceTakesOneSample)
{
    setActive(true);
    setActive(true);
    EXPECT_EQ(statistics.cpuReads, 1);
    EXPECT_EQ(store.cpuHistory().size(), 1);
    EXPECT_EQ(scheduler.repeatingCount(), 1);
}

TEST_F(SystemHistoryStoreTest, APauseKeepsTheHistoryAndLeavesNoGap)
{
    setActive(true);
    scheduler.advance(4s);
    setActive(false);
    EXPECT_EQ(scheduler.pendingCount(), 0);
    scheduler.advance(1h);
    EXPECT_EQ(store.memHistory().size(), 3);
    setActive(true);
    EXPECT_EQ(store.memHistory().size(), 4);
}

TEST_F(SystemHistoryStoreTest, TheLoadOfAPauseIsNoLoadOfNow)
{
    setActive(true);
    statistics.ticks = CpuTicks{.user = 190, .idle = 910};
    statistics.seconds = 2;
    scheduler.advance(2s);
    EXPECT_DOUBLE_EQ(store.snapshot().cpu, 0.9);
    setActive(false);
    statistics.ticks = CpuTicks{.user = 200, .idle = 100'000};
    statistics.seconds = 3600;
    setActive(true);
    EXPECT_DOUBLE_EQ(store.snapshot().cpu, 0.9) << "not the hour's mean";
    statistics.ticks = CpuTicks{.user = 250, .idle = 100'050};
    statistics.seconds = 3602;
    scheduler.advance(2s);
    EXPECT_DOUBLE_EQ(store.snapshot().cpu, 0.5);
}

TEST_F(SystemHistoryStoreTest, ASourceThatHangsIsAskedOnceAndGoesOn)
{
    scheduler.holdAside();
    setActive(true);
    scheduler.advance(1min);
    EXPECT_EQ(scheduler.heldCount(), 1);
    EXPECT_TRUE(store.memHistory().isEmpty());
    scheduler.letAsideGo();
    EXPECT_EQ(store.memHistory().size(), 1);
    scheduler.advance(2s);
    EXPECT_EQ(store.memHistory().size(), 2);
}

TEST_F(SystemHistoryStoreTest, SixtyValuesAreTwoMinutes)
{
    setActive(true);
    scheduler.advance(118s);
    EXPECT_EQ(store.cpuHistory().size(), 60);
    scheduler.advance(10min);
    EXPECT_EQ(store.cpuHistory().size(), 60);
    EXPECT_EQ(store.memHistory().size(), 60);
}

TEST_F(SystemHistoryStoreTest, ASampleNotifiesSnapshotThenLoadThenMemory)
{
    QStringList order;
    const auto note = [&](const char *what) {
        order.append(QStringLiteral("%1 %2 %3")
                         .arg(QLatin1String(what))
                         .arg(store.cpuHistory().size())
                         .arg(store.memHistory().size()));
    };
    QObject::connect(&store, &SystemHistoryStore::snapshotChanged, [&] { note("snapshot"); });
    QObject::connect(&store, &SystemHistoryStore::cpuHistoryChanged, [&] { note("cpu"); });
    QObject::connect(&store, &SystemHistoryStore::memHistoryChanged, [&] { note("mem"); });
    setActive(true);
    EXPECT_EQ(order, (QStringList{QStringLiteral("snapshot 0 0"), QStringLiteral("cpu 1 0"),
                                  QStringLiteral("mem 1 1")}));
}

TEST_F(SystemHistoryStoreTest, AnEqualSampleNotifiesToo)
{
    int notified = 0;
    QObject::connect(&store, &SystemHistoryStore::snapshotChanged, [&] { ++notified; });
    setActive(true);
    scheduler.advance(4s);
    EXPECT_EQ(notified, 3);
}

TEST_F(SystemHistoryStoreTest, ADestroyedStoreTakesItsTimerAlong)
{
    {
        SystemHistoryStore shortLived(sampler, scheduler);
        shortLived.setActive(true);
        scheduler.runPosted();
    }
    EXPECT_EQ(scheduler.pendingCount(), 0);
    scheduler.advance(10s);
    EXPECT_EQ(statistics.cpuReads, 1);
}

} // namespace brimlight::test
