#pragma once

#include "platform/OverlaySurface.h"

#include <xcb/xcb.h>

#include <vector>

namespace brimlight {

/// The rows of pixels that an outline covers, within a window whose frame is `extent`.
std::vector<xcb_rectangle_t> outlineRows(const SurfaceOutline &outline, const Rect &extent,
                                         double devicePixelRatio);

} // namespace brimlight
