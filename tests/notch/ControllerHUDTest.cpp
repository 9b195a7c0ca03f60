#include "notch/ControllerFixture.h"

namespace brimlight::test {

class ControllerHUD : public ControllerTest
{
protected:
    ControllerHUD() { brightness.brightness = 0.5; }

    void start()
    {
        ControllerTest::start();
        audio.appear({.volume = 0.4});
        scheduler.runPosted();
    }
    void setVolume(double volume)
    {
        audio.setVolume(volume);
        scheduler.runPosted();
    }
    std::optional<HUDType> shown() { return model().hudType(); }
};

TEST_F(ControllerHUD, LaunchingShowsNothingHoweverTheVolumeStands)
{
    for (const AudioDeviceState &found :
         {AudioDeviceState{.volume = 0}, {.volume = 0.4}, {.volume = 1, .isMuted = true}}) {
        ControllerTest::start();
        EXPECT_FALSE(shown());
        audio.appear(found);
        scheduler.advance(5s);
        EXPECT_FALSE(shown());
    }
}

TEST_F(ControllerHUD, AServerThatComesBackShowsNothing)
{
    start();
    audio.appear({.volume = 0.9});
    scheduler.advance(1s);
    EXPECT_FALSE(shown());
}

TEST_F(ControllerHUD, AnotherDefaultShowsNothingAndItsNextChangeIsShown)
{
    start();
    audio.appear({.volume = 0.9});
    scheduler.advance(SystemVolumeMonitor::settling);
    EXPECT_FALSE(shown());
    setVolume(0.8);
    EXPECT_TRUE(shown());
}

TEST_F(ControllerHUD, AChangeIsShownForOneAndAHalfSeconds)
{
    start();
    setVolume(0.5);
    EXPECT_EQ(shown(), HUDType::volume(0.5));
    scheduler.advance(1499ms);
    EXPECT_EQ(shown(), HUDType::volume(0.5));
    scheduler.advance(1ms);
    EXPECT_FALSE(shown());
}

TEST_F(ControllerHUD, TheWorkIsDoneOneTurnLater)
{
    start();
    audio.setVolume(0.5);
    EXPECT_FALSE(shown());
    scheduler.runPosted();
    EXPECT_TRUE(shown());
}

TEST_F(ControllerHUD, TwoChangesOneSecondApartAreShownForTwoAndAHalfSeconds)
{
    start();
    setVolume(0.5);
    scheduler.advance(1s);
    setVolume(0.6);
    scheduler.advance(1499ms);
    EXPECT_EQ(shown(), HUDType::volume(static_cast<double>(0.6F)));
    scheduler.advance(1ms);
    EXPECT_FALSE(shown());
}

TEST_F(ControllerHUD, AnEqualValueShowsAgain)
{
    start();
    setVolume(0.5);
    scheduler.advance(1s);
    setVolume(0.5);
    scheduler.advance(1s);
    EXPECT_TRUE(shown());
}

TEST_F(ControllerHUD, AMutedDeviceShowsZero)
{
    start();
    audio.change({.volume = 0.4, .isMuted = true});
    scheduler.runPosted();
    EXPECT_EQ(shown(), HUDType::volume(0));
    EXPECT_EQ(notch->scene.hud()->symbol(), u"speaker.slash.fill");
}

TEST_F(ControllerHUD, BrightnessTakesThePlaceOfVolume)
{
    start();
    setVolume(0.5);
    brightness.brightness = 0.75;
    scheduler.advance(500ms);
    EXPECT_EQ(shown(), HUDType::brightness(0.75));
    scheduler.advance(1499ms);
    EXPECT_TRUE(shown());
    scheduler.advance(1ms);
    EXPECT_FALSE(shown());
}

TEST_F(ControllerHUD, ABrightnessChangeOfExactlyOneHundredthIsNotShown)
{
    start();
    brightness.brightness = 0.51;
    scheduler.advance(1s);
    EXPECT_FALSE(shown());
    brightness.brightness = 0.505;
    scheduler.advance(1s);
    EXPECT_FALSE(shown());
    brightness.brightness = 0.511;
    scheduler.advance(500ms);
    EXPECT_EQ(shown(), HUDType::brightness(0.511));
}

TEST_F(ControllerHUD, WithoutABacklightBrightnessIsNeverShown)
{
    brightness.brightness.reset();
    start();
    scheduler.advance(10s);
    EXPECT_FALSE(shown());
}

TEST_F(ControllerHUD, AnOpenPanelShowsNothingAndQueuesNothing)
{
    start();
    controller->open();
    setVolume(0.9);
    EXPECT_EQ(stores->volumeMonitor.volume(), 0.9F);
    EXPECT_FALSE(shown());
    controller->requestClose();
    scheduler.advance(5s);
    EXPECT_FALSE(shown());
}

TEST_F(ControllerHUD, OpeningHidesItAtOnceAndLetsItRunOut)
{
    start();
    setVolume(0.5);
    EXPECT_TRUE(notch->scene.hud()->isShown());
    controller->open();
    EXPECT_TRUE(shown());
    EXPECT_FALSE(notch->scene.hud()->isShown());
    controller->requestClose();
    EXPECT_TRUE(notch->scene.hud()->isShown());
    scheduler.advance(1500ms);
    EXPECT_FALSE(shown());
    EXPECT_FALSE(notch->scene.hud()->isShown());
}

TEST_F(ControllerHUD, TheFaceKeepsTheLastValueWhileItFades)
{
    start();
    setVolume(0.5);
    scheduler.advance(1500ms);
    EXPECT_FALSE(notch->scene.hud()->isShown());
    EXPECT_EQ(notch->scene.hud()->percent(), u"50%");
    EXPECT_EQ(notch->scene.hud()->symbol(), u"speaker.wave.2.fill");
}

TEST_F(ControllerHUD, TheLogicalFrameStaysWhileTheSurfaceGrows)
{
    start();
    const Rect strip = panel().frame();
    EXPECT_EQ(surface().extent(), strip);
    setVolume(0.5);
    EXPECT_EQ(panel().frame(), strip);
    EXPECT_EQ(surface().extent(), (Rect{620, 832, 200, 68}));
    scheduler.advance(1500ms);
    EXPECT_EQ(surface().extent(), strip) << "nobody has drawn it";
}

TEST_F(ControllerHUD, LeavesNothingBehindButThePolls)
{
    start();
    EXPECT_EQ(scheduler.repeatingCount(), 2) << "of the brightness and of Do Not Disturb";
    setVolume(0.5);
    scheduler.advance(2s);
    EXPECT_EQ(scheduler.pendingCount(), 2);
}

} // namespace brimlight::test
