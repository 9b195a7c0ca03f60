#include "theme/NotchShape.h"

#include <algorithm>

namespace brimlight {
namespace {

QRectF insetRect(const QRectF &rect, double amount)
{
    return rect.adjusted(amount, amount, -amount, -amount);
}

} // namespace

QPainterPath NotchShape::path(const QRectF &rect) const
{
    const QRectF r = insetRect(rect, insetAmount);
    const double radius = effectiveRadius(rect);
    QPainterPath path;
    path.moveTo(r.left(), r.top());
    path.lineTo(r.right(), r.top());
    path.lineTo(r.right(), r.bottom() - radius);
    path.quadTo(r.right(), r.bottom(), r.right() - radius, r.bottom());
    path.lineTo(r.left() + radius, r.bottom());
    path.quadTo(r.left(), r.bottom(), r.left(), r.bottom() - radius);
    path.closeSubpath();
    return path;
}

NotchShape NotchShape::inset(double amount) const
{
    return {.bottomRadius = bottomRadius, .insetAmount = insetAmount + amount};
}

double NotchShape::effectiveRadius(const QRectF &rect) const
{
    const QRectF r = insetRect(rect, insetAmount);
    return std::max(0.0, std::min({bottomRadius, r.height() / 2, r.width() / 2}));
}

} // namespace brimlight
