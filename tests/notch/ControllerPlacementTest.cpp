#include "notch/ControllerFixture.h"

namespace brimlight::test {

class Placing : public ControllerTest
{
protected:
    static Screen notched(double x, const QString &name)
    {
        const Rect frame{x, 0, 1512, 982};
        return {.localizedName = name,
                .frame = frame,
                .visibleFrame = frame,
                .safeAreaTop = 38,
                .auxiliaryTopLeftArea = Rect{x, 944, 660, 38},
                .auxiliaryTopRightArea = Rect{x + 852, 944, 660, 38}};
    }
};

TEST_F(Placing, ANotchedScreenIsPreferredWhereverItStands)
{
    screens.setPlain(1440, 900);
    screens.list.push_back(notched(1440, QStringLiteral("Built-in")));
    start();
    EXPECT_EQ(lines().first(), QStringLiteral("Repositioned on \"Built-in\": hasNotch=true collapsed=192x38 "
                                              "frame=(2100,944 192x38)"));
    EXPECT_TRUE(model().geometry().hasNotch);
    EXPECT_TRUE(surface().sensor.isHousing);
}

TEST_F(Placing, AScreenChangeMovesTheCollapsedPanelOneTurnLater)
{
    start();
    screens.setPlain(1920, 1080);
    screens.notify();
    EXPECT_EQ(panel().frame(), (Rect{620, 868, 200, 32}));
    scheduler.runPosted();
    EXPECT_EQ(panel().frame(), (Rect{860, 1048, 200, 32}));
    EXPECT_EQ(surface().sensor.strip, panel().frame());
    EXPECT_FALSE(surface().sensor.isHousing);
    EXPECT_EQ(surface().extent(), panel().frame());
}

TEST_F(Placing, AScreenChangeMovesTheOpenPanelAtOnce)
{
    start();
    controller->open();
    panel().finishAnimation();
    screens.setPlain(1920, 1080);
    screens.notify();
    scheduler.runPosted();
    EXPECT_FALSE(panel().isAnimating());
    EXPECT_EQ(panel().frame().maxY(), 1080);
    EXPECT_EQ(panel().frame().midX(), 960);
    ASSERT_EQ(surface().outlines.size(), 1u);
    EXPECT_EQ(surface().outlines.front().frame, panel().frame());
    controller->requestClose();
    panel().finishAnimation();
    EXPECT_EQ(surface().sensor.strip, (Rect{860, 1048, 200, 32}));
}

TEST_F(Placing, AScreenListThatEmptiesAndFillsAgainIsSurvived)
{
    start();
    controller->open();
    const Rect before = panel().frame();
    screens.setNone();
    screens.notify();
    lines();
    scheduler.runPosted();
    EXPECT_EQ(lines(), QStringList{QStringLiteral("No screen available — skipping placement")});
    EXPECT_EQ(panel().frame(), before);
    controller->requestClose();
    EXPECT_FALSE(isExpanded()) << "the last known screen serves";
    screens.setPlain(1024, 768);
    screens.notify();
    scheduler.runPosted();
    EXPECT_EQ(panel().frame(), (Rect{412, 736, 200, 32}));
}

TEST_F(Placing, StartingWithoutAScreenIsMadeUpForWhenOneComes)
{
    screens.setNone();
    start();
    enter();
    scheduler.advance(600ms);
    screens.setPlain(1440, 900);
    screens.notify();
    scheduler.runPosted();
    EXPECT_EQ(panel().frame().midX(), 720);
    openByHover();
    EXPECT_EQ(panel().frame().width, 536);
}

TEST_F(Placing, ExpandedStateWithoutAScreenTakesItsFrameWhenOneComes)
{
    screens.setNone();
    start();
    controller->setExpanded(true);
    screens.setPlain(1440, 900);
    screens.notify();
    scheduler.runPosted();
    EXPECT_EQ(panel().frame(), (Rect{452, 542, 536, 358}));
}

TEST_F(Placing, FinishingTheWalkThroughResizesTheOpenPanel)
{
    defaults.values.clear();
    start();
    controller->open();
    EXPECT_EQ(panel().frame().height, 300);
    model().setOnboardingCompleted(true);
    scheduler.runPosted();
    EXPECT_EQ(panel().frame().height, 358);
}

TEST_F(Placing, LeavingTheSettingsResizesTheOpenPanel)
{
    start();
    controller->openSettings();
    scheduler.runPosted();
    model().setShowSettings(false);
    scheduler.runPosted();
    EXPECT_EQ(panel().frame().height, 358);
    EXPECT_TRUE(model().isPinned()) << "the pin that opening them set stays";
}

TEST_F(Placing, ACollapsedPanelIsNotResizedByContent)
{
    start();
    const Rect before = panel().frame();
    model().setShowSettings(true);
    model().setHudType(HUDType::volume(0.5));
    scheduler.runPosted();
    EXPECT_EQ(panel().frame(), before);
}

} // namespace brimlight::test
