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

void NotchOutline::setFilled(bool filled)
{
    m_filled = filled;
    Q_EMIT filledChanged();
    update();
}

void NotchOutline::paint(QPainter *painter)
{
    constexpr double lineWidth = 2;
    const NotchShape shape{.bottomRadius = NotchShape::maskRadius};
    painter->setRenderHint(QPainter::Antialiasing);
    if (m_filled) {
        painter->fillPath(shape.path(boundingRect()), m_color);
        return;
    }
    painter->setPen(QPen(m_color, lineWidth));
    painter->drawPath(shape.inset(lineWidth / 2).path(boundingRect()));
}

} // namespace brimlight
