#include "theme/Glass.h"

#include <gtest/gtest.h>

#include <cmath>

namespace brimlight::test {
namespace {

using namespace brimlight::glass;

double luminance(const Layer &color)
{
    const auto linear = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.red) + 0.7152 * linear(color.green) + 0.0722 * linear(color.blue);
}

/// Contrast of the theme's main text on the pane, over a white desktop.
double contrastOverWhite(const PaneLook &look, double depth)
{
    const Layer ground = Layer{1, 1, 1, 1}.under(paneColor(look, depth));
    const Layer text = ground.under(Layer::of(look.theme.textPrimary));
    return (luminance(text) + 0.05) / (luminance(ground) + 0.05);
}

} // namespace

TEST(Glass, StrengthZeroIsTheDarkestPaneAndTile)
{
    EXPECT_EQ(material(0), Material::hudWindow);
    EXPECT_DOUBLE_EQ(paneVeil(0), 0.32);
    EXPECT_DOUBLE_EQ(tileVeil(0, false), 0.58);
}

TEST(Glass, StrengthOneIsTheLightestPaneAndTile)
{
    EXPECT_EQ(material(1), Material::popover);
    EXPECT_DOUBLE_EQ(paneVeil(1), 0.2) << "0.16 lies below the limit";
    EXPECT_DOUBLE_EQ(tileVeil(1, false), 0.32);
}

TEST(Glass, StrengthThreeIsStrengthOne)
{
    EXPECT_EQ(material(3), material(1));
    EXPECT_EQ(paneVeil(3), paneVeil(1));
    EXPECT_EQ(tileVeil(3, false), tileVeil(1, false));
    PaneLook one{.theme = Theme::midnight(), .strength = 1, .backdrop = Backdrop::blurred};
    PaneLook three = one;
    three.strength = 3;
    EXPECT_EQ(paneColor(one, 10).toColor(), paneColor(three, 10).toColor());
}

TEST(Glass, MaterialsChangeAtTheirThresholds)
{
    EXPECT_EQ(material(-1), Material::hudWindow);
    EXPECT_EQ(material(0.339), Material::hudWindow);
    EXPECT_EQ(material(0.34), Material::menu);
    EXPECT_EQ(material(0.669), Material::menu);
    EXPECT_EQ(material(0.67), Material::popover);
}

TEST(Glass, PaneVeilThinsDownToItsLimit)
{
    EXPECT_DOUBLE_EQ(paneVeil(0.55), 0.232);
    EXPECT_DOUBLE_EQ(paneVeil(0.75), 0.2);
    EXPECT_DOUBLE_EQ(paneVeil(0.9), 0.2);
}

TEST(Glass, TileVeilBelowZeroIsThatOfZero)
{
    EXPECT_DOUBLE_EQ(tileVeil(-2, false), 0.58);
    EXPECT_DOUBLE_EQ(tileVeil(0.55, false), 0.437);
}

TEST(Glass, ReducedTransparencyLeavesTheSurfaceAsItIs)
{
    const PaneLook look{.theme = Theme::midnight(),
                        .strength = 1,
                        .tinted = true,
                        .reduceTransparency = true,
                        .backdrop = Backdrop::blurred};
    EXPECT_EQ(paneColor(look, 0).toColor(), look.theme.surfaceColor());
    EXPECT_EQ(paneColor(look, 500).toColor(), look.theme.surfaceColor());
}

TEST(Glass, ReducedTransparencyMakesTheRimBrighterAndTilesAlmostOpaque)
{
    EXPECT_EQ(paneRim(false), 0.12);
    EXPECT_EQ(paneRim(true), 0.45);
    EXPECT_EQ(tileVeil(0, true), 0.95);
    EXPECT_EQ(tileVeil(3, true), 0.95);
}

