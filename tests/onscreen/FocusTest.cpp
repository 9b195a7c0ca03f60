#include "OnScreenTest.h"

namespace brimlight::onscreen {
namespace {

class Focus : public OnEachDesktop
{
protected:
    static constexpr uint32_t letterA = 'a';

    Victim victim{session.display(), Victim::Kind::plain};

    void expectVictimHasTheKeyboard()
    {
        EXPECT_TRUE(victim.isActive());
        const int before = victim.keyPresses();
        hand.typeKey(letterA);
        EXPECT_TRUE(waitUntil([&] { return victim.keyPresses() == before + 1; }));
    }
};

INSTANTIATE_TEST_SUITE_P(OnScreen, Focus, testing::ValuesIn(windowManagers), nameOf);

TEST_P(Focus, StartingLeavesTheKeyboardWhereItIs)
{
    expectVictimHasTheKeyboard();
}

TEST_P(Focus, RestThatOpensLeavesTheKeyboardWhereItIs)
{
    const QImage before = x.screenshot();
    hand.moveTo(onStrip());
    const auto frame = waitForOpen();
    ASSERT_TRUE(frame);
    ASSERT_TRUE(waitUntil([&] { return isSeen(*frame, before); }));
    expectVictimHasTheKeyboard();
}

TEST_P(Focus, TapsLeaveTheKeyboardWhereItIs)
{
    const auto frame = openByTap();
    ASSERT_TRUE(frame);
    expectVictimHasTheKeyboard();
    hand.clickAt({frame->center().x(), frame->bottom() - 6});
    expectVictimHasTheKeyboard();
}

TEST_P(Focus, ClosingLeavesTheKeyboardWhereItIs)
{
    ASSERT_TRUE(openByTap());
    hand.clickAt(onStrip());
    ASSERT_TRUE(waitForClose());
    expectVictimHasTheKeyboard();
}

} // namespace
} // namespace brimlight::onscreen
