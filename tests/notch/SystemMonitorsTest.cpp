#include "fakes/FakeAudioServer.h"
#include "fakes/FakeDisplayBrightness.h"
#include "fakes/ManualScheduler.h"
#include "notch/SystemBrightnessMonitor.h"
#include "notch/SystemVolumeMonitor.h"

#include <gtest/gtest.h>

namespace brimlight::test {

using namespace std::chrono_literals;

class VolumeMonitor : public testing::Test
{
protected:
    VolumeMonitor()
    {
        QObject::connect(&monitor, &SystemVolumeMonitor::volumeChanged, [this] { ++changes; });
        monitor.setupListener();
    }

    FakeAudioServer server;
    ManualScheduler scheduler;
    SystemVolumeMonitor monitor{server, scheduler};
    int changes = 0;
};

TEST_F(VolumeMonitor, IsAtZeroWithoutAServer)
{
    EXPECT_EQ(monitor.volume(), 0);
    EXPECT_EQ(changes, 0);
}

TEST_F(VolumeMonitor, TakesWhatItIsFoundAtSilently)
{
    server.appear({.volume = 0.4});
    EXPECT_EQ(monitor.volume(), 0.4F);
    EXPECT_EQ(changes, 0);
}

TEST_F(VolumeMonitor, ARestartedServerIsTakenSilentlyToo)
{
    server.appear({.volume = 0.4});
    server.setVolume(0.5);
    server.appear({.volume = 0.9});
    EXPECT_EQ(monitor.volume(), 0.9F);
    EXPECT_EQ(changes, 1);
}

TEST_F(VolumeMonitor, AnotherDefaultIsTakenSilentlyAndItsNextChangeNotifies)
{
    server.appear({.volume = 0.4});
    server.appear({.volume = 0.9});
    EXPECT_EQ(monitor.volume(), 0.9F);
    EXPECT_EQ(changes, 0);
    scheduler.advance(SystemVolumeMonitor::settling);
    server.setVolume(0.8);
    EXPECT_EQ(monitor.volume(), 0.8F);
    EXPECT_EQ(changes, 1);
}

TEST_F(VolumeMonitor, WhatTheServerRestoresRightAfterASwitchBelongsToIt)
{
    server.appear({.volume = 0.4});
    server.appear({.volume = 1});
    scheduler.advance(SystemVolumeMonitor::settling - 1ms);
    server.setVolume(0.3);
    EXPECT_EQ(monitor.volume(), 0.3F);
    EXPECT_EQ(changes, 0);
    scheduler.advance(1ms);
    server.setVolume(0.35);
    EXPECT_EQ(changes, 1);
}

TEST_F(VolumeMonitor, IsSilentlyAtZeroOnceTheLastDeviceIsGone)
{
    server.appear({.volume = 0.4});
    server.vanish();
    EXPECT_EQ(monitor.volume(), 0);
    server.appear({.volume = 0.4});
    EXPECT_EQ(monitor.volume(), 0.4F);
    EXPECT_EQ(changes, 0);
}

TEST_F(VolumeMonitor, EveryChangeNotifiesAnEqualValueToo)
{
    server.appear({.volume = 0.4});
    server.setVolume(0.5);
    server.setVolume(0.5);
    EXPECT_EQ(changes, 2);
}

TEST_F(VolumeMonitor, AMutedDeviceReadsAsZero)
{
    server.appear({.volume = 0.4});
    server.change({.volume = 0.4, .isMuted = true});
    EXPECT_EQ(monitor.volume(), 0);
    server.change({.volume = 0.4, .isMuted = false});
    EXPECT_EQ(monitor.volume(), 0.4F);
    EXPECT_EQ(changes, 2);
}

TEST(VolumeMonitorEnd, StopsListening)
{
    FakeAudioServer server;
    {
        ManualScheduler scheduler;
        SystemVolumeMonitor monitor(server, scheduler);
        monitor.setupListener();
        EXPECT_EQ(server.watchCount(), 1u);
    }
    EXPECT_EQ(server.watchCount(), 0u);
}

class BrightnessMonitor : public testing::Test
{
protected:
    void start(std::optional<double> brightness)
    {
        display.brightness = brightness;
        monitor.emplace(display, scheduler);
        QObject::connect(&*monitor, &SystemBrightnessMonitor::brightnessChanged, [this] { ++changes; });
    }
    void becomes(std::optional<double> brightness)
    {
        display.brightness = brightness;
        scheduler.advance(500ms);
    }

    FakeDisplayBrightness display;
    ManualScheduler scheduler;
    std::optional<SystemBrightnessMonitor> monitor;
    int changes = 0;
};

TEST_F(BrightnessMonitor, ReadsAtOnceAndThenEveryHalfSecond)
{
    start(0.3);
    EXPECT_EQ(monitor->brightness(), 0.3);
    EXPECT_EQ(display.reads, 1);
    scheduler.advance(499ms);
    EXPECT_EQ(display.reads, 1);
    scheduler.advance(1ms);
    EXPECT_EQ(display.reads, 2);
    scheduler.advance(5s);
    EXPECT_EQ(display.reads, 12);
    EXPECT_EQ(changes, 0);
}

TEST_F(BrightnessMonitor, AChangeOfExactlyOneHundredthIsNone)
{
    for (const auto &[before, now] : {std::pair{0.5, 0.51}, {0.5, 0.49}, {0.01, 0.02}, {1.0, 0.99}}) {
        start(before);
        becomes(now);
        EXPECT_EQ(monitor->brightness(), before);
        EXPECT_EQ(changes, 0) << before << " to " << now;
    }
}

TEST_F(BrightnessMonitor, AMoreDistantValueIsAChange)
{
    start(0.5);
    becomes(0.5101);
    EXPECT_EQ(monitor->brightness(), 0.5101);
    EXPECT_EQ(changes, 1);
}

TEST_F(BrightnessMonitor, ASlowDriftCountsOnceItIsFarFromTheStoredValue)
{
    start(0.5);
    becomes(0.504);
    becomes(0.508);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(monitor->brightness(), 0.5);
    becomes(0.512);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(monitor->brightness(), 0.512);
    becomes(0.516);
    EXPECT_EQ(changes, 1);
}

TEST_F(BrightnessMonitor, WhatCannotBeReadIsFullBrightness)
{
    start(std::nullopt);
    EXPECT_EQ(monitor->brightness(), 1);
    scheduler.advance(10s);
    EXPECT_EQ(changes, 0);
}

} // namespace brimlight::test
