#include "theme/RingGauge.h"

#include "theme/Faded.h"
#include "theme/GaugeMotion.h"

#include <QConicalGradient>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace brimlight {
namespace {

constexpr double smallestProgress = 0.001;
constexpr double startOpacity = 0.38;
constexpr double endOpacity = 0.74;
constexpr double glowOpacity = 0.4;
constexpr double glowRadius = 2.5;
/// Beyond this the glow is below what eight bits can tell.
constexpr double glowReach = 2.4 * glowRadius;
/// In points along the ring.
constexpr double unseenRest = 0.25;

/// A line of that width, blurred, at a distance from its middle: 1 where it is fully seen.
double glowAt(double distance, double lineWidth)
{
    constexpr double sigma = 0.8 * glowRadius;
    const auto edge = [&](double from) { return std::erf(from / (sigma * std::numbers::sqrt2)); };
    return 0.5 * (edge(lineWidth / 2 - distance) + edge(lineWidth / 2 + distance));
}

QImage transparentImage(QSizeF size, double devicePixelRatio)
{
    QImage image((size * devicePixelRatio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(Qt::transparent);
    return image;
}

/// Every pixel of the image in the tint, as opaque as `opacity` says for its place in points.
template<typename Opacity>
void fillPixels(QImage &image, const QColor &tint, Opacity opacity)
{
    const double ratio = image.devicePixelRatio();
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = faded(tint, opacity(QPointF((x + 0.5) / ratio, (y + 0.5) / ratio)));
            line[x] = qPremultiply(color.rgba());
        }
    }
}

} // namespace

double ringProgress(double value)
{
    return value > smallestProgress ? std::min(value, 1.0) : smallestProgress;
}

double ringOpacity(double turn)
{
    return turn < 0.5 ? std::lerp(startOpacity, 1.0, std::max(turn, 0.0) * 2)
                      : std::lerp(1.0, endOpacity, std::min(turn, 1.0) * 2 - 1);
}

RingGauge::RingGauge(QQuickItem *parent)
    : GaugeItem(parent)
    , m_progress(smallestProgress, [this] {
        follow();
        Q_EMIT progressChanged();
    })
{
}

void RingGauge::setValue(double value)
{
    if (value == m_value)
        return;
    m_value = value;
    const double goal = ringProgress(value);
    if (animates() && pointsTo(goal) >= GaugeMotion::unseenMove)
        m_progress.moveTo(goal, m_motion);
    else
        m_progress.jumpTo(goal);
    Q_EMIT valueChanged();
}

void RingGauge::setLineWidth(double width)
{
    if (width == m_lineWidth)
        return;
    m_lineWidth = width;
    m_trackRing = m_glowRing = m_glowCap = {};
    Q_EMIT lineWidthChanged();
    fitCanvas();
}

void RingGauge::setTint(const QColor &tint)
{
    if (tint == m_tint)
        return;
    m_tint = tint;
    m_glowRing = m_glowCap = {};
    Q_EMIT tintChanged();
    redraw();
}

void RingGauge::setTrack(const QColor &track)
{
    if (track == m_track)
        return;
    m_track = track;
    m_trackRing = {};
    Q_EMIT trackChanged();
    redraw();
}

void RingGauge::setDuration(int milliseconds)
{
    m_motion.duration = std::chrono::milliseconds(milliseconds);
    Q_EMIT motionChanged();
}

void RingGauge::setEasing(const QEasingCurve &easing)
{
    m_motion.easing = easing;
    Q_EMIT motionChanged();
}

double RingGauge::overhang() const
{
    return std::ceil(m_lineWidth / 2 + glowReach);
}

void RingGauge::appeared()
{
    if (!animates())
        return;
    m_progress.jumpTo(smallestProgress);
    m_progress.moveTo(ringProgress(m_value), GaugeMotion::reveal());
}

void RingGauge::settle()
{
    m_progress.finish();
}

/// Many rings change a little at every tick, and the tail of a spring has more frames than the eye can see.
void RingGauge::follow()
{
    if (pointsTo(m_drawn) >= (m_progress.isRunning() ? GaugeMotion::unseenMove : unseenRest))
        redraw();
}

double RingGauge::pointsTo(double progress) const
{
    return std::abs(m_progress.value() - progress) * circle().width() * std::numbers::pi;
}

QRectF RingGauge::circle() const
{
    const double side = std::min(width(), height());
    return {(width() - side) / 2, (height() - side) / 2, side, side};
}

double RingGauge::capDegrees() const
{
    return std::atan2(m_lineWidth / 2, circle().width() / 2) * 180 / std::numbers::pi;
}

void RingGauge::draw(QPainter &painter, double devicePixelRatio)
{
    if (circle().isEmpty() || m_lineWidth <= 0)
        return;
    m_drawn = m_progress.value();
    drawTrack(painter, devicePixelRatio);

    const double turn = ringProgress(m_progress.value());
    drawGlow(painter, turn, devicePixelRatio);
    drawArc(painter, turn, devicePixelRatio);
}

QSizeF RingGauge::canvasSize() const
{
    return size() + QSizeF(2 * overhang(), 2 * overhang());
}

QImage RingGauge::canvas(double devicePixelRatio) const
{
    return transparentImage(canvasSize(), devicePixelRatio);
}

bool RingGauge::isCanvas(const QImage &image, double devicePixelRatio) const
{
    return image.devicePixelRatio() == devicePixelRatio &&
           image.size() == (canvasSize() * devicePixelRatio).toSize();
}

