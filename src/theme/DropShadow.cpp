#include "theme/DropShadow.h"

#include "theme/SoftShadow.h"
#include "theme/Superellipse.h"

#include <QQuickWindow>
#include <QSGImageNode>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

namespace brimlight {
namespace {

/// Nine parts of one picture: the corners as they are, the edges and the middle drawn out.
class ShadowNode : public QSGNode
{
public:
    ShadowNode(QQuickWindow &window, const QImage &picture)
        : m_window(window)
        , m_texture(window.createTextureFromImage(picture))
    {
    }

    /// `edge`: width and height of a corner in pixels of the picture. `bounds` in points.
    void place(const QRectF &bounds, QSize edge, double devicePixelRatio)
    {
        const auto sourceX = cuts(0, m_texture->textureSize().width(), edge.width());
        const auto sourceY = cuts(0, m_texture->textureSize().height(), edge.height());
        const auto x = cuts(bounds.left(), bounds.width(), edge.width() / devicePixelRatio);
        const auto y = cuts(bounds.top(), bounds.height(), edge.height() / devicePixelRatio);
        for (size_t row = 0; row < 3; ++row) {
            for (size_t column = 0; column < 3; ++column) {
                const QRectF target(QPointF(x[column], y[row]), QPointF(x[column + 1], y[row + 1]));
                const QRectF source(QPointF(sourceX[column], sourceY[row]),
                                    QPointF(sourceX[column + 1], sourceY[row + 1]));
                if (!target.isEmpty() && !source.isEmpty())
                    add(target, source);
            }
        }
    }

private:
    static std::array<double, 4> cuts(double start, double length, double edge)
    {
        return {start, start + edge, start + length - edge, start + length};
    }

    void add(const QRectF &target, const QRectF &source)
    {
        QSGImageNode *part = m_window.createImageNode();
        part->setFlag(OwnedByParent);
        part->setTexture(m_texture.get());
        part->setRect(target);
        part->setSourceRect(source);
        appendChildNode(part);
    }

    QQuickWindow &m_window;
    std::unique_ptr<QSGTexture> m_texture;
};

} // namespace

DropShadow::DropShadow(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    connect(this, &DropShadow::changed, this, &DropShadow::repaint);
}

void DropShadow::repaint()
{
    m_isStale = true;
    update();
}

void DropShadow::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        repaint();
}

void DropShadow::itemChange(ItemChange change, const ItemChangeData &data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        repaint();
}

QSGNode *DropShadow::updatePaintNode(QSGNode *old, UpdatePaintNodeData *)
{
    if (old && !m_isStale)
        return old;
    // The software renderer loses the place of parts that join a node later.
    delete old;
    m_isStale = false;
    if (width() <= 0 || height() <= 0)
        return nullptr;
    const double ratio = window()->effectiveDevicePixelRatio();
    const softshadow::Caster caster{.cornerRadius = m_corner * ratio, .blurRadius = m_radius * ratio};
    const int reach = softshadow::reach(caster.blurRadius);
    const QSize whole = (size() * ratio).toSize();
    const double corner = superellipseExtent(std::min(whole.width(), whole.height()), caster.cornerRadius);
    // Beyond the corner and the blur an edge looks the same everywhere.
    const int core = 2 * (static_cast<int>(std::ceil(corner)) + reach) + 1;
    const QSize patch = whole.boundedTo({core, core});
    auto *node = new ShadowNode(*window(), softshadow::image(caster, patch, m_color));
    const double beyond = reach / ratio;
    node->place(boundingRect().adjusted(-beyond, -beyond, beyond, beyond),
                QSize(reach + (patch.width() - 1) / 2, reach + (patch.height() - 1) / 2), ratio);
    return node;
}

} // namespace brimlight