TEST(Glass, FocusStrengthensGradientStrokeAndShadows)
{
    const TileStyle plain = tileStyle(false);
    const TileStyle focused = tileStyle(true);
    EXPECT_EQ(plain.gradientWhite, 0.055);
    EXPECT_EQ(plain.gradientAccent, 0.035);
    EXPECT_EQ(plain.overlayAccent, 0) << "only a focused tile has the overlay";
    EXPECT_EQ(plain.strokeWidth, 0.8);
    EXPECT_EQ(plain.strokeWhite, 0.22);
    EXPECT_EQ(plain.strokeSeparator, 0.08);
    EXPECT_EQ(plain.accentShadow.opacity, 0.04);
    EXPECT_EQ(plain.accentShadow.radius, 4);
    EXPECT_EQ(plain.accentShadow.y, 1);
    EXPECT_EQ(plain.blackShadow.opacity, 0.18);
    EXPECT_EQ(plain.blackShadow.radius, 4);
    EXPECT_EQ(plain.blackShadow.y, 2);
    EXPECT_EQ(focused.gradientWhite, 0.1);
    EXPECT_EQ(focused.gradientAccent, 0.12);
    EXPECT_EQ(focused.overlayAccent, 0.12);
    EXPECT_EQ(focused.strokeWidth, 1.1);
    EXPECT_EQ(focused.strokeWhite, 0.5);
    EXPECT_EQ(focused.strokeSeparator, 0.18);
    EXPECT_EQ(focused.accentShadow.opacity, 0.12);
    EXPECT_EQ(focused.accentShadow.radius, 10);
    EXPECT_EQ(focused.accentShadow.y, 3);
    EXPECT_EQ(focused.blackShadow.opacity, 0.18);
    EXPECT_EQ(focused.blackShadow.radius, 9);
    EXPECT_EQ(focused.blackShadow.y, 4);
}

TEST(Glass, WithoutACompositorThePaneIsOpaque)
{
    for (const bool reduce : {false, true}) {
        const PaneLook look{.theme = Theme::midnight(), .strength = 0.55, .reduceTransparency = reduce};
        EXPECT_DOUBLE_EQ(paneColor(look, 0).opacity, 1);
        EXPECT_DOUBLE_EQ(paneColor(look, 400).opacity, 1);
    }
}

TEST(Glass, LightFadesFromTheTopAndThenStays)
{
    const PaneLook look{.theme = Theme::midnight(), .strength = 0.55};
    EXPECT_GT(paneColor(look, 0).green, paneColor(look, 100).green);
    EXPECT_DOUBLE_EQ(paneColor(look, lightDepth).green, paneColor(look, 2000).green);
}

TEST(Glass, ColoursOutOfRangeAreDrawnAsTheNearestEnd)
{
    PaneLook end{.theme = Theme::midnight(), .tinted = true};
    end.theme.surface = {1, 0, 1, 1};
    end.theme.accent = {1, 0, 0, 1};
    PaneLook beyond = end;
    beyond.theme.surface = {1e308, -1e308, 1e300, 1e308};
    beyond.theme.accent = {1e308, -3, -1e308, 7};
    for (const double depth : {0.0, lightDepth})
        EXPECT_EQ(paneColor(beyond, depth).toColor(), paneColor(end, depth).toColor()) << depth;
}

TEST(Glass, TextStaysReadableOverAWhiteDesktop)
{
    for (const Backdrop backdrop : {Backdrop::translucent, Backdrop::blurred}) {
        for (const double strength : {0.0, 0.34, 0.55, 0.67, 1.0}) {
            const PaneLook look{.theme = Theme::midnight(), .strength = strength, .backdrop = backdrop};
            EXPECT_GE(contrastOverWhite(look, 0), 4.5) << strength;
            EXPECT_GE(contrastOverWhite(look, lightDepth), 4.5) << strength;
        }
    }
}

TEST(Glass, OverlayOfWhiteOnBlackStaysBlack)
{
    const Layer result = Layer{0, 0, 0, 1}.underOverlay({0.5, 0.5, 0.5, 0.5});
    EXPECT_DOUBLE_EQ(result.red, 0);
    EXPECT_DOUBLE_EQ(result.opacity, 1);
    EXPECT_DOUBLE_EQ((Layer{1, 1, 1, 1}.underOverlay({0, 0.5, 0, 0.5}).red), 1) << "and white stays white";
}

} // namespace brimlight::test
