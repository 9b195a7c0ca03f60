#include "sensors/NetworkReader.h"

#include "fakes/FakeHostStatistics.h"

#include <gtest/gtest.h>

#include <limits>

namespace brimlight::test {

class NetworkReaderTest : public testing::Test
{
protected:
    NetworkReaderTest()
    {
        statistics.links = {link("eth0", 1000, 500)};
        statistics.seconds = 100;
    }

    static InterfaceCounters link(const char *name, uint64_t received, uint64_t sent)
    {
        return {.name = QLatin1String(name), .received = received, .sent = sent};
    }

    FakeHostStatistics statistics;
    std::optional<NetSnapshot> read() { return reader.read(networkCounters(statistics)); }

    NetworkReader reader;
};

TEST_F(NetworkReaderTest, TheFirstReadIsTheBaseline)
{
    EXPECT_FALSE(read());
}

TEST_F(NetworkReaderTest, ABaselineFromBeforeAPauseSaysNothing)
{
    read();
    statistics.links = {link("eth0", 1'000'000, 0)};
    statistics.seconds = 110.5;
    EXPECT_FALSE(read());
    statistics.links = {link("eth0", 1'000'300, 0)};
    statistics.seconds = 120.5;
    EXPECT_EQ(read()->down, 30) << "the slowest ticks are no pause";
}

TEST_F(NetworkReaderTest, UpIsSentAndDownIsReceivedPerSecond)
{
    read();
    statistics.links = {link("eth0", 1600, 700)};
    statistics.seconds = 102;
    EXPECT_EQ(read(), (NetSnapshot{.up = 100, .down = 300}));
}

TEST_F(NetworkReaderTest, CountersThatStandStillAreNoTraffic)
{
    read();
    statistics.seconds = 101;
    EXPECT_EQ(read(), NetSnapshot{});
}

TEST_F(NetworkReaderTest, AThirdReadWithinOneTickGivesZeroAndMovesTheBaseline)
{
    read();
    statistics.links = {link("eth0", 2000, 1500)};
    statistics.seconds = 101;
    EXPECT_EQ(read(), (NetSnapshot{.up = 1000, .down = 1000}));
    statistics.links = {link("eth0", 9000, 8500)};
    EXPECT_EQ(read(), NetSnapshot{});
    statistics.links = {link("eth0", 9010, 8520)};
    statistics.seconds = 102;
    EXPECT_EQ(read(), (NetSnapshot{.up = 20, .down = 10}));
}

TEST_F(NetworkReaderTest, AClockThatWentBackGivesZeroAndMovesTheBaseline)
{
    read();
    statistics.links = {link("eth0", 5000, 5000)};
    statistics.seconds = 50;
    EXPECT_EQ(read(), NetSnapshot{});
    statistics.links = {link("eth0", 5100, 5200)};
    statistics.seconds = 51;
    EXPECT_EQ(read(), (NetSnapshot{.up = 200, .down = 100}));
}

TEST_F(NetworkReaderTest, AllLinksCountButLoopback)
{
    statistics.links = {link("lo", 0, 0),   link("eth0", 0, 0),    link("wlan0", 0, 0),
                        link("tun0", 0, 0), link("docker0", 0, 0), link("lo1", 0, 0)};
    read();
    statistics.links = {
        link("lo", 1'000'000, 1'000'000), link("eth0", 1, 2),          link("wlan0", 10, 20),
        link("tun0", 100, 200),           link("docker0", 1000, 2000), link("lo1", 1'000'000, 0)};
    statistics.seconds = 101;
    EXPECT_EQ(read(), (NetSnapshot{.up = 2222, .down = 1111}));
}

TEST_F(NetworkReaderTest, CountersAreAsWideAsTheKernels)
{
    constexpr uint64_t most = std::numeric_limits<uint32_t>::max();
    statistics.links = {link("eth0", most - 10, 3 * most)};
    read();
    statistics.links = {link("eth0", most + 10, 3 * most + 5)};
    statistics.seconds = 101;
    EXPECT_EQ(read(), (NetSnapshot{.up = 5, .down = 20}));
}

TEST_F(NetworkReaderTest, ALinkThatVanishesTakesNothingAway)
{
    statistics.links = {link("eth0", 1000, 500), link("veth5f1c2ab", 90'000'000, 80'000'000)};
    read();
    statistics.links = {link("eth0", 1300, 600)};
    statistics.seconds = 101;
    EXPECT_EQ(read(), (NetSnapshot{.up = 100, .down = 300}));
    statistics.links = {link("eth0", 1300, 600), link("veth5f1c2ab", 40, 30)};
    statistics.seconds = 102;
    EXPECT_EQ(read(), (NetSnapshot{.up = 30, .down = 40})) << "a new one of an old name";
}

TEST_F(NetworkReaderTest, ALinkThatIsResetCountsFromZero)
{
    statistics.links = {link("eth0", 1000, 500), link("tun0", 100, 100)};
    read();
    statistics.links = {link("eth0", 10, 600), link("tun0", 120, 120)};
    statistics.seconds = 102;
    EXPECT_EQ(read(), (NetSnapshot{.up = 60, .down = 15}));
    statistics.links = {link("eth0", 30, 600), link("tun0", 120, 120)};
    statistics.seconds = 103;
    EXPECT_EQ(read(), (NetSnapshot{.up = 0, .down = 20}));
}

TEST_F(NetworkReaderTest, LinksThatCannotBeListedLeaveTheBaseline)
{
    read();
    statistics.canListLinks = false;
    statistics.seconds = 101;
    EXPECT_FALSE(read());
    statistics.canListLinks = true;
    statistics.links = {link("eth0", 1200, 500)};
    statistics.seconds = 102;
    EXPECT_EQ(read(), (NetSnapshot{.up = 0, .down = 100}));
}

TEST_F(NetworkReaderTest, WithoutInterfacesTheTotalsAreZero)
{
    statistics.links.clear();
    read();
    statistics.seconds = 101;
    EXPECT_EQ(read(), NetSnapshot{});
    statistics.links = {link("usb0", 70, 30)};
    statistics.seconds = 102;
    EXPECT_EQ(read(), (NetSnapshot{.up = 30, .down = 70}));
}

TEST_F(NetworkReaderTest, EachReaderHasItsOwnBaseline)
{
    read();
    statistics.links = {link("eth0", 2000, 500)};
    statistics.seconds = 101;
    NetworkReader second;
    EXPECT_FALSE(second.read(networkCounters(statistics)));
    EXPECT_EQ(read()->down, 1000);
}

} // namespace brimlight::test
