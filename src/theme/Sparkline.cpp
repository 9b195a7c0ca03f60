#include "theme/Sparkline.h"

#include "theme/Faded.h"
#include "theme/GaugeMotion.h"

#include <QLineF>
#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace brimlight {
namespace {

constexpr double lineWidth = 1.5;
constexpr double topOpacity = 0.35;
constexpr double bottomOpacity = 0.02;

} // namespace

QPolygonF sparklinePoints(const QList<double> &samples, QSizeF size)
{
    QPolygonF points;
    const double steps = samples.size() > 1 ? static_cast<double>(samples.size() - 1) : 1;
    for (qsizetype i = 0; i < samples.size(); ++i) {
        const double sample = std::clamp(samples[i], 0.0, 1.0);
        points << QPointF(size.width() * static_cast<double>(i) / steps, size.height() * (1 - sample));
    }
    return points;
}

QPolygonF sparklineStart(const QPolygonF &line, double fraction)
{
    if (fraction <= 0 || line.isEmpty())
        return {};
    if (fraction >= 1)
        return line;
    double length = 0;
    for (qsizetype i = 1; i < line.size(); ++i)
        length += QLineF(line[i - 1], line[i]).length();
    double left = length * fraction;
    QPolygonF start{line.first()};
    for (qsizetype i = 1; i < line.size(); ++i) {
        const QLineF piece(line[i - 1], line[i]);
        if (piece.length() >= left) {
            start << (piece.length() > 0 ? piece.pointAt(left / piece.length()) : piece.p2());
            break;
        }
        start << piece.p2();
        left -= piece.length();
    }
    return start;
}

QList<double> sparklineBetween(const QList<double> &from, const QList<double> &to, double progress)
{
    if (from.isEmpty() || to.isEmpty() || progress >= 1)
        return to;
    QList<double> between;
    between.reserve(to.size());
    for (qsizetype i = 0; i < to.size(); ++i) {
        const double place = to.size() > 1 ? static_cast<double>(i) / static_cast<double>(to.size() - 1) : 0;
        const double at = place * static_cast<double>(from.size() - 1);
        const auto left = static_cast<qsizetype>(at);
        const qsizetype right = std::min(left + 1, from.size() - 1);
        const double past = std::lerp(from[left], from[right], at - static_cast<double>(left));
        between << std::lerp(past, to[i], progress);
    }
    return between;
}

Sparkline::Sparkline(QQuickItem *parent)
    : GaugeItem(parent)
    , m_change(1, [this] { follow(); })
    , m_reveal(0, [this] { redraw(); })
{
}

void Sparkline::setValues(const QList<double> &values)
{
    if (values == m_values)
        return;
    if (animates() && m_values.size() > 1 && values.size() > 1 &&
        longestWay(shown(), values) >= GaugeMotion::unseenMove) {
        m_before = shown();
        m_way = longestWay(m_before, values);
        m_values = values;
        m_change.jumpTo(0);
        m_change.moveTo(1, GaugeMotion::samplesChange());
    } else {
        m_values = values;
        m_change.jumpTo(1);
    }
    Q_EMIT valuesChanged();
}

void Sparkline::setColor(const QColor &color)
{
    if (color == m_color)
        return;
    m_color = color;
    Q_EMIT colorChanged();
    redraw();
}

double Sparkline::overhang() const
{
    return std::ceil(lineWidth / 2);
}

void Sparkline::draw(QPainter &painter, double /*devicePixelRatio*/)
{
    m_drawn = m_change.value();
    const QPolygonF points = sparklinePoints(shown(), size());
    if (points.size() < 2)
        return;

    QPolygonF area = points;
    area << QPointF(points.last().x(), height()) << QPointF(points.first().x(), height());
    QLinearGradient fade(0, 0, 0, height());
    fade.setColorAt(0, faded(m_color, topOpacity));
    fade.setColorAt(1, faded(m_color, bottomOpacity));
    painter.setPen(Qt::NoPen);
    painter.setBrush(fade);
    painter.drawPolygon(area);

    painter.setPen(QPen(m_color, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(sparklineStart(points, m_reveal.value()));
}

void Sparkline::appeared()
{
    if (animates())
        m_reveal.moveTo(1, GaugeMotion::reveal());
    else
        m_reveal.jumpTo(1);
}

void Sparkline::settle()
{
    m_change.finish();
    m_reveal.finish();
}

void Sparkline::follow()
{
    if (!m_change.isRunning() || std::abs(m_change.value() - m_drawn) * m_way >= GaugeMotion::unseenMove)
        redraw();
}

double Sparkline::longestWay(const QList<double> &from, const QList<double> &to) const
{
    const QList<double> start = sparklineBetween(from, to, 0);
    double longest = 0;
    for (qsizetype i = 0; i < to.size(); ++i)
        longest = std::max(longest, std::abs(to[i] - start[i]) * height());
    return longest;
}

QList<double> Sparkline::shown() const
{
    return sparklineBetween(m_before, m_values, m_change.value());
}

} // namespace brimlight
