#include "grid/HighlightFrame.h"

#include "grid/GridMetrics.h"
#include "theme/Superellipse.h"

#include <QPainter>

namespace brimlight {

void HighlightFrame::setColor(const QColor &color)
{
    m_color = color;
    Q_EMIT colorChanged();
    update();
}

void HighlightFrame::paint(QPainter *painter)
{
    constexpr double lineWidth = 1.5;
    const auto faded = [this](float opacity) {
        QColor color = m_color;
        color.setAlphaF(opacity);
        return color;
    };
    const QRectF bounds = boundingRect();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->fillPath(superellipsePath(bounds, gridMetrics::highlightRadius), faded(0.16F));
    QPen pen(faded(0.75F), lineWidth);
    pen.setCapStyle(Qt::FlatCap);
    // A dash pattern counts in line widths; the dashes are 4 on and 3 off in points.
    pen.setDashPattern({4 / lineWidth, 3 / lineWidth});
    painter->setPen(pen);
    const double half = lineWidth / 2;
    painter->drawPath(
        superellipsePath(bounds.adjusted(half, half, -half, -half), gridMetrics::highlightRadius - half));
}

} // namespace brimlight
