#include "OnScreenTest.h"

#include <QFile>

namespace brimlight::onscreen {
namespace {

using namespace Qt::StringLiterals;

/// A tile is dragged while somebody else's window has the keyboard.
class DragEscape : public OnScreenTest
{
protected:
    static constexpr uint32_t escape = 0xff1b;

    DragEscape()
        : OnScreenTest(Desktop{.windowManager = "openbox"})
    {
    }
    void SetUp() override
    {
        session.writeConfigFile(u"Brimlight/defaults.json"_s, R"({"brimlight.onboardingCompleted": true})");
        victim.emplace(session.display(), Victim::Kind::plain);
        startPanel();
        const auto open = openByTap();
        ASSERT_TRUE(open);
        frame = *open;
    }
    QByteArray stored() const
    {
        QFile file(session.environment().value(u"XDG_DATA_HOME"_s) + u"/Brimlight/grid.json"_s);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// The middle of a cell.
    QPoint cell(int col, int row) const
    {
        return frame.topLeft() + QPoint(16 + col * 86 + 37, 40 + row * 86 + 37);
    }

    /// The place that the tile would take is marked in green; the panel is blue and the tiles are grey.
    bool isMarked(QPoint point) const
    {
        const QImage now = x.screenshot();
        for (int y = point.y() - 50; y < point.y() + 50; ++y) {
            for (int column = point.x() - 50; column < point.x() + 50; ++column) {
                const QColor color = now.pixelColor(column, y);
                if (color.green() > color.red() + 60 && color.green() > color.blue() + 60)
                    return true;
            }
        }
        return false;
    }

    std::optional<Victim> victim;
    QRect frame;
};

TEST_F(DragEscape, GivesUpTheDragAndTakesNoOtherKey)
{
    const QByteArray layout = stored();
    const QPoint target = cell(4, 2);
    ASSERT_FALSE(isMarked(target));
    hand.dragAndHold(cell(4, 0), target);
    ASSERT_TRUE(waitUntil([&] { return isMarked(target); }));
    keepPicture();

    int keys = victim->keyPresses();
    hand.typeKey('a');
    EXPECT_TRUE(waitUntil([&] { return victim->keyPresses() == keys + 1; }));
    hand.typeKey(escape);
    EXPECT_TRUE(waitUntil([&] { return !isMarked(target); }));
    EXPECT_EQ(victim->keyPresses(), keys + 1) << "Escape was ours";

    hand.release();
    EXPECT_TRUE(staysOpen());
    EXPECT_FALSE(isMarked(target));
    EXPECT_EQ(stored(), layout);
    keys = victim->keyPresses();
    hand.typeKey(escape);
    EXPECT_TRUE(waitUntil([&] { return victim->keyPresses() == keys + 1; })) << "and is no longer";
}

} // namespace
} // namespace brimlight::onscreen
