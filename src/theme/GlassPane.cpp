#include "theme/GlassPane.h"

#include "theme/GlassDither.h"
#include "theme/NotchShape.h"
#include "theme/SoftShadow.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace brimlight {
namespace {

constexpr int lightWidth = 256;
constexpr int rimRows = 256;

softshadow::Caster shadowCaster(double bottomRadius, double devicePixelRatio)
{
    return {.outline = softshadow::Outline::notch,
            .cornerRadius = bottomRadius * devicePixelRatio,
            .blurRadius = glass::paneShadow.radius * devicePixelRatio};
}

/// Cuts a length into a beginning, a middle and an end. The beginning and the end give way to each other
/// where there is no room for a middle.
struct Cuts
{
    int first = 0;
    int middle = 0;
    int last = 0;

    static Cuts of(int length, int ends)
    {
        const int first = std::min(ends, length / 2);
        const int last = std::min(ends, length - first);
        return {first, length - first - last, last};
    }
};

} // namespace

void GlassPane::setLook(const glass::PaneLook &look, double bottomRadius, double devicePixelRatio)
{
    if (look == m_look && bottomRadius == m_bottomRadius && devicePixelRatio == m_devicePixelRatio)
        return;
    m_look = look;
    m_bottomRadius = bottomRadius;
    m_devicePixelRatio = devicePixelRatio;
    m_images = {};
    m_cornerRadius = -1;
}

int GlassPane::pixels(double points) const
{
    return static_cast<int>(std::lround(points * m_devicePixelRatio));
}

glass::Layer GlassPane::rowColor(int y) const
{
    return glass::paneColor(m_look, (y + 0.5) / m_devicePixelRatio);
}

void GlassPane::fillRow(QImage &image, int imageY, int paneY) const
{
    const glass::Layer color = rowColor(paneY);
    auto *line = reinterpret_cast<QRgb *>(image.scanLine(imageY));
    for (int x = 0; x < image.width(); ++x)
        line[x] = glass::dithered(color, x, paneY);
}

void GlassPane::paintLight()
{
    QImage &light = slot(Picture::light);
    if (!light.isNull())
        return;
    const int depth = pixels(glass::lightDepth);
    light = QImage(lightWidth, depth, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < depth; ++y)
        fillRow(light, y, y);
}

void GlassPane::paintCorners(int radius, int paneY)
{
    // Below the light all corners look the same.
    const int y = std::min(paneY, pixels(glass::lightDepth));
    if (radius == m_cornerRadius && y == m_cornerY)
        return;
    m_cornerRadius = radius;
    m_cornerY = y;
    QImage left(radius, radius, QImage::Format_ARGB32_Premultiplied);
    for (int row = 0; row < radius; ++row)
        fillRow(left, row, y + row);
    QImage mask(left.size(), QImage::Format_ARGB32_Premultiplied);
    mask.fill(Qt::transparent);
    {
        QPainter painter(&mask);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF wide(0, -4.0 * radius, 4.0 * radius, 5.0 * radius);
        painter.fillPath(NotchShape{.bottomRadius = static_cast<double>(radius)}.path(wide), Qt::black);
    }
    {
        QPainter painter(&left);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        painter.drawImage(0, 0, mask);
    }
    slot(Picture::rightCorner) = left.mirrored(true, false);
    slot(Picture::leftCorner) = std::move(left);
}

void GlassPane::paintShadow()
{
    QImage &shadow = slot(Picture::shadow);
    if (!shadow.isNull())
        return;
    const softshadow::Caster caster = shadowCaster(m_bottomRadius, m_devicePixelRatio);
    const int reach = softshadow::reach(caster.blurRadius);
    const int drop = pixels(glass::paneShadow.y);
    const int margin = reach + drop;
    const int corner = static_cast<int>(std::ceil(caster.cornerRadius)) + margin;
    const QSize pane(2 * corner + 1, 2 * corner + 1);
    shadow = QImage(pane + QSize(2 * margin, 2 * margin), QImage::Format_ARGB32_Premultiplied);
    shadow.fill(Qt::transparent);
    QPainter painter(&shadow);
    painter.drawImage(QPoint(margin - reach, margin - reach + drop),
                      softshadow::image(caster, pane, QColor::fromRgbF(0, 0, 0, glass::paneShadow.opacity)));
    // A translucent pane must not show its own shadow.
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.fillPath(NotchShape{.bottomRadius = caster.cornerRadius}.path({QPoint(margin, margin), pane}),
                     Qt::black);
}

void GlassPane::paintRim()
{
    QImage &rim = slot(Picture::rim);
    if (!rim.isNull())
        return;
    rim = QImage(std::max(1, pixels(1)), rimRows, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < rimRows; ++y) {
        const double light = glass::paneRim(m_look.reduceTransparency) * (1 - (y + 0.5) / rimRows);
        const auto value = static_cast<int>(std::lround(255 * light));
        std::fill_n(reinterpret_cast<QRgb *>(rim.scanLine(y)), rim.width(),
                    qRgba(value, value, value, value));
    }
}

