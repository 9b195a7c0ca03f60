#include "theme/Glass.h"

#include <algorithm>
#include <cmath>

namespace brimlight::glass {
namespace {

double limited(double strength)
{
    return std::min(strength, 1.0);
}

/// What lies outside of 0 to 1 counts as the nearest end: sums of stored numbers could be infinite or none.
ThemeColor limited(const ThemeColor &color)
{
    const auto share = [](double value) { return std::clamp(value, 0.0, 1.0); };
    return {share(color.red), share(color.green), share(color.blue), share(color.opacity)};
}

/// The share of white in the glass where the light is neither at its top nor gone.
double lightness(Material material)
{
    switch (material) {
    case Material::hudWindow:
        return 0.035;
    case Material::menu:
        return 0.055;
    case Material::popover:
        return 0.08;
    }
    return 0;
}

/// How much of the blurred desktop the glass itself covers. Set so that white text keeps a contrast of 4.5 to
/// 1 over a white wallpaper under the lightest glass and the thinnest veil.
double blurredOpacity(Material material)
{
    switch (material) {
    case Material::hudWindow:
        return 0.66;
    case Material::menu:
        return 0.62;
    case Material::popover:
        return 0.58;
    }
    return 1;
}

double overlayChannel(double below, double belowOpacity, double top, double topOpacity)
{
    const double outside = top * (1 - belowOpacity) + below * (1 - topOpacity);
    if (2 * below < belowOpacity)
        return 2 * top * below + outside;
    return topOpacity * belowOpacity - 2 * (belowOpacity - below) * (topOpacity - top) + outside;
}

} // namespace

Material material(double strength)
{
    const double s = limited(strength);
    if (s < 0.34)
        return Material::hudWindow;
    return s < 0.67 ? Material::menu : Material::popover;
}

double paneVeil(double strength)
{
    return std::clamp(0.32 - 0.16 * limited(strength), 0.2, 1.0);
}

double paneRim(bool reduceTransparency)
{
    return reduceTransparency ? 0.45 : 0.12;
}

double tileVeil(double strength, bool reduceTransparency)
{
    if (reduceTransparency)
        return 0.95;
    return strength <= 0 ? 0.58 : 0.58 - 0.26 * limited(strength);
}

TileStyle tileStyle(bool focused)
{
    if (focused)
        return {.gradientWhite = 0.1,
                .gradientAccent = 0.12,
                .overlayAccent = 0.12,
                .strokeWidth = 1.1,
                .strokeWhite = 0.5,
                .strokeSeparator = 0.18,
                .accentShadow = {.opacity = 0.12, .radius = 10, .y = 3},
                .blackShadow = {.opacity = 0.18, .radius = 9, .y = 4}};
    return {.gradientWhite = 0.055,
            .gradientAccent = 0.035,
            .overlayAccent = 0,
            .strokeWidth = 0.8,
            .strokeWhite = 0.22,
            .strokeSeparator = 0.08,
            .accentShadow = {.opacity = 0.04, .radius = 4, .y = 1},
            .blackShadow = {.opacity = 0.18, .radius = 4, .y = 2}};
}

Layer Layer::of(const ThemeColor &color, double opacityFactor)
{
    const ThemeColor drawn = limited(color);
    const double opacity = drawn.opacity * opacityFactor;
    return {drawn.red * opacity, drawn.green * opacity, drawn.blue * opacity, opacity};
}

Layer Layer::under(const Layer &top) const
{
    const double rest = 1 - top.opacity;
    return {top.red + red * rest, top.green + green * rest, top.blue + blue * rest,
            top.opacity + opacity * rest};
}

Layer Layer::underOverlay(const Layer &top) const
{
    return {overlayChannel(red, opacity, top.red, top.opacity),
            overlayChannel(green, opacity, top.green, top.opacity),
            overlayChannel(blue, opacity, top.blue, top.opacity), top.opacity + opacity * (1 - top.opacity)};
}

QColor Layer::toColor() const
{
    if (opacity <= 0)
        return Qt::transparent;
    const auto channel = [this](double value) {
        return static_cast<float>(std::clamp(value / opacity, 0.0, 1.0));
    };
    return QColor::fromRgbF(channel(red), channel(green), channel(blue),
                            static_cast<float>(std::min(opacity, 1.0)));
}

Layer paneColor(const PaneLook &look, double depth)
{
    ThemeColor tone = limited(look.theme.surface);
    if (look.backdrop == Backdrop::opaque)
        tone.opacity = 1;
    if (look.reduceTransparency)
        return Layer::of(tone);

    const Material glass = material(look.strength);
    // Light falls in from above: half as much again at the top edge, a third less once it has faded.
    const double away = 1 - std::clamp(depth / lightDepth, 0.0, 1.0);
    const double white = lightness(glass) * (0.65 + 0.85 * away * away);
    for (double *channel : {&tone.red, &tone.green, &tone.blue})
        *channel += (1 - *channel) * white;
    if (look.backdrop == Backdrop::blurred)
        tone.opacity = std::min(tone.opacity, blurredOpacity(glass));

    Layer result = Layer::of(tone).under({.opacity = paneVeil(look.strength)});
    if (look.tinted)
        result =
            result.under(Layer::of(look.theme.accent, 0.05)).underOverlay(Layer::of(look.theme.accent, 0.15));
    return result;
}

} // namespace brimlight::glass
