#include "notch/NotchPane.h"

#include "notch/NotchShape.h"

#include <QPainter>

namespace brimlight {

NotchPane::NotchPane(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    connect(this, &NotchPane::changed, this, [this] { update(); });
}

void NotchPane::setColor(const QColor &color)
{
    m_color = color;
    Q_EMIT changed();
}

void NotchPane::setRim(const QColor &rim)
{
    m_rim = rim;
    Q_EMIT changed();
}

void NotchPane::setBottomRadius(double radius)
{
    m_bottomRadius = radius;
    Q_EMIT changed();
}

void NotchPane::paint(QPainter *painter)
{
    const NotchShape shape{.bottomRadius = m_bottomRadius};
    const QRectF bounds = boundingRect();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->fillPath(shape.path(bounds), m_color);
    constexpr double hairline = 1;
    // The upper edge lies on the screen's edge: its hairline is pushed out of sight.
    const QRectF open = bounds.adjusted(0, -2 * hairline, 0, 0);
    painter->setPen(QPen(m_rim, hairline));
    painter->drawPath(shape.inset(hairline / 2).path(open));
}

} // namespace brimlight
