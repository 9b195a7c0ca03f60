#include "DragSource.h"
#include "OnScreenTest.h"

namespace brimlight::onscreen {

using namespace Qt::StringLiterals;

namespace {

/// The strip on a screen without a camera housing. It does not open by rest here, so that what is done below
/// it can be.
class Strip : public OnEachDesktop
{
protected:
    void SetUp() override
    {
        session.writeConfigFile(u"Brimlight/defaults.json"_s, R"({"brimlight.hoverDelay": 3600})");
        OnEachDesktop::SetUp();
    }
    bool isWhole() const
    {
        return waitUntil([this] { return sensor() == strip; });
    }
    /// Holds the pointer as an open menu of another program does.
    void grab() const
    {
        xcb_grab_pointer(x, 0, x.root(), XCB_EVENT_MASK_BUTTON_PRESS, XCB_GRAB_MODE_ASYNC,
                         XCB_GRAB_MODE_ASYNC, XCB_WINDOW_NONE, XCB_CURSOR_NONE, XCB_CURRENT_TIME);
        x.sync();
    }
    void ungrab() const
    {
        xcb_ungrab_pointer(x, XCB_CURRENT_TIME);
        x.sync();
    }
};

INSTANTIATE_TEST_SUITE_P(OnScreen, Strip, testing::ValuesIn(anyDesktop), nameOf);

TEST_P(Strip, ClicksAndTheWheelReachTheWindowBelow)
{
    Victim victim(session.display(), Victim::Kind::plain);
    std::vector<QPoint> pressed;
    for (const QPoint point : {onStrip(), QPoint(strip.left() + 1, strip.top() + 2), strip.bottomRight()}) {
        hand.moveTo(point);
        ASSERT_TRUE(givesWay());
        for (const uint8_t button : {1, 3, 4, 5}) {
            hand.clickAt(point, button);
            pressed.push_back(point);
        }
        EXPECT_TRUE(waitUntil([&] { return victim.presses().size() >= pressed.size(); }));
        EXPECT_EQ(victim.presses(), pressed);
    }
    EXPECT_TRUE(staysShut());
}

TEST_P(Strip, AClickInTheTopTwoRowsPins)
{
    Victim victim(session.display(), Victim::Kind::plain);
    for (const int row : {0, 1}) {
        hand.moveTo({onStrip().x(), strip.top() + row});
        ASSERT_TRUE(givesWay());
        hand.clickAt({onStrip().x(), strip.top() + row});
        EXPECT_TRUE(waitForOpen()) << row;
        EXPECT_TRUE(panel->waitForLine(u"^Tap toggle pin -> pinned=true$"_s)) << row;
        hand.clickAt(onStrip());
        ASSERT_TRUE(waitForClose());
        hand.moveTo(away());
    }
    EXPECT_TRUE(victim.presses().empty());
}

TEST_P(Strip, IsWholeAgainWhenThePointerHasGone)
{
    for (const QPoint left :
         {away(), QPoint(onStrip().x(), strip.bottom() + 1), strip.topLeft() - QPoint(1, 0)}) {
        hand.moveTo(onStrip());
        ASSERT_TRUE(givesWay());
        hand.moveTo(left);
        EXPECT_TRUE(isWhole());
    }
}

TEST_P(Strip, APointerThatIsPutElsewhereHasGoneToo)
{
    hand.moveTo(onStrip());
    ASSERT_TRUE(givesWay());
    xcb_warp_pointer(x, XCB_WINDOW_NONE, x.root(), 0, 0, 0, 0, static_cast<int16_t>(away().x()),
                     static_cast<int16_t>(away().y()));
    x.sync();
    EXPECT_TRUE(isWhole());
}

TEST_P(Strip, SomethingDraggedOverItFindsAllOfIt)
{
    DragSource source(session.display(), "text/uri-list", "file:///etc/hostname\r\n");
    source.dragTo(strip.bottomLeft());
    EXPECT_TRUE(source.drop());
    EXPECT_TRUE(waitForOpen());
}

/// The same with the delay that users have.
class RestingInTheStrip : public Strip
{
protected:
    void SetUp() override { startPanel(); }
};

INSTANTIATE_TEST_SUITE_P(OnScreen, RestingInTheStrip, testing::ValuesIn(anyDesktop), nameOf);

TEST_P(RestingInTheStrip, OpensOverAnotherWindow)
{
    const Victim victim(session.display(), Victim::Kind::plain);
    for (const QPoint point : {onStrip(), strip.bottomLeft(), onEdge()}) {
        hand.moveTo(point);
        EXPECT_TRUE(waitForOpen());
        hand.moveTo(away());
        ASSERT_TRUE(waitForClose());
    }
}

TEST_P(RestingInTheStrip, LeavingIntoAnotherWindowInTimeDoesNotOpen)
{
    const Victim victim(session.display(), Victim::Kind::plain);
    hand.moveTo(onStrip());
    ASSERT_TRUE(givesWay());
    hand.moveTo({onStrip().x(), strip.bottom() + 1});
    EXPECT_TRUE(isWhole());
    EXPECT_TRUE(staysShut());
}

TEST_P(RestingInTheStrip, OpensAfterThePointerWentDuringAGrabOfAnotherProgram)
{
    hand.moveTo(onStrip());
    ASSERT_TRUE(waitForOpen());
    hand.clickAt(onStrip());
    ASSERT_TRUE(waitForClose());
    EXPECT_TRUE(staysShut());
    grab();
    hand.moveTo(away());
    ungrab();
    hand.moveTo(onStrip(), milliseconds(300));
    EXPECT_TRUE(waitForOpen());
}

TEST_P(RestingInTheStrip, OpensAfterThePointerLeftTheOpenPanelDuringAGrab)
{
    for (int i = 0; i < 2; ++i) {
        hand.moveTo(onStrip());
        ASSERT_TRUE(waitForOpen()) << i;
        grab();
        hand.moveTo(away());
        ASSERT_TRUE(waitForClose());
        ungrab();
    }
    hand.moveTo(onStrip());
    EXPECT_TRUE(waitForOpen());
}

} // namespace
} // namespace brimlight::onscreen
