#pragma once

#include "theme/GlassTile.h"

#include <QPixmap>
#include <QQuickItem>
#include <QtQmlIntegration>

#include <array>

namespace brimlight {

/// The glass of one tile. Tiles of equal size and look share one picture, so that a tile costs a copy.
///
/// The shadows are drawn outside of the item's rectangle; they need no room in the layout, but an ancestor
/// that clips cuts them off.
class GlassTileBackground : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(brimlight::Theme theme READ theme WRITE setTheme NOTIFY changed)
    Q_PROPERTY(double strength READ strength WRITE setStrength NOTIFY changed)
    Q_PROPERTY(bool focused READ focused WRITE setFocused NOTIFY changed)
    Q_PROPERTY(double focusLevel READ focusLevel WRITE setFocusLevel NOTIFY changed)
    Q_PROPERTY(bool reduceTransparency READ reduceTransparency WRITE setReduceTransparency NOTIFY changed)
    Q_PROPERTY(bool solid READ solid WRITE setSolid NOTIFY changed)
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY changed)
    Q_PROPERTY(bool shadows READ shadows WRITE setShadows NOTIFY changed)

public:
    explicit GlassTileBackground(QQuickItem *parent = nullptr);

    const Theme &theme() const { return m_look.theme; }
    void setTheme(const Theme &theme);
    double strength() const { return m_look.strength; }
    void setStrength(double strength);
    /// The pointer is over the tile.
    bool focused() const { return m_focusLevel >= 0.5; }
    /// Sets `focusLevel` to 0 or 1.
    void setFocused(bool focused);
    /// From 0, not focused, to 1; between them the two looks fade into each other. For animations.
    double focusLevel() const { return m_focusLevel; }
    void setFocusLevel(double level);
    bool reduceTransparency() const { return m_look.reduceTransparency; }
    void setReduceTransparency(bool reduce);
    /// Nothing beneath shines through, for a tile that covers others. False at first.
    bool solid() const { return m_look.solid; }
    void setSolid(bool solid);
    /// Of the continuous corners, in points; 22 at first.
    double radius() const { return m_look.radius; }
    void setRadius(double radius);
    /// True at first.
    bool shadows() const { return m_look.shadows; }
    void setShadows(bool shadows);

Q_SIGNALS:
    void changed();

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;
    void updatePolish() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    void refresh();

    struct Side
    {
        QPixmap pixmap;
        int margin = 0;
    };

    glass::TileLook m_look;
    double m_focusLevel = 0;
    std::array<Side, 2> m_sides;
};

} // namespace brimlight
