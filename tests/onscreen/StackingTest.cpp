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

} // namespace
} // namespace brimlight::onscreen
