#include "OnScreenTest.h"

namespace brimlight::onscreen {
namespace {

using namespace Qt::StringLiterals;

/// A desktop that shows no status items, and a user who is done with the walk-through.
class WithoutTray : public OnScreenTest
{
protected:
    WithoutTray()
        : OnScreenTest(Desktop{.windowManager = "openbox"})
    {
    }
    void SetUp() override
    {
        session.writeConfigFile(u"Brimlight/defaults.json"_s, R"({"brimlight.onboardingCompleted": true})");
        startPanel();
    }
    /// Clicks on the last entry of a menu that has its upper left corner there, once it is seen.
    void quitBy(QPoint corner)
    {
        // A menu is of one colour; the panel never is.
        ASSERT_TRUE(waitUntil([&] {
            const QImage now = x.screenshot();
            const QRgb color = now.pixel(corner + QPoint(10, 13));
            return now.pixel(corner + QPoint(10, 60)) == color &&
                   now.pixel(corner + QPoint(150, 113)) == color;
        }));
        keepPicture();
        hand.clickAt(corner + QPoint(60, 113));
        ASSERT_TRUE(panel->waitForExit());
        EXPECT_EQ(panel->process().exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(panel->process().exitCode(), 0);
        panel.reset();
    }
};

TEST_F(WithoutTray, ARightClickOnTheStripsEdgeOpensTheMenuThatQuits)
{
    const QPoint edge(strip.center().x(), 0);
    hand.clickAt(edge, 3);
    ASSERT_TRUE(waitForOpen());
    EXPECT_TRUE(staysOpen());
    quitBy({edge.x(), 4});
}

TEST_F(WithoutTray, ARightClickOnTheHeaderOpensTheMenuThatQuits)
{
    const auto frame = openByTap();
    ASSERT_TRUE(frame);
    const QPoint header = frame->topLeft() + QPoint(250, 16);
    hand.clickAt(header, 3);
    quitBy(header);
}

} // namespace
} // namespace brimlight::onscreen