void RingGauge::drawTrack(QPainter &painter, double devicePixelRatio)
{
    const QPointF origin(-overhang(), -overhang());
    if (!isCanvas(m_trackRing, devicePixelRatio)) {
        m_trackRing = canvas(devicePixelRatio);
        QPainter ring(&m_trackRing);
        ring.setRenderHint(QPainter::Antialiasing);
        ring.translate(-origin);
        ring.setPen(QPen(m_track, m_lineWidth));
        ring.drawEllipse(circle());
    }
    painter.drawImage(origin, m_trackRing);
}

/// The colour along the arc. Gradients run counter-clockwise, so the stops stand in reverse; the seam lies
/// before the round start, which would otherwise show the colour of the far end on one half.
QBrush RingGauge::arcBrush() const
{
    const double cap = capDegrees() / 360;
    QConicalGradient gradient(circle().center(), 90 + capDegrees());
    gradient.setColorAt(1, faded(m_tint, startOpacity));
    gradient.setColorAt(1 - cap, faded(m_tint, startOpacity));
    gradient.setColorAt(0.5 - cap, m_tint);
    gradient.setColorAt(0, faded(m_tint, ringOpacity(1 - cap)));
    return gradient;
}

void RingGauge::drawArc(QPainter &painter, double turn, double devicePixelRatio)
{
    const auto arc = [this](double from, double to) {
        QPainterPath path;
        path.arcMoveTo(circle(), 90 - from * 360);
        path.arcTo(circle(), 90 - from * 360, (from - to) * 360);
        return path;
    };
    const auto pen = [this](const QBrush &brush) {
        return QPen(brush, m_lineWidth, Qt::SolidLine, Qt::RoundCap);
    };
    const double cap = capDegrees() / 360;
    if (turn <= 1 - 2 * cap) {
        painter.strokePath(arc(0, turn), pen(arcBrush()));
        return;
    }

    // The round end lies over the start. It replaces what is below it, since both are translucent.
    const QPointF origin(-overhang(), -overhang());
    QImage image = canvas(devicePixelRatio);
    QPainter layer(&image);
    layer.setRenderHint(QPainter::Antialiasing);
    layer.translate(-origin);
    layer.strokePath(arc(0, turn), pen(arcBrush()));
    const QPainterPath end = arc(std::max(0.5, turn - 3 * cap), turn);
    QConicalGradient gradient(circle().center(), 270);
    gradient.setColorAt(1, m_tint);
    gradient.setColorAt(0.5, faded(m_tint, endOpacity));
    gradient.setColorAt(0, faded(m_tint, endOpacity));
    layer.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    layer.strokePath(end, pen(Qt::black));
    layer.setCompositionMode(QPainter::CompositionMode_Plus);
    layer.strokePath(end, pen(gradient));
    layer.end();
    painter.drawImage(origin, image);
}

void RingGauge::drawGlow(QPainter &painter, double turn, double devicePixelRatio)
{
    const QPointF origin(-overhang(), -overhang());
    if (!isCanvas(m_glowRing, devicePixelRatio)) {
        m_glowRing = glowOfRing(devicePixelRatio);
        m_glowCap = glowOfCap(devicePixelRatio);
    }
    if (turn >= 1) {
        painter.drawImage(origin, m_glowRing);
        return;
    }

    const double reach = circle().width() / 2 + overhang();
    const QPointF centre = circle().center();
    QPainterPath sector(centre);
    sector.arcTo(QRectF(centre - QPointF(reach, reach), QSizeF(2 * reach, 2 * reach)), 90, -turn * 360);
    sector.closeSubpath();
    QImage texture = m_glowRing;
    texture.setDevicePixelRatio(1);
    QBrush brush(texture);
    brush.setTransform(
        QTransform::fromTranslate(origin.x(), origin.y()).scale(1 / devicePixelRatio, 1 / devicePixelRatio));
    painter.fillPath(sector, brush);

    const double cap = overhang();
    const double middle = m_glowCap.width() / 2.0;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.save();
    painter.translate(centre);
    painter.translate(0, -circle().width() / 2);
    painter.setOpacity(startOpacity);
    painter.drawImage(QRectF(-cap, -cap, cap, 2 * cap), m_glowCap, QRectF(0, 0, middle, 2 * middle));
    painter.restore();
    painter.save();
    painter.translate(centre);
    painter.rotate(turn * 360);
    painter.translate(0, -circle().width() / 2);
    painter.setOpacity(ringOpacity(turn));
    painter.drawImage(QRectF(0, -cap, cap, 2 * cap), m_glowCap, QRectF(middle, 0, middle, 2 * middle));
    painter.restore();
}

QImage RingGauge::glowOfRing(double devicePixelRatio) const
{
    QImage image = canvas(devicePixelRatio);
    const QPointF centre = circle().center() + QPointF(overhang(), overhang());
    fillPixels(image, m_tint, [&](QPointF at) {
        const QPointF arm = at - centre;
        const double distance = std::abs(std::hypot(arm.x(), arm.y()) - circle().width() / 2);
        if (distance > m_lineWidth / 2 + glowReach)
            return 0.0;
        const double turn = std::atan2(arm.x(), -arm.y()) / (2 * std::numbers::pi);
        return glowOpacity * glowAt(distance, m_lineWidth) * ringOpacity(turn < 0 ? turn + 1 : turn);
    });
    return image;
}

QImage RingGauge::glowOfCap(double devicePixelRatio) const
{
    QImage image = transparentImage(QSizeF(2 * overhang(), 2 * overhang()), devicePixelRatio);
    fillPixels(image, m_tint, [&](QPointF at) {
        const QPointF arm = at - QPointF(overhang(), overhang());
        return glowOpacity * glowAt(std::hypot(arm.x(), arm.y()), m_lineWidth);
    });
    return image;
}

} // namespace brimlight
