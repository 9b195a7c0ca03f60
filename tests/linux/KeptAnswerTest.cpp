#include "platform/linux/process/KeptAnswer.h"

#include <gtest/gtest.h>

#include <future>
#include <thread>

namespace brimlight::test {

using namespace std::chrono_literals;

class KeptAnswerTest : public testing::Test
{
protected:
    static void waitForLate(const BoundedRead &reads)
    {
        const auto end = std::chrono::steady_clock::now() + 5s;
        while (reads.lateCount() > 0 && std::chrono::steady_clock::now() < end)
            std::this_thread::yield();
        ASSERT_EQ(reads.lateCount(), 0);
    }

    const QString key = QStringLiteral("key");
    KeptAnswer<std::optional<int>> kept;
};

TEST_F(KeptAnswerTest, IsWhatTheBodyReturns)
{
    BoundedRead reads(10s);
    EXPECT_EQ(kept.ask(reads, key, [] { return std::optional(7); }), 7);
    EXPECT_EQ(kept.ask(reads, key, [] { return std::optional(8); }), 8);
}

TEST_F(KeptAnswerTest, AFailureIsAnAnswerToo)
{
    BoundedRead reads(10s);
    kept.ask(reads, key, [] { return std::optional(7); });
    EXPECT_EQ(kept.ask(reads, key, [] { return std::optional<int>(); }), std::nullopt);
}

TEST_F(KeptAnswerTest, TheLastAnswerStandsWhileTheBodyHangsAndTheLateOneFollows)
{
    BoundedRead quick(10s);
    kept.ask(quick, key, [] { return std::optional(7); });

    std::promise<void> gate;
    BoundedRead reads(20ms, 1h);
    const auto hangs = [opened = gate.get_future().share()] {
        opened.wait();
        return std::optional(9);
    };
    EXPECT_EQ(kept.ask(reads, key, hangs), 7);
    EXPECT_EQ(kept.ask(reads, key, hangs), 7);
    EXPECT_EQ(reads.lateCount(), 1);
    gate.set_value();
    waitForLate(reads);
    // Not asked again during the rest: it is what came late.
    EXPECT_EQ(kept.ask(reads, key, [] { return std::optional(10); }), 9);
}

TEST_F(KeptAnswerTest, NothingBeforeTheFirstAnswer)
{
    std::promise<void> gate;
    BoundedRead reads(20ms);
    const auto hangs = [opened = gate.get_future().share()] {
        opened.wait();
        return std::optional(9);
    };
    EXPECT_EQ(kept.ask(reads, key, hangs), std::nullopt);
    gate.set_value();
}

TEST_F(KeptAnswerTest, ABodyMayOutliveIt)
{
    std::promise<void> gate;
    const auto returned = std::make_shared<std::promise<void>>();
    {
        BoundedRead reads(20ms);
        KeptAnswer<int> shortLived;
        shortLived.ask(reads, key, [opened = gate.get_future().share(), returned] {
            opened.wait();
            returned->set_value();
            return 1;
        });
    }
    gate.set_value();
    EXPECT_EQ(returned->get_future().wait_for(10s), std::future_status::ready);
}

} // namespace brimlight::test
