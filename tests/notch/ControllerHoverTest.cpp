#include "notch/ControllerFixture.h"

namespace brimlight::test {

class Hover : public ControllerTest
{
};

TEST_F(Hover, ZeroDelayExpandsInTheTurnOfTheEntryWithoutALookAtThePointer)
{
    defaults.values.insert(QStringLiteral("brimlight.hoverDelay"), 0.0);
    start();
    enter(farAway);
    EXPECT_TRUE(isExpanded());
}

TEST_F(Hover, NegativeDelayActsAsZero)
{
    defaults.values.insert(QStringLiteral("brimlight.hoverDelay"), -3.0);
    start();
    enter();
    EXPECT_TRUE(isExpanded());
}

TEST_F(Hover, RestingForTheDelayExpands)
{
    start();
    enter();
    scheduler.advance(499ms);
    EXPECT_FALSE(isExpanded());
    scheduler.advance(1ms);
    EXPECT_TRUE(isExpanded());
    EXPECT_FALSE(model().isPinned());
    EXPECT_FALSE(controller->isExpandPending());
}

TEST_F(Hover, DelayIsReadAtEachEntry)
{
    start();
    stores->appSettings.setHoverDelay(1.5);
    enter();
    scheduler.advance(1499ms);
    EXPECT_FALSE(isExpanded());
    scheduler.advance(1ms);
    EXPECT_TRUE(isExpanded());
}

TEST_F(Hover, AnAbsurdDelayIsAsGoodAsNever)
{
    defaults.values.insert(QStringLiteral("brimlight.hoverDelay"), 1e300);
    start();
    enter();
    scheduler.advance(1h);
    EXPECT_FALSE(isExpanded());
    EXPECT_TRUE(controller->isExpandPending());
}

TEST_F(Hover, GrazingForLessThanTheDelayDoesNotExpand)
{
    start();
    enter();
    scheduler.advance(300ms);
    leave();
    EXPECT_FALSE(controller->isExpandPending());
    scheduler.advance(2s);
    EXPECT_FALSE(isExpanded());
}

TEST_F(Hover, EnteringAgainRestartsTheDelay)
{
    start();
    enter();
    scheduler.advance(400ms);
    enter();
    scheduler.advance(400ms);
    EXPECT_FALSE(isExpanded());
    scheduler.advance(100ms);
    EXPECT_TRUE(isExpanded());
}

TEST_F(Hover, DelayElapsingWithThePointerGoneDoesNotExpand)
{
    start();
    enter();
    pointer.where = farAway;
    scheduler.advance(500ms);
    EXPECT_FALSE(isExpanded());
    EXPECT_FALSE(controller->isExpandPending());
}

TEST_F(Hover, FivePointsOutsideCountAsInsideSevenDoNot)
{
    start();
    openByHover();
    const Rect frame = panel().frame();
    move({frame.minX() - 5, frame.midX()});
    move({frame.midX(), frame.minY() - 5});
    EXPECT_FALSE(controller->isCollapsePending());
    move({frame.midX(), frame.minY() - 7});
    EXPECT_TRUE(controller->isCollapsePending());
}

TEST_F(Hover, LeavingCollapsesAfterTheDelay)
{
    start();
    openByHover();
    leave();
    EXPECT_TRUE(controller->isCollapsePending());
    scheduler.advance(119ms);
    EXPECT_TRUE(isExpanded());
    scheduler.advance(1ms);
    EXPECT_FALSE(isExpanded());
}

TEST_F(Hover, ComingBackWithinTheDelayByMotionKeepsItOpen)
{
    start();
    openByHover();
    leave();
    scheduler.advance(100ms);
    move(inOpenPanel);
    EXPECT_FALSE(controller->isCollapsePending());
    scheduler.advance(5s);
    EXPECT_TRUE(isExpanded());
}

TEST_F(Hover, ComingBackWithinTheDelayByEntryKeepsItOpen)
{
    start();
    openByHover();
    leave();
    scheduler.advance(100ms);
    enter(inOpenPanel);
    EXPECT_FALSE(controller->isCollapsePending());
    scheduler.advance(5s);
    EXPECT_TRUE(isExpanded());
}

TEST_F(Hover, APendingCollapseIsNeitherRestartedNorExtended)
{
    start();
    openByHover();
    leave();
    scheduler.advance(100ms);
    move({90, 90});
    move({80, 80});
    scheduler.advance(20ms);
    EXPECT_FALSE(isExpanded());
}

TEST_F(Hover, CollapseTestsItsConditionsAgain)
{
    start();
    openByHover();
    leave();
    // Nobody evaluates in between: the body itself must see the pointer back.
    pointer.where = inOpenPanel;
    scheduler.advance(120ms);
    EXPECT_TRUE(isExpanded());
    EXPECT_FALSE(controller->isCollapsePending());
}

TEST_F(Hover, PinningWhileClosingKeepsItOpen)
{
    start();
    openByHover();
    leave();
    model().setPinned(true);
    scheduler.advance(5s);
    EXPECT_TRUE(isExpanded());
    EXPECT_FALSE(controller->isCollapsePending());
}

TEST_F(Hover, PollCatchesAPointerThatLeftWithoutAnEvent)
{
    start();
    openByHover();
    pointer.where = farAway;
    scheduler.advance(349ms);
    EXPECT_TRUE(isExpanded());
    scheduler.advance(1ms + 120ms);
    EXPECT_FALSE(isExpanded());
}

TEST_F(Hover, ARefusedGlobalMonitorLeavesPollAndLocalMonitor)
{
    pointer.refusesGlobal = true;
    start();
    openByHover();
    EXPECT_EQ(pointer.local.size(), 1u);
    EXPECT_TRUE(pointer.global.empty());
    pointer.where = farAway;
    scheduler.advance(350ms + 120ms);
    EXPECT_FALSE(isExpanded());
}

TEST_F(Hover, AnUnknownPointerPositionCountsAsOutside)
{
    start();
    openByHover();
    pointer.where.reset();
    surface().events.exited();
    scheduler.advance(120ms);
    EXPECT_FALSE(isExpanded());
}

TEST_F(Hover, MonitorsAndPollExistOnlyWhileExpanded)
{
    start();
    EXPECT_TRUE(pointer.local.empty());
    EXPECT_TRUE(pointer.global.empty());
    // The first reading of the temperature.
    scheduler.advance(1s);
    EXPECT_EQ(scheduler.pendingCount(), 2) << "Do Not Disturb and the brightness are looked at always";
    openByHover();
    EXPECT_EQ(pointer.local.size(), 1u);
    EXPECT_EQ(pointer.global.size(), 1u);
    EXPECT_EQ(scheduler.repeatingCount(), 5)
        << "those two, the pointer, the tick and the history of the load";
    leave();
    scheduler.advance(120ms);
    EXPECT_TRUE(pointer.local.empty());
    EXPECT_TRUE(pointer.global.empty());
    EXPECT_EQ(scheduler.pendingCount(), 2);
}

TEST_F(Hover, AThousandMotionsInOneTurnAreOneEvaluation)
{
    start();
    openByHover();
    pointer.where = farAway;
    for (int i = 0; i < 1000; ++i)
        FakePointer::send(pointer.global);
    EXPECT_FALSE(controller->isCollapsePending()) << "never inside of the monitor's own callback";
    scheduler.runPosted();
    EXPECT_TRUE(controller->isCollapsePending());
}

TEST_F(Hover, ADraggedWidgetHoldsThePanelOpenUntilTheReleaseReachesUs)
{
    start();
    openByHover();
    model().setDragging(true);
    pointer.pressed = true;
    move(farAway);
    scheduler.advance(2s);
    EXPECT_TRUE(isExpanded());
    FakePointer::send(pointer.releases);
    scheduler.runPosted();
    EXPECT_FALSE(model().isDragging());
    scheduler.advance(119ms);
    EXPECT_TRUE(isExpanded());
    scheduler.advance(1ms);
    EXPECT_FALSE(isExpanded());
}

TEST_F(Hover, ADragThatEndsOutOfSightIsSeenByThePoll)
{
    start();
    openByHover();
    model().setDragging(true);
    pointer.pressed = true;
    pointer.where = farAway;
    scheduler.advance(2s);
    EXPECT_TRUE(isExpanded());
    pointer.pressed = false;
    scheduler.advance(350ms);
    EXPECT_FALSE(model().isDragging());
    scheduler.advance(120ms);
    EXPECT_FALSE(isExpanded());
}

TEST_F(Hover, AReleaseWithoutADragChangesNothing)
{
    start();
    openByHover();
    pointer.where = farAway;
    FakePointer::send(pointer.releases);
    scheduler.runPosted();
    EXPECT_FALSE(controller->isCollapsePending());
}

TEST_F(Hover, APopoverOutsideOfThePanelKeepsItOpen)
{
    start();
    openByHover();
    QObject popover;
    const Rect below{700, 480, 100, 60};
    panel().setPopoverFrame(popover, below);
    move({750, 500});
    EXPECT_FALSE(controller->isCollapsePending());
    move({750, 475});
    EXPECT_FALSE(controller->isCollapsePending()) << "5 points below the popover";
    move({750, 473});
    EXPECT_TRUE(controller->isCollapsePending());
    move({750, 500});
    panel().removePopover(popover);
    move({750, 500});
    EXPECT_TRUE(controller->isCollapsePending());
}

TEST_F(Hover, AnotherWindowOfTheProgramDoesNotKeepItOpen)
{
    start();
    openByHover();
    // Windows count only when they have been declared as popovers.
    move({750, 500});
    scheduler.advance(120ms);
    EXPECT_FALSE(isExpanded());
}

TEST_F(Hover, UnpinningOverThePanelCollapsesUntilThePointerEntersAnew)
{
    start();
    enter();
    controller->tap();
    EXPECT_TRUE(isExpanded());
    controller->tap();
    EXPECT_FALSE(isExpanded());
    scheduler.advance(10s);
    EXPECT_FALSE(isExpanded());
    leave();
    openByHover();
}

} // namespace brimlight::test
