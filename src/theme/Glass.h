#pragma once

#include "theme/Theme.h"

namespace brimlight::glass {

/// What lies behind the pane.
enum class Backdrop {
    /// Nobody composites the screen: every pixel must be opaque.
    opaque,
    /// The desktop shines through as it is.
    translucent,
    /// The desktop shines through blurred.
    blurred,
};

/// How light the glass itself is, darkest first.
enum class Material { hudWindow, menu, popover };

/// Strengths are 0 to 1. They come from a stored preference without a range check: more than 1 counts as 1,
/// less than 0 is no glass at all wherever 0 is.
Material material(double strength);

/// Opacity of the black over the pane's glass.
double paneVeil(double strength);

/// Opacity of the white at the top of the pane's rim.
double paneRim(bool reduceTransparency);

/// Opacity of the black in a tile.
double tileVeil(double strength, bool reduceTransparency);

struct Shadow
{
    double opacity = 0;
    /// Points. The shadow is a Gaussian of half of this as standard deviation.
    double radius = 0;
    /// Points downwards.
    double y = 0;
};

inline constexpr Shadow paneShadow{.opacity = 0.3, .radius = 22, .y = 9};

/// The opacities that tell a tile under the pointer from the others.
struct TileStyle
{
    double gradientWhite = 0;
    double gradientAccent = 0;
    /// Of the accent in overlay mode; 0 for none.
    double overlayAccent = 0;
    double strokeWidth = 0;
    double strokeWhite = 0;
    double strokeSeparator = 0;
    /// In the accent colour, lies below the black one.
    Shadow accentShadow;
    Shadow blackShadow;
};

TileStyle tileStyle(bool focused);

/// A premultiplied colour, channels 0 to 1.
struct Layer
{
    double red = 0;
    double green = 0;
    double blue = 0;
    double opacity = 0;

    static Layer of(const ThemeColor &color, double opacityFactor = 1);
    /// `top` laid over this.
    Layer under(const Layer &top) const;
    /// `top` laid over this in overlay mode.
    Layer underOverlay(const Layer &top) const;
    QColor toColor() const;
};

/// Points from the top edge over which the light fades on the pane.
inline constexpr double lightDepth = 260;

struct PaneLook
{
    Theme theme;
    double strength = 0;
    bool tinted = false;
    bool border = false;
    bool reduceTransparency = false;
    Backdrop backdrop = Backdrop::opaque;

    bool operator==(const PaneLook &) const = default;
};

/// All layers of the pane but rim and shadow, `depth` points below its top edge. From `lightDepth` on the
/// colour stays the same.
Layer paneColor(const PaneLook &look, double depth);

} // namespace brimlight::glass
