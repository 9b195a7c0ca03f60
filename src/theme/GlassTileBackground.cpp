#include "theme/GlassTileBackground.h"

#include <QPixmapCache>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGOpacityNode>

#include <algorithm>
#include <cmath>
#include <vector>

namespace brimlight {
namespace {

QString cacheKey(const glass::TileLook &look, QSize pixels)
{
    QString key = QStringLiteral("brimlight.tile %1x%2 %3 %4 %5%6%7%8 %9")
                      .arg(pixels.width())
                      .arg(pixels.height())
                      .arg(look.devicePixelRatio)
                      .arg(look.radius)
                      .arg(look.focused)
                      .arg(look.reduceTransparency)
                      .arg(look.solid)
                      .arg(look.shadows)
                      .arg(look.strength);
    for (const QColor &color : {look.theme.accentColor(), look.theme.surfaceColor(),
                                look.theme.surfaceElevatedColor(), look.theme.separatorColor()})
        key += QLatin1Char(' ') + QString::number(static_cast<quint64>(color.rgba64()), 16);
    return key;
}

QPixmap sharedTile(const glass::TileLook &look, QSize pixels)
{
    const QString key = cacheKey(look, pixels);
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = QPixmap::fromImage(glass::paintTile(look, pixels));
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

/// The looks that are seen, in one rectangle each, fading by opacity. A transform without effect, since the
/// software renderer knows the place of transforms but not of plain nodes, and looks it up when a part's
/// opacity changes.
class TileNode : public QSGTransformNode
{
public:
    void add(QQuickWindow &window, const QPixmap &pixmap)
    {
        QSGImageNode *image = window.createImageNode();
        image->setOwnsTexture(true);
        image->setFlag(QSGNode::OwnedByParent);
        // Drawn pixel by pixel at rest; while a tile is scaled up by a hair, speed is worth more.
        image->setFiltering(QSGTexture::Nearest);
        Look look{.opacity = new QSGOpacityNode, .image = image};
        // The software renderer looks at the texture as soon as the node is in the tree.
        setPixmap(window, look, pixmap);
        look.opacity->appendChildNode(image);
        appendChildNode(look.opacity);
        m_looks.push_back(look);
    }

    void show(QQuickWindow &window, size_t index, const QPixmap &pixmap, const QRectF &rect, double opacity)
    {
        Look &look = m_looks.at(index);
        if (look.key != pixmap.cacheKey())
            setPixmap(window, look, pixmap);
        look.image->setRect(rect);
        look.opacity->setOpacity(opacity);
    }

    size_t count() const { return m_looks.size(); }

private:
    struct Look
    {
        QSGOpacityNode *opacity = nullptr;
        QSGImageNode *image = nullptr;
        qint64 key = 0;
    };

    static void setPixmap(QQuickWindow &window, Look &look, const QPixmap &pixmap)
    {
        look.key = pixmap.cacheKey();
        look.image->setTexture(window.createTextureFromImage(pixmap.toImage()));
        look.image->setSourceRect(QRectF(QPointF(), QSizeF(pixmap.size())));
    }

    std::vector<Look> m_looks;
};

} // namespace

GlassTileBackground::GlassTileBackground(QQuickItem *parent)
    : QQuickItem(parent)
{
    m_look.theme = Theme::midnight();
    setFlag(ItemHasContents);
    connect(this, &GlassTileBackground::changed, this, &GlassTileBackground::refresh);
}

void GlassTileBackground::setTheme(const Theme &theme)
{
    m_look.theme = theme;
    Q_EMIT changed();
}

void GlassTileBackground::setStrength(double strength)
{
    m_look.strength = strength;
    Q_EMIT changed();
}

void GlassTileBackground::setFocused(bool focused)
{
    setFocusLevel(focused ? 1 : 0);
}

void GlassTileBackground::setFocusLevel(double level)
{
    // A spring goes beyond its end.
    m_focusLevel = std::clamp(level, 0.0, 1.0);
    Q_EMIT changed();
}

void GlassTileBackground::setReduceTransparency(bool reduce)
{
    m_look.reduceTransparency = reduce;
    Q_EMIT changed();
}

void GlassTileBackground::setSolid(bool solid)
{
    m_look.solid = solid;
    Q_EMIT changed();
}

void GlassTileBackground::setRadius(double radius)
{
    m_look.radius = radius;
    Q_EMIT changed();
}

void GlassTileBackground::setShadows(bool shadows)
{
    m_look.shadows = shadows;
    Q_EMIT changed();
}

void GlassTileBackground::refresh()
{
    polish();
    update();
}

void GlassTileBackground::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        refresh();
}

void GlassTileBackground::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        refresh();
}

void GlassTileBackground::updatePolish()
{
    if (!window())
        return;
    m_look.devicePixelRatio = window()->effectiveDevicePixelRatio();
    const QSizeF size = QSizeF(width(), height()) * m_look.devicePixelRatio;
    const QSize pixels(static_cast<int>(std::lround(size.width())),
                       static_cast<int>(std::lround(size.height())));
    for (const bool focused : {false, true}) {
        Side &side = m_sides.at(focused ? 1 : 0);
        const bool seen = focused ? m_focusLevel > 0 : m_focusLevel < 1;
        side = {};
        if (!seen || pixels.isEmpty())
            continue;
        m_look.focused = focused;
        side = {sharedTile(m_look, pixels), glass::tileMargin(m_look)};
    }
}

QSGNode *GlassTileBackground::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    struct Seen
    {
        const Side &side;
        double opacity;
    };
    // What is solid must stay so while it fades.
    const double plain = m_look.solid ? 1 : 1 - m_focusLevel;
    std::vector<Seen> seen;
    for (const bool focused : {false, true}) {
        const Side &side = m_sides.at(focused ? 1 : 0);
        if (!side.pixmap.isNull())
            seen.push_back({side, focused ? m_focusLevel : plain});
    }
    auto *node = static_cast<TileNode *>(old);
    if (node && node->count() != seen.size()) {
        delete node;
        node = nullptr;
    }
    if (seen.empty())
        return nullptr;
    if (!node) {
        node = new TileNode;
        for (const Seen &look : seen)
            node->add(*window(), look.side.pixmap);
    }
    const double ratio = m_look.devicePixelRatio;
    for (size_t i = 0; i < seen.size(); ++i) {
        const Side &side = seen[i].side;
        const QRectF rect(QPointF(-side.margin, -side.margin) / ratio, QSizeF(side.pixmap.size()) / ratio);
        node->show(*window(), i, side.pixmap, rect, seen[i].opacity);
    }
    return node;
}

} // namespace brimlight
