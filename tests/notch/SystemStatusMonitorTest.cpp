#include "notch/SystemStatusMonitor.h"

#include "fakes/FakeAudioServer.h"
#include "fakes/ManualScheduler.h"
#include "fakes/SwitchFakes.h"

#include <gtest/gtest.h>

namespace brimlight::test {

using namespace std::chrono_literals;

namespace {

class SystemStatusMonitorTest : public testing::Test
{
protected:
    void find(bool muted) { audio.find(AudioDirection::input, {.volume = 1, .isMuted = muted}); }
    void change(bool muted) { audio.change(AudioDirection::input, {.volume = 1, .isMuted = muted}); }

    FakeAudioServer audio;
    FakeDoNotDisturb doNotDisturb;
    ManualScheduler scheduler;
};

} // namespace

TEST_F(SystemStatusMonitorTest, OneOfTwoPlacesIsEnoughForDoNotDisturb)
{
    const struct
    {
        bool inhibited;
        bool bannersHidden;
        bool isDND;
    } rows[] = {{false, false, false}, {true, false, true}, {false, true, true}, {true, true, true}};
    for (const auto &row : rows) {
        doNotDisturb.inhibited = row.inhibited;
        doNotDisturb.bannersHidden = row.bannersHidden;
        EXPECT_EQ(SystemStatusMonitor(audio, doNotDisturb, scheduler).isDND(), row.isDND)
            << row.inhibited << row.bannersHidden;
    }
}

TEST_F(SystemStatusMonitorTest, DoNotDisturbIsLookedAtEverySecond)
{
    SystemStatusMonitor monitor(audio, doNotDisturb, scheduler);
    int notified = 0;
    QObject::connect(&monitor, &SystemStatusMonitor::isDNDChanged, [&] { ++notified; });
    doNotDisturb.inhibited = true;
    scheduler.advance(999ms);
    EXPECT_FALSE(monitor.isDND());
    scheduler.advance(1ms);
    EXPECT_TRUE(monitor.isDND());
    EXPECT_EQ(scheduler.lastPeriod, 1s);
    doNotDisturb.inhibited = false;
    scheduler.advance(1s);
    EXPECT_FALSE(monitor.isDND());
    scheduler.advance(1s);
    EXPECT_EQ(notified, 3) << "an equal value is told as well";
}

TEST_F(SystemStatusMonitorTest, WithoutAnInputDeviceNothingIsMuted)
{
    SystemStatusMonitor monitor(audio, doNotDisturb, scheduler);
    int notified = 0;
    QObject::connect(&monitor, &SystemStatusMonitor::isMutedChanged, [&] { ++notified; });
    audio.find(AudioDirection::output, {.volume = 1, .isMuted = true});
    audio.change(AudioDirection::output, {.volume = 1, .isMuted = true});
    scheduler.advance(10s);
    EXPECT_FALSE(monitor.isMuted());
    EXPECT_EQ(notified, 0);
    ASSERT_EQ(audio.watches.size(), 1U) << "nothing but the input is followed";
    EXPECT_EQ(audio.watches.front()->direction, AudioDirection::input);
}

TEST_F(SystemStatusMonitorTest, FollowsTheMuteOfTheMicrophone)
{
    SystemStatusMonitor monitor(audio, doNotDisturb, scheduler);
    EXPECT_FALSE(monitor.isMuted());
    find(true);
    EXPECT_TRUE(monitor.isMuted()) << "as it is found";
    change(false);
    EXPECT_FALSE(monitor.isMuted());
    change(true);
    EXPECT_TRUE(monitor.isMuted());
}

TEST_F(SystemStatusMonitorTest, FollowsTheDefaultMicrophone)
{
    SystemStatusMonitor monitor(audio, doNotDisturb, scheduler);
    find(true);
    find(false);
    EXPECT_FALSE(monitor.isMuted()) << "another one has become the default";
    find(true);
    EXPECT_TRUE(monitor.isMuted());
    audio.lose(AudioDirection::input);
    EXPECT_FALSE(monitor.isMuted()) << "the last one is gone";
}

TEST_F(SystemStatusMonitorTest, LeavesNothingBehind)
{
    {
        SystemStatusMonitor monitor(audio, doNotDisturb, scheduler);
        EXPECT_EQ(scheduler.repeatingCount(), 1);
    }
    EXPECT_EQ(scheduler.pendingCount(), 0);
    EXPECT_TRUE(audio.watches.empty());
}

} // namespace brimlight::test
