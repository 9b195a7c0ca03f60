#include "widgets/AnalogClockFace.h"

#include <QPainter>

#include <algorithm>

namespace brimlight {
namespace {

QColor faded(QColor color, float opacity)
{
    color.setAlphaF(color.alphaF() * opacity);
    return color;
}

/// A bar with its foot at the centre.
void drawHand(QPainter &painter, double degrees, double width, double length, double radius,
              const QColor &color)
{
    painter.save();
    painter.rotate(degrees);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(QRectF(-width / 2, -length, width, length), radius, radius);
    painter.restore();
}

} // namespace

ClockHands ClockHands::at(QTime time)
{
    const double minutes = time.minute() + time.second() / 60.0;
    const double hours = time.hour() % 12 + minutes / 60;
    return {.hour = hours / 12 * 360, .minute = minutes / 60 * 360, .second = time.second() / 60.0 * 360};
}

AnalogClockFace::AnalogClockFace(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    connect(this, &AnalogClockFace::changed, this, [this] { update(); });
}

void AnalogClockFace::setNow(const QDateTime &now)
{
    m_now = now;
    Q_EMIT changed();
}

void AnalogClockFace::paint(QPainter *painter)
{
    const double side = std::min(width(), height());
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(width() / 2, height() / 2);

    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(faded(m_secondary, 0.25F), 2));
    painter->drawEllipse(QPointF(), side / 2 - 1, side / 2 - 1);

    painter->setPen(Qt::NoPen);
    painter->setBrush(faded(m_secondary, 0.55F));
    for (int index = 0; index < 12; ++index) {
        painter->save();
        painter->rotate(index * 30);
        const double height = side * 0.05;
        painter->drawRoundedRect(QRectF(-1, -side * 0.42 - height / 2, 2, height), 1, 1);
        painter->restore();
    }
    const ClockHands hands = ClockHands::at(m_now.toLocalTime().time());
    drawHand(*painter, hands.hour, 4, side * 0.26, 2, m_primary);
    drawHand(*painter, hands.minute, 3, side * 0.36, 1.5, m_primary);
    drawHand(*painter, hands.second, 1.5, side * 0.4, 0.75, m_accent);
    painter->setBrush(m_accent);
    painter->drawEllipse(QPointF(), 3.5, 3.5);
}

} // namespace brimlight
