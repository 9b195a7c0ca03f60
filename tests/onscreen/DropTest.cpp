#include "DragSource.h"
#include "OnScreenTest.h"

namespace brimlight::onscreen {

using namespace Qt::StringLiterals;

namespace {

/// The panel does not open by rest here: what opens it is what is dropped.
class Drop : public OnEachDesktop
{
protected:
    static constexpr const char *files = "text/uri-list";

    void SetUp() override
    {
        session.writeConfigFile(u"Brimlight/defaults.json"_s, R"({"brimlight.hoverDelay": 3600})");
        OnEachDesktop::SetUp();
    }
    bool saysFilesCame()
    {
        return panel->waitForLine(u"^Files dropped on notch -> shelf \\(\\d+ items\\)$"_s).has_value();
    }

    const QByteArray oneFile = "file:///etc/hostname\r\n";
};

INSTANTIATE_TEST_SUITE_P(OnScreen, Drop, testing::ValuesIn(anyDesktop), nameOf);

TEST_P(Drop, OfAFileOnTheStripOpensAndPins)
{
    DragSource source(session.display(), files, oneFile);
    source.dragTo(onStrip());
    EXPECT_TRUE(source.drop());
    ASSERT_TRUE(waitForOpen());
    EXPECT_TRUE(saysFilesCame());
    hand.moveTo(away());
    EXPECT_TRUE(staysOpen());
}

TEST_P(Drop, OfAFileOnTheOpenPanelIsTaken)
{
    const auto frame = openByTap();
    ASSERT_TRUE(frame);
    hand.moveTo(away());
    DragSource source(session.display(), files, oneFile);
    source.dragTo(frame->center());
    EXPECT_TRUE(source.drop());
    EXPECT_TRUE(saysFilesCame());
    EXPECT_TRUE(staysOpen());
}

TEST_P(Drop, OfAnythingElseIsRefused)
{
    DragSource source(session.display(), "text/plain", "hello");
    source.dragTo(onStrip());
    EXPECT_FALSE(source.drop());
    EXPECT_TRUE(staysShut());
}

TEST_P(Drop, OfALinkIsRefused)
{
    DragSource source(session.display(), files, "https://example.org/\r\n");
    source.dragTo(onStrip());
    EXPECT_FALSE(source.drop());
    EXPECT_TRUE(staysShut());
}

class DropInSight : public Drop
{
};

INSTANTIATE_TEST_SUITE_P(OnScreen, DropInSight, testing::ValuesIn(withAndWithoutCompositor), nameOf);

TEST_P(DropInSight, ElsewhereLeavesNoTrace)
{
    DragSource source(session.display(), files, oneFile);
    source.dragTo(onStrip());
    EXPECT_TRUE(waitUntil([&] { return source.isAccepted(); }));
    EXPECT_TRUE(waitUntil([&] { return changed(bare, strip) > 0; }))
        << "the strip shows that it would take it";
    source.dragTo(away());
    EXPECT_FALSE(source.drop());
    EXPECT_TRUE(waitUntil([&] { return changed(bare, strip) == 0; }));
    hand.clickAt(onEdge());
    EXPECT_TRUE(waitForOpen()) << "and feels the hand again";
}

} // namespace
} // namespace brimlight::onscreen
