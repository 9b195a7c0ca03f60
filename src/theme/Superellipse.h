#pragma once

#include <QPainterPath>
#include <QRectF>

namespace brimlight {

/// A rectangle with continuous corners: the curvature rises from the straight edge to the corner without a
/// jump, so that light on the rim shows no joint.
///
/// A corner is a quarter of the superellipse |x/e|^n + |y/e|^n = 1. It begins at e = 1.5 x `radius` from the
/// corner of the rectangle, or at half of the shorter side where that is less. The exponent is chosen so that
/// on the diagonal the corner passes where a circle of `radius` does, at (1 - 1/sqrt 2) x `radius` from both
/// edges:
///
///     1 - 2^(-1/n) = (1 - 1/sqrt 2) x radius / e
///
/// which is n = 3.19 with the full 1.5 and n = 2, a circle, where `radius` is half of the side. Any n above 2
/// has no curvature at its ends, as the edge has none. Radii outside of 0 to half of the shorter side are
/// limited to it.
QPainterPath superellipsePath(const QRectF &rect, double radius);

/// How far a corner reaches along the edges of a rectangle with this shorter side.
double superellipseExtent(double shorterSide, double radius);

} // namespace brimlight
