#include "OnScreenTest.h"

namespace brimlight::onscreen {
namespace {

class ScreenChange : public OnEachDesktop
{
protected:
    static constexpr QSize smaller{1200, 800};

    /// Waits until the program has placed itself for a screen of this width.
    std::optional<QRect> waitForPlacement(QSize size)
    {
        while (const auto line = panel->waitForLine(QString::fromLatin1(placed))) {
            const QRect frame = frameIn(*line);
            if (std::abs(frame.center().x() - size.width() / 2) <= 1)
                return frame;
        }
        return std::nullopt;
    }
};

INSTANTIATE_TEST_SUITE_P(OnScreen, ScreenChange, testing::ValuesIn(anyDesktop), nameOf);

TEST_P(ScreenChange, TheStripMovesToTheNewTopCentre)
{
    const QSize larger = x.size();
    const QPoint old = onStrip();
    x.setSize(smaller);
    const auto moved = waitForPlacement(smaller);
    ASSERT_TRUE(moved);
    EXPECT_EQ(*moved, QRect((smaller.width() - strip.width()) / 2, 0, strip.width(), strip.height()));
    hand.moveTo(old);
    EXPECT_TRUE(staysShut());
    hand.moveTo(moved->center());
    EXPECT_TRUE(waitForOpen());
    hand.moveTo(away());
    ASSERT_TRUE(waitForClose());

    x.setSize(larger);
    ASSERT_EQ(waitForPlacement(larger), strip);
    hand.moveTo(old);
    EXPECT_TRUE(waitForOpen());
}

TEST_P(ScreenChange, TheOpenPanelMovesToTheNewTopCentre)
{
    ASSERT_TRUE(openByTap());
    x.setSize(smaller);
    const auto moved = waitForPlacement(smaller);
    ASSERT_TRUE(moved);
    EXPECT_EQ(moved->top(), 0);
    EXPECT_EQ(moved->width(), 536);
    hand.moveTo(away());
    EXPECT_TRUE(waitUntil([&] { return isSeen(*moved, bare); }));
    const QRect besideIt(moved->right() + 1, 0, smaller.width() - moved->right() - 1, moved->height());
    EXPECT_TRUE(waitUntil([&] { return changed(bare, besideIt) == 0; }));
}

TEST_P(ScreenChange, FollowsThePrimaryMonitor)
{
    // The upper edge of the primary monitor is not that of the whole.
    const QRect primary(700, 200, 812, 600);
    x.splitMonitors(primary, {0, 0, 700, 982});
    const QRect expected(primary.left() + (primary.width() - strip.width()) / 2, primary.top(), strip.width(),
                         strip.height());
    QRect moved;
    while (moved != expected) {
        const auto line = panel->waitForLine(QString::fromLatin1(placed));
        ASSERT_TRUE(line);
        moved = frameIn(*line, primary);
    }
    hand.moveTo(expected.topLeft());
    const auto line = panel->waitForLine(QString::fromLatin1(opened));
    ASSERT_TRUE(line);
    const QRect open = frameIn(*line, primary);
    EXPECT_EQ(open.top(), primary.top());
    EXPECT_TRUE(waitUntil([&] { return isSeen(open, bare); }));
    keepPicture();
    hand.moveTo(away());
    ASSERT_TRUE(waitForClose());

    x.joinMonitors();
    ASSERT_EQ(waitForPlacement(x.size()), strip);
    hand.moveTo(onStrip());
    EXPECT_TRUE(waitForOpen());
}

} // namespace
} // namespace brimlight::onscreen
