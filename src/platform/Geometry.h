#pragma once

#include <cmath>

namespace brimlight {

/// A point of the logical screen space: points, origin at the bottom left of the primary screen, y upwards.
struct Point
{
    double x = 0;
    double y = 0;

    bool operator==(const Point &) const = default;
};

/// A rectangle of the same space. `x`, `y` is its lower left corner; sizes are never negative.
struct Rect
{
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    bool operator==(const Rect &) const = default;

    double minX() const { return x; }
    double midX() const { return x + width / 2; }
    double maxX() const { return x + width; }
    double minY() const { return y; }
    double maxY() const { return y + height; }
    bool isEmpty() const { return width <= 0 || height <= 0; }

    /// The rectangle grown by `margin` on all four sides.
    Rect outset(double margin) const
    {
        return {x - margin, y - margin, width + 2 * margin, height + 2 * margin};
    }

    /// True when the point lies inside or on an edge.
    bool contains(Point p) const { return p.x >= minX() && p.x <= maxX() && p.y >= minY() && p.y <= maxY(); }
};

} // namespace brimlight
