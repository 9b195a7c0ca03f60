#include "OnScreenTest.h"

#include <cmath>

namespace brimlight::onscreen {
namespace {

/// What is seen of the panel, pixel by pixel, with a compositor and without.
class Outline : public OnEachDesktop
{
protected:
    /// All that the program's window can cover, and more.
    QRect surroundings() const { return {0, 0, x.size().width(), 800}; }

    bool nothingIsSeen() const { return changed(bare, surroundings()) == 0; }

    /// The panel covers its outline, square above and rounded below, and nothing else.
    bool outlineIsSeen(const QRect &frame) const
    {
        const QImage now = x.screenshot();
        const auto differs = [&](int column, int row) {
            return now.pixel(column, row) != bare.pixel(column, row);
        };
        int missing = 0;
        for (int row = 0; row < surroundings().height(); ++row) {
            for (int column = 0; column < now.width(); ++column) {
                switch (coverage(QPoint(column, row), frame)) {
                case Coverage::none:
                    if (differs(column, row) && !isShadow(now.pixel(column, row), bare.pixel(column, row)))
                        return false;
                    break;
                case Coverage::full:
                    missing += !differs(column, row);
                    break;
                case Coverage::partial:
                    break;
                }
            }
        }
        // A pixel may have the wallpaper's colour by chance.
        return missing < frame.width() * frame.height() / 200;
    }

private:
    /// A compositor shows the panel's shadow around it: darker than the wallpaper, never by much.
    bool isShadow(QRgb now, QRgb wallpaper) const
    {
        const auto fits = [](int seen, int under) { return seen <= under && seen >= under / 2 - 1; };
        return x.isComposited() && fits(qRed(now), qRed(wallpaper)) && fits(qGreen(now), qGreen(wallpaper)) &&
               fits(qBlue(now), qBlue(wallpaper));
    }

    enum class Coverage { none, partial, full };

    static Coverage coverage(QPoint point, const QRect &frame)
    {
        if (!frame.contains(point))
            return Coverage::none;
        constexpr double radius = 32;
        // The quadratic corner is the curve sqrt(x / r) + sqrt(y / r) = 1, both counted from the corner.
        const int fromSide = std::min(point.x() - frame.left(), frame.right() - point.x());
        const int fromBottom = frame.bottom() - point.y();
        if (std::sqrt(fromSide / radius) + std::sqrt(fromBottom / radius) >= 1)
            return Coverage::full;
        if (std::sqrt((fromSide + 1) / radius) + std::sqrt((fromBottom + 1) / radius) <= 1)
            return Coverage::none;
        return Coverage::partial;
    }
};

INSTANTIATE_TEST_SUITE_P(OnScreen, Outline, testing::ValuesIn(withAndWithoutCompositor), nameOf);

TEST_P(Outline, NothingIsSeenWhileCollapsed)
{
    EXPECT_TRUE(nothingIsSeen());
    hand.moveTo(onStrip());
    EXPECT_TRUE(nothingIsSeen());
}

TEST_P(Outline, TheOpenPanelIsSeenWithinItsRoundedOutline)
{
    const auto frame = openByTap();
    ASSERT_TRUE(frame);
    hand.moveTo(away());
    EXPECT_TRUE(waitUntil([&] { return outlineIsSeen(*frame); }));
}

TEST_P(Outline, NothingIsLeftAfterClosing)
{
    ASSERT_TRUE(openByTap());
    hand.clickAt(onStrip());
    ASSERT_TRUE(waitForClose());
    EXPECT_TRUE(waitUntil([&] { return nothingIsSeen(); }));
}

TEST_P(Outline, ClicksOutsideOfItReachTheWindowBelow)
{
    Victim victim(session.display(), Victim::Kind::plain);
    const auto frame = openByTap();
    ASSERT_TRUE(frame);
    // All of them lie within the program's window; the last two in the corners that the outline leaves out.
    // The spring that the outline moves on goes a pixel or two too far before it comes to rest.
    const std::vector<QPoint> points{{frame->left() - 5, 40},
                                     {frame->right() + 40, 100},
                                     {frame->center().x(), frame->bottom() + 5},
                                     frame->bottomLeft() + QPoint(3, -3),
                                     frame->bottomRight() + QPoint(-3, -3)};
    for (const QPoint point : points)
        EXPECT_TRUE(programWindowAt(point)) << point.x() << ',' << point.y();
    expectClicksReach(victim, points);
}

TEST_P(Outline, HoldsWhenACompositorComesOrGoes)
{
    const auto toggle = [this] {
        if (x.isComposited())
            session.stopCompositor();
        else
            session.startCompositor();
    };
    toggle();
    EXPECT_TRUE(waitUntil([&] { return nothingIsSeen(); }));
    const auto frame = openByTap();
    ASSERT_TRUE(frame);
    hand.moveTo(away());
    EXPECT_TRUE(waitUntil([&] { return outlineIsSeen(*frame); }));
    toggle();
    EXPECT_TRUE(waitUntil([&] { return outlineIsSeen(*frame); }));
    hand.clickAt(onStrip());
    ASSERT_TRUE(waitForClose());
    EXPECT_TRUE(waitUntil([&] { return nothingIsSeen(); }));
}

/// Where nobody composites the screen. A compositor blanks parts of it for a moment by itself.
class OutlineAlone : public Outline
{
};

INSTANTIATE_TEST_SUITE_P(OnScreen, OutlineAlone, testing::ValuesIn(anyDesktop), nameOf);

TEST_P(OutlineAlone, NeverFlashesInBlackWhileItOpens)
{
    constexpr QRgb black = qRgb(0, 0, 0);
    const QRect area = surroundings();
    int most = 0;
    hand.clickAt(onEdge());
    const auto begun = Clock::now();
    while (Clock::now() - begun < bounded) {
        const QImage now = x.screenshot();
        int flashing = 0;
        for (int row = area.top(); row <= area.bottom(); ++row) {
            for (int column = area.left(); column <= area.right(); ++column)
                flashing += now.pixel(column, row) == black && bare.pixel(column, row) != black;
        }
        most = std::max(most, flashing);
    }
    const auto frame = waitForOpen();
    ASSERT_TRUE(frame);
    EXPECT_LT(most, frame->width() * frame->height() / 50);
}

} // namespace
} // namespace brimlight::onscreen
