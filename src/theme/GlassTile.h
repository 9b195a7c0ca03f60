#pragma once

#include "theme/Glass.h"

#include <QImage>
#include <QSize>

namespace brimlight::glass {

struct TileLook
{
    Theme theme;
    double strength = 0;
    bool focused = false;
    bool reduceTransparency = false;
    /// Nothing beneath shines through.
    bool solid = false;
    /// Points.
    double radius = 22;
    double devicePixelRatio = 1;
    /// False leaves the two shadows out, for a place that cuts everything outside of the tile off.
    bool shadows = true;
};

/// Whole pixels that the shadows of a tile reach beyond it on all sides.
int tileMargin(const TileLook &look);

/// The background of a tile of `pixels`, larger by `tileMargin` on all four sides.
QImage paintTile(const TileLook &look, QSize pixels);

} // namespace brimlight::glass
