#include "OnScreenTest.h"

#include <algorithm>

namespace brimlight::onscreen {
namespace {

/// Covers the screen, outside of the window manager's care, as screen lockers do.
class Cover
{
public:
    explicit Cover(const XClient &x)
        : m_x(x)
    {
        const QSize size = x.size();
        const uint32_t outOfCare = 1;
        xcb_create_window(x, XCB_COPY_FROM_PARENT, m_id, x.root(), 0, 0, static_cast<uint16_t>(size.width()),
                          static_cast<uint16_t>(size.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                          XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT, &outOfCare);
        xcb_map_window(x, m_id);
        x.sync();
    }
    ~Cover()
    {
        xcb_destroy_window(m_x, m_id);
        m_x.sync();
    }
    Cover(const Cover &) = delete;
    Cover &operator=(const Cover &) = delete;

    xcb_window_t id() const { return m_id; }

private:
    const XClient &m_x;
    xcb_window_t m_id = xcb_generate_id(m_x);
};

/// How many of `windows` that the program has shown lie above `other`.
int oursAbove(const std::vector<WindowInfo> &windows, xcb_window_t other)
{
    const auto place = std::ranges::find(windows, other, &WindowInfo::id);
    return static_cast<int>(std::count_if(place, windows.end(), [](const WindowInfo &window) {
        return window.isViewable && (window.isInputOnly || window.className.contains("rimlight"));
    }));
}

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

TEST_P(Stacking, AScreenLockerStaysAboveHoweverOftenWindowsAreRestacked)
{
    const Victim first(session.display(), Victim::Kind::plain);
    const Victim second(session.display(), Victim::Kind::fullScreen);
    {
        const Cover locker(x);
        for (int i = 0; i < 20; ++i) {
            const Victim &next = i % 2 ? first : second;
            next.activate();
            ASSERT_TRUE(waitUntil([&] { return next.isActive(); }));
            EXPECT_EQ(oursAbove(x.windows(), locker.id()), 0) << i;
        }
        EXPECT_FALSE(waitUntil([&] { return oursAbove(x.windows(), locker.id()) > 0; }, bounded));
    }
    expectRestOpensInSight();
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
        m_cover.emplace(x);
    }

    void restack() const
    {
        const uint32_t above = XCB_STACK_MODE_ABOVE;
        xcb_configure_window(x, m_cover->id(), XCB_CONFIG_WINDOW_STACK_MODE, &above);
        x.sync();
    }

    /// As those do that leave above their windows what they do not know.
    void restackBelow(const Cover &other) const
    {
        const uint32_t values[] = {other.id(), XCB_STACK_MODE_BELOW};
        xcb_configure_window(x, m_cover->id(), XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE,
                             values);
        x.sync();
    }

    void announce() const
    {
        const xcb_window_t cover = m_cover->id();
        xcb_change_property(x, XCB_PROP_MODE_REPLACE, x.root(), x.atom("_NET_CLIENT_LIST_STACKING"),
                            XCB_ATOM_WINDOW, 32, 1, &cover);
        x.sync();
    }

    /// Both windows of the program are above the cover.
    bool isAbove() const { return oursAbove(x.windows(), m_cover->id()) == 2; }

private:
    std::optional<Cover> m_cover;
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

TEST_F(Restacking, HoweverOftenPutsThePanelBetweenTheWindowsAndAScreenLocker)
{
    const Cover locker(x);
    for (int i = 0; i < 20; ++i) {
        restackBelow(locker);
        ASSERT_FALSE(isAbove());
        announce();
        ASSERT_TRUE(waitUntil([this] { return isAbove(); })) << i;
        EXPECT_EQ(oursAbove(x.windows(), locker.id()), 0) << i;
    }
}

} // namespace
} // namespace brimlight::onscreen
