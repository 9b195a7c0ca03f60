#pragma once

#include <QPainterPath>
#include <QRectF>

namespace brimlight {

/// The outline of the panel: square upper corners, which flow out of the screen's edge, and rounded lower
/// ones.
struct NotchShape
{
    /// The largest corner radius of the panel's own outline, in points.
    static constexpr double maskRadius = 32;

    double bottomRadius = 0;
    /// How far the rectangle is drawn in on all sides.
    double insetAmount = 0;

    /// `rect` has its origin at the top left, y downwards.
    QPainterPath path(const QRectF &rect) const;
    NotchShape inset(double amount) const;
    /// The radius that is drawn: never more than half of the inset width or height.
    double effectiveRadius(const QRectF &rect) const;
};

} // namespace brimlight
