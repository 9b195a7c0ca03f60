#include "theme/Superellipse.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace brimlight {
namespace {

constexpr double reach = 1.5;
/// Straight pieces of a corner: with radius 22 at scale 2 they leave the curve by a hundredth of a pixel.
constexpr int pieces = 40;
constexpr double diagonalInset = 1 - 1 / std::numbers::sqrt2;

double limitedRadius(double shorterSide, double radius)
{
    return std::clamp(radius, 0.0, std::max(0.0, shorterSide / 2));
}

/// One corner in units of its extent, from the horizontal edge to the vertical one: (1, 0) to (0, 1).
std::array<QPointF, pieces + 1> unitCorner(double exponent)
{
    std::array<QPointF, pieces + 1> points;
    for (int i = 0; i <= pieces; ++i) {
        const double angle = std::numbers::pi / 2 * i / pieces;
        points.at(i) = {1 - std::pow(std::sin(angle), 2 / exponent),
                        1 - std::pow(std::cos(angle), 2 / exponent)};
    }
    points.front() = {1, 0};
    points.back() = {0, 1};
    return points;
}

} // namespace

double superellipseExtent(double shorterSide, double radius)
{
    return std::min(reach * limitedRadius(shorterSide, radius), std::max(0.0, shorterSide / 2));
}

QPainterPath superellipsePath(const QRectF &rect, double radius)
{
    QPainterPath path;
    const double side = std::min(rect.width(), rect.height());
    const double nominal = limitedRadius(side, radius);
    if (nominal <= 0) {
        path.addRect(rect);
        return path;
    }
    const double extent = superellipseExtent(side, radius);
    const double exponent = -std::numbers::ln2 / std::log(1 - diagonalInset * nominal / extent);
    const auto corner = unitCorner(exponent);
    path.reserve(4 * (pieces + 1) + 1);
    path.moveTo(rect.right() - extent, rect.top());
    // Clockwise from the upper edge: every other corner is walked backwards.
    const auto walk = [&](QPointF at, double dx, double dy, bool backwards) {
        for (int i = 0; i <= pieces; ++i) {
            const QPointF &unit = corner.at(backwards ? pieces - i : i);
            path.lineTo(at.x() + dx * extent * unit.x(), at.y() + dy * extent * unit.y());
        }
    };
    walk(rect.topRight(), -1, 1, false);
    walk(rect.bottomRight(), -1, -1, true);
    walk(rect.bottomLeft(), 1, -1, false);
    walk(rect.topLeft(), 1, 1, true);
    path.closeSubpath();
    return path;
}

} // namespace brimlight
