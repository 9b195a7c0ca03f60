#include "theme/GlassSurface.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGRectangleNode>
#include <QSGTexture>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

namespace brimlight {
namespace {

/// The nodes of a pane, one for each piece. Made for one order of kinds.
class PaneNode : public QSGTransformNode
{
public:
    PaneNode(QQuickWindow &window, const GlassPane &pane, const std::vector<GlassPane::Piece> &pieces,
             double devicePixelRatio)
        : m_pieces(pieces)
        , m_devicePixelRatio(devicePixelRatio)
    {
        refreshTextures(window, pane);
        for (const GlassPane::Piece &piece : pieces) {
            QSGNode *node = newNode(window, piece);
            // The software renderer looks at the texture as soon as a node is in the tree.
            place(*node, piece, devicePixelRatio);
            appendChildNode(node);
            m_nodes.push_back(node);
        }
    }

    bool fits(const std::vector<GlassPane::Piece> &pieces) const
    {
        return std::equal(pieces.begin(), pieces.end(), m_pieces.begin(), m_pieces.end(),
                          [](const auto &a, const auto &b) { return a.picture == b.picture; });
    }

    void show(QQuickWindow &window, const GlassPane &pane, const std::vector<GlassPane::Piece> &pieces,
              double devicePixelRatio)
    {
        // The old textures have to outlive the nodes' switch to the new ones.
        const auto retired = refreshTextures(window, pane);
        for (size_t i = 0; i < pieces.size(); ++i) {
            const bool changed = retired.at(static_cast<size_t>(pieces[i].picture)) != nullptr;
            if (pieces[i] != m_pieces[i] || changed || devicePixelRatio != m_devicePixelRatio)
                place(*m_nodes[i], pieces[i], devicePixelRatio);
        }
        m_pieces = pieces;
        m_devicePixelRatio = devicePixelRatio;
    }

private:
    using Textures = std::array<std::unique_ptr<QSGTexture>, GlassPane::pictureCount>;

    static QSGNode *newNode(QQuickWindow &window, const GlassPane::Piece &piece)
    {
        QSGNode *node = nullptr;
        if (piece.picture == GlassPane::Picture::none) {
            node = window.createRectangleNode();
        } else {
            QSGImageNode *image = window.createImageNode();
            image->setFiltering(QSGTexture::Nearest);
            node = image;
        }
        node->setFlag(OwnedByParent);
        return node;
    }

    /// Answers the textures that have been replaced.
    Textures refreshTextures(QQuickWindow &window, const GlassPane &pane)
    {
        Textures retired;
        for (size_t i = 0; i < m_textures.size(); ++i) {
            const QImage &image = pane.image(static_cast<GlassPane::Picture>(i));
            if (image.isNull() || image.cacheKey() == m_keys.at(i))
                continue;
            m_keys.at(i) = image.cacheKey();
            retired.at(i) = std::move(m_textures.at(i));
            m_textures.at(i).reset(window.createTextureFromImage(image));
        }
        return retired;
    }

    void place(QSGNode &node, const GlassPane::Piece &piece, double devicePixelRatio)
    {
        const QRectF target(QPointF(piece.target.topLeft()) / devicePixelRatio,
                            QSizeF(piece.target.size()) / devicePixelRatio);
        if (piece.picture == GlassPane::Picture::none) {
            auto &rectangle = static_cast<QSGRectangleNode &>(node);
            rectangle.setRect(target);
            rectangle.setColor(piece.color);
            return;
        }
        auto &image = static_cast<QSGImageNode &>(node);
        image.setTexture(m_textures.at(static_cast<size_t>(piece.picture)).get());
        image.setRect(target);
        image.setSourceRect(piece.source);
    }

    std::vector<QSGNode *> m_nodes;
    std::vector<GlassPane::Piece> m_pieces;
    Textures m_textures;
    std::array<qint64, GlassPane::pictureCount> m_keys{};
    double m_devicePixelRatio = 0;
};

} // namespace

GlassSurface::GlassSurface(QQuickItem *parent)
    : QQuickItem(parent)
{
    m_look.theme = Theme::midnight();
    m_look.border = true;
    setFlag(ItemHasContents);
    connect(this, &GlassSurface::changed, this, &GlassSurface::refresh);
}

void GlassSurface::setTheme(const Theme &theme)
{
    m_look.theme = theme;
    Q_EMIT changed();
}

void GlassSurface::setStrength(double strength)
{
    m_look.strength = strength;
    Q_EMIT changed();
}

void GlassSurface::setTinted(bool tinted)
{
    m_look.tinted = tinted;
    Q_EMIT changed();
}

void GlassSurface::setBorder(bool border)
{
    m_look.border = border;
    Q_EMIT changed();
}

void GlassSurface::setReduceTransparency(bool reduce)
{
    m_look.reduceTransparency = reduce;
    Q_EMIT changed();
}

void GlassSurface::setBackdrop(Backdrop backdrop)
{
    m_look.backdrop = static_cast<glass::Backdrop>(backdrop);
    Q_EMIT changed();
}

void GlassSurface::setBottomRadius(double radius)
{
    m_bottomRadius = radius;
    Q_EMIT changed();
}

void GlassSurface::refresh()
{
    polish();
    update();
}

void GlassSurface::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    refresh();
}

void GlassSurface::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        refresh();
}

void GlassSurface::updatePolish()
{
    if (!window())
        return;
    m_devicePixelRatio = window()->effectiveDevicePixelRatio();
    const auto snapped = [this](QPointF point) {
        return QPoint(static_cast<int>(std::lround(point.x() * m_devicePixelRatio)),
                      static_cast<int>(std::lround(point.y() * m_devicePixelRatio)));
    };
    // Pieces that meet between two pixels would leave a seam.
    const QPointF origin = mapToScene({});
    const QPoint topLeft = snapped(origin);
    const QPoint bottomRight = snapped(origin + QPointF(width(), height()));
    m_shift = QPointF(topLeft) / m_devicePixelRatio - origin;
    m_pane.setLook(m_look, m_bottomRadius, m_devicePixelRatio);
    m_pieces = m_pane.pieces({bottomRight.x() - topLeft.x(), bottomRight.y() - topLeft.y()});
}

QSGNode *GlassSurface::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    auto *node = static_cast<PaneNode *>(old);
    if (node && !node->fits(m_pieces)) {
        delete node;
        node = nullptr;
    }
    if (node)
        node->show(*window(), m_pane, m_pieces, m_devicePixelRatio);
    else
        node = new PaneNode(*window(), m_pane, m_pieces, m_devicePixelRatio);
    QMatrix4x4 shift;
    shift.translate(static_cast<float>(m_shift.x()), static_cast<float>(m_shift.y()));
    if (node->matrix() != shift)
        node->setMatrix(shift);
    return node;
}

} // namespace brimlight
