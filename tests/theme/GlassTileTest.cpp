#include "theme/GlassTile.h"
#include "theme/GlassTileBackground.h"
#include "theme/Superellipse.h"

#include <gtest/gtest.h>

#include <QQuickWindow>

namespace brimlight::test {
namespace {

glass::TileLook look(double strength, bool focused = false, double ratio = 1)
{
    return {.theme = Theme::midnight(), .strength = strength, .focused = focused, .devicePixelRatio = ratio};
}

/// Opacity of the tile at its lower right, where gradient and stroke are clear.
double ground(const glass::TileLook &tile)
{
    const QImage image = glass::paintTile(tile, {200, 200});
    const int margin = glass::tileMargin(tile);
    return image.pixelColor(margin + 180, margin + 180).alphaF();
}

} // namespace

TEST(GlassTile, TheVeilThinsWithTheStrength)
{
    const auto over = [](double veil) { return veil + (1 - veil) * 0.08; };
    EXPECT_NEAR(ground(look(0)), over(0.58), 0.03);
    EXPECT_NEAR(ground(look(1)), over(0.32), 0.03);
    EXPECT_EQ(ground(look(3)), ground(look(1)));
}

TEST(GlassTile, ReducedTransparencyKeepsGradientStrokeAndShadows)
{
    glass::TileLook tile = look(1);
    tile.reduceTransparency = true;
    EXPECT_NEAR(ground(tile), 0.955, 0.01);
    const QImage image = glass::paintTile(tile, {100, 100});
    const int margin = glass::tileMargin(tile);
    const auto green = [&](int x, int y) { return qGreen(image.pixel(margin + x, margin + y)); };
    EXPECT_GT(green(20, 20), green(80, 80)) << "gradient";
    EXPECT_GT(green(40, 0), green(40, 4)) << "stroke";
    EXPECT_GT(qAlpha(image.pixel(margin + 50, margin + 101)), 10) << "shadow";
}

TEST(GlassTile, FocusTakesOnTheAccentAndLightsTheRim)
{
    const QImage plain = glass::paintTile(look(0.55), {100, 100});
    const QImage focused = glass::paintTile(look(0.55, true), {100, 100});
    const int plainMargin = glass::tileMargin(look(0.55));
    const int margin = glass::tileMargin(look(0.55, true));
    EXPECT_GT(margin, plainMargin) << "the shadows reach further";
    const auto blue = [](const QImage &image, int at) { return qBlue(image.pixel(at, at)); };
    EXPECT_GT(blue(focused, margin + 50), blue(plain, plainMargin + 50) + 10);
    EXPECT_GT(qRed(focused.pixel(margin + 40, margin)),
              qRed(plain.pixel(plainMargin + 40, plainMargin)) + 30);
}

TEST(GlassTile, ShadowsLieAroundTheTileAndNotInIt)
{
    glass::TileLook tile = look(0.55);
    const int margin = glass::tileMargin(tile);
    const QImage with = glass::paintTile(tile, {100, 80});
    tile.shadows = false;
    EXPECT_EQ(glass::tileMargin(tile), 0);
    const QImage without = glass::paintTile(tile, {100, 80});
    ASSERT_EQ(with.size(), without.size() + QSize(2 * margin, 2 * margin));
    for (const QPoint point : {QPoint(50, 40), QPoint(50, 79), QPoint(0, 40), QPoint(99, 40)})
        EXPECT_EQ(with.pixel(point + QPoint(margin, margin)), without.pixel(point));
}

TEST(GlassTile, TheStrokeLiesInTheOutermostPixelsAtAnyScale)
{
    for (const int ratio : {1, 2}) {
        glass::TileLook tile = look(0.55, false, ratio);
        tile.shadows = false;
        const QImage image = glass::paintTile(tile, QSize(100, 100) * ratio);
        const auto green = [&](int y) { return qGreen(image.pixel(45 * ratio, y)); };
        EXPECT_GT(green(0), green(ratio) + 10) << ratio;
        EXPECT_NEAR(green(ratio), green(ratio + 2), 2) << "nothing smeared below it";
    }
}

TEST(GlassTile, FollowsTheContinuousCorner)
{
    glass::TileLook tile = look(0);
    tile.shadows = false;
    const QImage image = glass::paintTile(tile, {100, 100});
    const QPainterPath shape = superellipsePath({0, 0, 100, 100}, 22);
    const QPainterPath larger = superellipsePath({-1, -1, 102, 102}, 23);
    const QPainterPath smaller = superellipsePath({1, 1, 98, 98}, 21);
    for (int y = 0; y < 100; ++y) {
        for (int x = 0; x < 100; ++x) {
            const QPointF centre(x + 0.5, y + 0.5);
            if (smaller.contains(centre)) {
                EXPECT_GT(qAlpha(image.pixel(x, y)), 140);
            } else if (!larger.contains(centre)) {
                EXPECT_EQ(qAlpha(image.pixel(x, y)), 0);
            }
        }
    }
}

TEST(GlassTileBackground, DrawsItsShadowsOutsideAndFadesBetweenItsLooks)
{
    QQuickWindow window;
    window.setColor(Qt::white);
    window.resize(120, 120);
    GlassTileBackground tile(window.contentItem());
    tile.setStrength(0.55);
    tile.setPosition({25, 25});
    tile.setSize({70, 70});
    window.show();
    const auto green = [&](QPoint point) { return qGreen(window.grabWindow().pixel(point)); };
    const QPoint below(60, 97);
    const QPoint edge(60, 25);
    const int plainEdge = green(edge);
    EXPECT_LT(green(below), 250);
    tile.setFocused(true);
    EXPECT_EQ(tile.focusLevel(), 1);
    const int focusedEdge = green(edge);
    EXPECT_GT(focusedEdge, plainEdge + 15);
    tile.setFocusLevel(0.5);
    EXPECT_GT(green(edge), plainEdge + 3);
    tile.setFocusLevel(-0.2);
    EXPECT_EQ(green(edge), plainEdge) << "a spring may go beyond its ends";
    tile.setShadows(false);
    EXPECT_EQ(green(below), 255);
}

TEST(GlassTileBackground, ASolidTileFollowsTheSurfaceOfItsTheme)
{
    QQuickWindow window;
    window.setColor(Qt::white);
    window.resize(120, 120);
    GlassTileBackground tile(window.contentItem());
    tile.setSolid(true);
    tile.setSize({70, 70});
    window.show();
    Theme theme = Theme::midnight();
    theme.surface = {0, 0, 0, 1};
    tile.setTheme(theme);
    const int dark = qRed(window.grabWindow().pixel(35, 35));
    theme.surface.red = 1;
    tile.setTheme(theme);
    EXPECT_GT(qRed(window.grabWindow().pixel(35, 35)), dark + 50);
}

TEST(GlassTileBackground, StaysInItsPlaceWhileItFades)
{
    QQuickWindow window;
    window.setColor(Qt::white);
    window.resize(240, 240);
    QQuickItem around(window.contentItem());
    around.setPosition({120, 120});
    GlassTileBackground tile(&around);
    tile.setSize({70, 70});
    window.show();
    const auto isDark = [&](QPoint point) { return qRed(window.grabWindow().pixel(point)) < 200; };
    EXPECT_TRUE(isDark({155, 155}));
    // Nothing of the second look is seen at first.
    for (const double level : {0.0001, 0.1, 0.9, 0.9999, 0.5, 0.0}) {
        tile.setFocusLevel(level);
        around.setScale(1 + 0.02 * level);
        EXPECT_TRUE(isDark({155, 155})) << level;
        EXPECT_FALSE(isDark({35, 35})) << level;
    }
}

TEST(GlassTileBackground, ASolidTileLetsNothingThroughWhileItFades)
{
    QQuickWindow window;
    window.resize(120, 120);
    GlassTileBackground tile(window.contentItem());
    tile.setSolid(true);
    tile.setSize({70, 70});
    window.show();
    const auto middle = [&](const QColor &behind) {
        window.setColor(behind);
        return window.grabWindow().pixelColor(35, 35);
    };
    for (const double level : {0.0, 0.5, 1.0}) {
        tile.setFocusLevel(level);
        EXPECT_EQ(middle(Qt::white), middle(Qt::black)) << level;
    }
}

} // namespace brimlight::test
