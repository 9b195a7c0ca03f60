#include "OnScreenTest.h"

#include <algorithm>

namespace brimlight::onscreen {
namespace {

class Stacking : public OnEachDesktop
{
protected:
    void expectRestOpensInSight()
    {
        const QImage before = x.screenshot();
        hand.moveTo(onStrip());
        const auto frame = waitForOpen();
        ASSERT_TRUE(frame);
        EXPECT_TRUE(waitUntil([&] { return isSeen(*frame, before); }));
        keepPicture();
    }

    bool switchWorkspace(uint32_t index)
    {
        x.tellWindowManager(x.root(), "_NET_CURRENT_DESKTOP", {index, XCB_CURRENT_TIME});
        return waitUntil([&] { return x.rootValue("_NET_CURRENT_DESKTOP") == index; });
    }
};

INSTANTIATE_TEST_SUITE_P(OnScreen, Stacking, testing::ValuesIn(windowManagers), nameOf);

TEST_P(Stacking, OpensAboveAFullScreenWindow)
{
    const Victim victim(session.display(), Victim::Kind::fullScreen);
    EXPECT_EQ(x.screenshot().pixel(onStrip()), Victim::color);
    expectRestOpensInSight();
}

TEST_P(Stacking, OpensAboveAFullScreenWindowThatWasRaised)
{
    const Victim lower(session.display(), Victim::Kind::fullScreen);
    const Victim upper(session.display(), Victim::Kind::fullScreen);
    lower.raise();
    lower.activate();
    ASSERT_TRUE(waitUntil([&] { return lower.isActive(); }));
    expectRestOpensInSight();
}

TEST_P(Stacking, StaysInSightWhenAFullScreenWindowComes)
{
    const auto frame = openByTap();
    ASSERT_TRUE(frame);
    const Victim victim(session.display(), Victim::Kind::fullScreen);
    QImage alone(x.size(), QImage::Format_RGB32);
    alone.fill(Victim::color);
    EXPECT_TRUE(waitUntil([&] { return isSeen(*frame, alone); }));
    keepPicture();
    EXPECT_EQ(x.screenshot().pixel(frame->right() + 60, frame->center().y()), Victim::color);
}

TEST_P(Stacking, IsOnNoListOfTheWindowManager)
{
    const Victim victim(session.display(), Victim::Kind::plain);
    ASSERT_TRUE(openByTap());
    EXPECT_EQ(x.property(x.root(), "_NET_CLIENT_LIST"), std::vector{victim.id()});
    EXPECT_EQ(x.property(x.root(), "_NET_CLIENT_LIST_STACKING"), std::vector{victim.id()});
}

TEST_P(Stacking, OpensOnEveryWorkspace)
{
    const auto count = x.rootValue("_NET_NUMBER_OF_DESKTOPS");
    ASSERT_GT(count.value_or(0), 1u);
    for (const uint32_t index : {*count - 1, 0u}) {
        ASSERT_TRUE(switchWorkspace(index));
        EXPECT_TRUE(panel->waitForLine(QString::fromLatin1(placed)));
        expectRestOpensInSight();
        hand.moveTo(away());
        ASSERT_TRUE(waitForClose());
    }
}

TEST_P(Stacking, StaysOpenWhenTheWorkspaceIsSwitched)
{
    const auto frame = openByTap();
    ASSERT_TRUE(frame);
    hand.moveTo(away());
    ASSERT_TRUE(switchWorkspace(1));
    EXPECT_TRUE(panel->waitForLine(QString::fromLatin1(placed)));
    EXPECT_TRUE(staysOpen());
    EXPECT_TRUE(isSeen(*frame, bare));
}

/// A window manager that restacks its windows above everything else, as some do; the test plays it.
class Restacking : public OnScreenTest
{
protected:
    Restacking()
        : OnScreenTest(Desktop{})
    {
    }

    void SetUp() override
    {
        startPanel();
        const QSize size = x.size();
        const uint32_t outOfCare = 1;
        xcb_create_window(x, XCB_COPY_FROM_PARENT, m_cover, x.root(), 0, 0,
                          static_cast<uint16_t>(size.width()), static_cast<uint16_t>(size.height()), 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT,
                          &outOfCare);
        xcb_map_window(x, m_cover);
        restack();
    }

    void restack() const
    {
        const uint32_t above = XCB_STACK_MODE_ABOVE;
        xcb_configure_window(x, m_cover, XCB_CONFIG_WINDOW_STACK_MODE, &above);
        x.sync();
    }

    void announce() const
    {
        xcb_change_property(x, XCB_PROP_MODE_REPLACE, x.root(), x.atom("_NET_CLIENT_LIST_STACKING"),
                            XCB_ATOM_WINDOW, 32, 1, &m_cover);
        x.sync();
    }

    /// Both windows of the program are above the cover.
    bool isAbove() const
    {
        const auto windows = x.windows();
        return windows.size() > 2 && windows[windows.size() - 3].id == m_cover;
    }

private:
    xcb_window_t m_cover = xcb_generate_id(x);
};

TEST_F(Restacking, ThatIsAnnouncedBringsThePanelUpAgain)
{
    ASSERT_FALSE(isAbove());
    announce();
    EXPECT_TRUE(waitUntil([this] { return isAbove(); }));
}

TEST_F(Restacking, ThatIsAnnouncedTooEarlyBringsThePanelUpAgain)
{
    // On a busy machine the test itself may be late.
    EXPECT_TRUE(waitUntil([this] {
        announce();
        const bool atOnce = waitUntil([this] { return isAbove(); });
        restack();
        return atOnce && waitUntil([this] { return isAbove(); }, milliseconds(400));
    }));
}

TEST_F(Restacking, OfAScreenLockerLeavesItAboveThePanel)
{
    EXPECT_FALSE(waitUntil([this] { return isAbove(); }, bounded));
}

} // namespace
} // namespace brimlight::onscreen
