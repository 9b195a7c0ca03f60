#include "core/TickCoordinator.h"

#include "core/TraceLog.h"
#include "fakes/Fakes.h"

#include <gtest/gtest.h>

namespace brimlight::test {

using namespace std::chrono_literals;

class Tick : public testing::Test
{
protected:
    Tick()
    {
        QObject::connect(&ticker, &TickCoordinator::nowChanged, [this] { ++ticks; });
    }

    ManualScheduler scheduler;
    RecordingLog recorded;
    TraceLog log{recorded, {}};
    TickCoordinator ticker{scheduler, log};
    int ticks = 0;
};

TEST_F(Tick, StartsInactiveWithTheMomentOfCreation)
{
    EXPECT_FALSE(ticker.isActive());
    EXPECT_EQ(ticker.now(), scheduler.now());
    EXPECT_EQ(ticker.interval(), 1s);
    EXPECT_EQ(scheduler.pendingCount(), 0);
}

TEST_F(Tick, ActivatingTwiceStartsOneTimerAndWritesOneLine)
{
    ticker.setActive(true);
    ticker.setActive(true);
    EXPECT_EQ(scheduler.repeatingCount(), 1);
    EXPECT_EQ(recorded.messages(), QStringList{QStringLiteral("Ticker active=true interval=1.0")});
}

TEST_F(Tick, StartingSetsNowAtOnce)
{
    scheduler.advance(90s);
    ticker.setActive(true);
    EXPECT_EQ(ticker.now(), scheduler.now());
    EXPECT_EQ(ticks, 1);
}

TEST_F(Tick, AdvancesAtItsPeriodWithAFifthAsTolerance)
{
    ticker.setInterval(500ms);
    ticker.setActive(true);
    scheduler.advance(2s);
    EXPECT_EQ(ticks, 5);
    EXPECT_EQ(ticker.now(), scheduler.now());
    EXPECT_EQ(scheduler.lastPeriod, 500ms);
    EXPECT_EQ(scheduler.lastTolerance, 100ms);
    EXPECT_EQ(recorded.messages(), QStringList{QStringLiteral("Ticker active=true interval=0.5")});
}

TEST_F(Tick, ChangingTheRateWhileCollapsedCreatesNoTimer)
{
    ticker.setInterval(5s);
    EXPECT_EQ(scheduler.pendingCount(), 0);
    EXPECT_EQ(ticks, 0);
    ticker.setActive(true);
    EXPECT_EQ(scheduler.lastPeriod, 5s);
}

TEST_F(Tick, ChangingTheRateWhileExpandedReplacesTheTimerAndSetsNow)
{
    ticker.setActive(true);
    scheduler.advance(300ms);
    ticker.setInterval(2s);
    EXPECT_EQ(ticks, 2);
    EXPECT_EQ(ticker.now(), scheduler.now());
    EXPECT_EQ(scheduler.repeatingCount(), 1);
    scheduler.advance(1999ms);
    EXPECT_EQ(ticks, 2);
    scheduler.advance(1ms);
    EXPECT_EQ(ticks, 3);
}

TEST_F(Tick, TheSameRateIsNoChange)
{
    ticker.setActive(true);
    ticker.setInterval(1s);
    EXPECT_EQ(ticks, 1);
}

TEST_F(Tick, NowStandsStillBetweenCollapseAndTheNextExpansion)
{
    ticker.setActive(true);
    scheduler.advance(3s);
    ticker.setActive(false);
    const QDateTime last = ticker.now();
    scheduler.advance(1h);
    EXPECT_EQ(ticker.now(), last);
    EXPECT_EQ(scheduler.pendingCount(), 0);
    EXPECT_EQ(recorded.messages().last(), QStringLiteral("Ticker active=false interval=1.0"));
}

} // namespace brimlight::test
