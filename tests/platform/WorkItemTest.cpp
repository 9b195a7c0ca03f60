#include "platform/WorkItem.h"

#include "fakes/ManualScheduler.h"

#include <gtest/gtest.h>

namespace brimlight::test {

using namespace std::chrono_literals;

TEST(WorkItem, IsPendingUntilItsBodyRuns)
{
    ManualScheduler scheduler;
    WorkItem item;
    bool pendingInBody = true;
    item.schedule(scheduler, 10ms, [&] { pendingInBody = item.isPending(); });
    EXPECT_TRUE(item.isPending());
    scheduler.advance(10ms);
    EXPECT_FALSE(pendingInBody);
    EXPECT_FALSE(item.isPending());
}

TEST(WorkItem, SchedulingAgainReplacesTheFirst)
{
    ManualScheduler scheduler;
    WorkItem item;
    QString ran;
    item.schedule(scheduler, 10ms, [&] { ran += QLatin1Char('a'); });
    item.schedule(scheduler, 20ms, [&] { ran += QLatin1Char('b'); });
    scheduler.advance(1s);
    EXPECT_EQ(ran, QStringLiteral("b"));
}

TEST(WorkItem, CanScheduleItselfFromItsBody)
{
    ManualScheduler scheduler;
    WorkItem item;
    int runs = 0;
    std::function<void()> body = [&] {
        if (++runs < 3)
            item.schedule(scheduler, 10ms, body);
    };
    item.schedule(scheduler, 10ms, body);
    scheduler.advance(1s);
    EXPECT_EQ(runs, 3);
}

TEST(WorkItem, GoesWithItsOwner)
{
    ManualScheduler scheduler;
    {
        WorkItem item;
        item.schedule(scheduler, 10ms, [] { FAIL() << "the owner is gone"; });
    }
    scheduler.advance(1s);
    EXPECT_EQ(scheduler.pendingCount(), 0);
}

} // namespace brimlight::test