void GlassPane::addShadow(std::vector<Piece> &pieces, QSize size) const
{
    const QImage &shadow = image(Picture::shadow);
    const double blurRadius = shadowCaster(m_bottomRadius, m_devicePixelRatio).blurRadius;
    const int margin = softshadow::reach(blurRadius) + pixels(glass::paneShadow.y);
    const int far = shadow.width() - margin;
    const int middle = shadow.width() / 2;
    const int corner = middle - margin;
    const Cuts across = Cuts::of(size.width(), corner);
    const Cuts down = Cuts::of(size.height(), corner);
    const auto add = [&](const QRect &target, const QRect &source) {
        if (!target.isEmpty() && !source.isEmpty())
            pieces.push_back({.picture = Picture::shadow, .target = target, .source = source});
    };
    // Nothing but the margin is ever seen at the sides and above; below, the corners are.
    const int sides[] = {-margin, size.width()};
    const int sideSources[] = {0, far};
    for (int i = 0; i < 2; ++i) {
        add({sides[i], -margin, margin, margin + down.first},
            {sideSources[i], 0, margin, margin + down.first});
        add({sides[i], down.first, margin, down.middle}, {sideSources[i], middle, margin, 1});
        add({sides[i], size.height() - down.last, margin, down.last + margin},
            {sideSources[i], far - down.last, margin, down.last + margin});
    }
    const int radius = std::min(static_cast<int>(std::ceil(m_bottomRadius * m_devicePixelRatio)), down.last);
    const struct
    {
        int y, height, source;
    } bands[] = {{-margin, margin, 0}, {size.height() - radius, radius + margin, far - radius}};
    for (const auto &band : bands) {
        add({0, band.y, across.first, band.height}, {margin, band.source, across.first, band.height});
        add({size.width() - across.last, band.y, across.last, band.height},
            {far - across.last, band.source, across.last, band.height});
    }
    add({across.first, -margin, across.middle, margin}, {middle, 0, 1, margin});
    add({across.first, size.height(), across.middle, margin}, {middle, far, 1, margin});
}

void GlassPane::addRim(std::vector<Piece> &pieces, QSize size) const
{
    const int width = std::max(1, pixels(1));
    const double light = glass::paneRim(m_look.reduceTransparency);
    const int end = size.height() / 2;
    if (end <= width || size.width() <= 2 * width)
        return;
    pieces.push_back({.color = QColor::fromRgbF(1, 1, 1, static_cast<float>(light)),
                      .target = {0, 0, size.width(), width}});
    for (const int x : {0, size.width() - width})
        pieces.push_back({.picture = Picture::rim,
                          .target = {x, width, width, end - width},
                          .source = {0, 0, width, rimRows}});
}

std::vector<GlassPane::Piece> GlassPane::pieces(QSize size)
{
    std::vector<Piece> pieces;
    if (size.isEmpty() || m_devicePixelRatio <= 0)
        return pieces;
    paintLight();
    paintShadow();
    addShadow(pieces, size);

    const double exactRadius =
        NotchShape{.bottomRadius = m_bottomRadius * m_devicePixelRatio}.effectiveRadius(
            QRectF(QPointF(), QSizeF(size)));
    const int radius = static_cast<int>(std::floor(exactRadius));
    const int straight = size.height() - radius;
    const int lit = pixels(glass::lightDepth);
    // Between the sides of the corners the body goes on to the lower edge.
    const auto addBody = [&](int left, int right, int from, int to) {
        for (int x = left; x < right && from < std::min(to, lit); x += lightWidth) {
            const QSize part(std::min(lightWidth, right - x), std::min(to, lit) - from);
            pieces.push_back(
                {.picture = Picture::light, .target = {{x, from}, part}, .source = {{0, from}, part}});
        }
        const int top = std::max(from, lit);
        if (top < to && left < right)
            pieces.push_back(
                {.color = rowColor(lit).toColor(), .target = {left, top, right - left, to - top}});
    };
    addBody(0, size.width(), 0, straight);
    if (radius > 0) {
        paintCorners(radius, straight);
        pieces.push_back({.picture = Picture::leftCorner,
                          .target = {0, straight, radius, radius},
                          .source = {0, 0, radius, radius}});
        addBody(radius, size.width() - radius, straight, size.height());
        pieces.push_back({.picture = Picture::rightCorner,
                          .target = {size.width() - radius, straight, radius, radius},
                          .source = {0, 0, radius, radius}});
    }
    if (m_look.border) {
        paintRim();
        addRim(pieces, size);
    }
    return pieces;
}

void GlassPane::paint(QPainter &painter, QSize size)
{
    for (const Piece &piece : pieces(size)) {
        if (piece.picture == Picture::none)
            painter.fillRect(piece.target, piece.color);
        else
            painter.drawImage(piece.target, image(piece.picture), piece.source);
    }
}

} // namespace brimlight
