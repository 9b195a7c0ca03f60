#include "notch/NotchOutline.h"

#include "theme/NotchShape.h"

#include <QPainter>

namespace brimlight {

void NotchOutline::setColor(const QColor &color)
{
    m_color = color;
    Q_EMIT colorChanged();
    update();
}

void NotchOutline::paint(QPainter *painter)
{
    constexpr double lineWidth = 2;
    const NotchShape shape{.bottomRadius = NotchShape::maskRadius, .insetAmount = lineWidth / 2};
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(m_color, lineWidth));
    painter->drawPath(shape.path(boundingRect()));
}

} // namespace brimlight
