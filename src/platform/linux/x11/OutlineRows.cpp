#include "platform/linux/x11/OutlineRows.h"

#include <algorithm>
#include <cmath>

namespace brimlight {

std::vector<xcb_rectangle_t> outlineRows(const SurfaceOutline &outline, const Rect &extent,
                                         double devicePixelRatio)
{
    const auto pixels = [&](double points) { return points * devicePixelRatio; };
    // The pane is painted between whole pixels, too.
    const double left = std::round(pixels(outline.frame.minX() - extent.minX()));
    const double right = std::round(pixels(outline.frame.maxX() - extent.minX()));
    const double top = std::round(pixels(extent.maxY() - outline.frame.maxY()));
    const double bottom = std::round(pixels(extent.maxY() - outline.frame.minY()));
    if (right <= left || bottom <= top)
        return {};
    const auto row = [&](double y, double inset, double height) {
        return xcb_rectangle_t{static_cast<int16_t>(left + inset), static_cast<int16_t>(y),
                               static_cast<uint16_t>(std::max(0.0, right - left - 2 * inset)),
                               static_cast<uint16_t>(height)};
    };
    // The quadratic corner from (0, 0) by (0, r) to (r, r): at depth d it stands t^2 r in, t = 1 - sqrt(1 -
    // d/r). The inner edge of the row decides, so that no pixel that is drawn in part is cut off.
    const auto inset = [](double depth, double radius) {
        const double t = 1 - std::sqrt(1 - depth / radius);
        return std::floor(radius * t * t);
    };
    const double middle = std::ceil((top + bottom) / 2);
    const double upper = std::min(std::round(pixels(outline.topRadius)), middle - top);
    const double lower = std::min(std::round(pixels(outline.bottomRadius)), bottom - top - upper);
    std::vector<xcb_rectangle_t> rows;
    for (double depth = upper - 1; depth >= 0; --depth)
        rows.push_back(row(top + upper - 1 - depth, inset(depth, upper), 1));
    if (bottom - lower > top + upper)
        rows.push_back(row(top + upper, 0, bottom - lower - top - upper));
    for (double depth = 0; depth < lower; ++depth)
        rows.push_back(row(bottom - lower + depth, inset(depth, lower), 1));
    return rows;
}

} // namespace brimlight
