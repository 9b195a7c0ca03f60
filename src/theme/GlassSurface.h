#pragma once

#include "theme/GlassPane.h"

#include <QQuickItem>
#include <QtQmlIntegration>

namespace brimlight {

/// The panel's pane: glass in the outline of the panel, with its rim, and its shadow around it. Made to
/// change its size with every frame.
///
/// The shadow is drawn outside of the item's rectangle; it needs no room in the layout, but an ancestor that
/// clips cuts it off. The pane keeps to whole pixels where its own place or size is fractional.
class GlassSurface : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(brimlight::Theme theme READ theme WRITE setTheme NOTIFY changed)
    Q_PROPERTY(double strength READ strength WRITE setStrength NOTIFY changed)
    Q_PROPERTY(bool tinted READ tinted WRITE setTinted NOTIFY changed)
    Q_PROPERTY(bool border READ border WRITE setBorder NOTIFY changed)
    Q_PROPERTY(bool reduceTransparency READ reduceTransparency WRITE setReduceTransparency NOTIFY changed)
    Q_PROPERTY(Backdrop backdrop READ backdrop WRITE setBackdrop NOTIFY changed)
    Q_PROPERTY(double bottomRadius READ bottomRadius WRITE setBottomRadius NOTIFY changed)

public:
    /// What lies behind the pane; see glass::Backdrop.
    enum class Backdrop { Opaque, Translucent, Blurred };
    Q_ENUM(Backdrop)

    explicit GlassSurface(QQuickItem *parent = nullptr);

    const Theme &theme() const { return m_look.theme; }
    void setTheme(const Theme &theme);
    double strength() const { return m_look.strength; }
    void setStrength(double strength);
    /// A breath of the accent colour.
    bool tinted() const { return m_look.tinted; }
    void setTinted(bool tinted);
    /// Light along the rim.
    bool border() const { return m_look.border; }
    void setBorder(bool border);
    bool reduceTransparency() const { return m_look.reduceTransparency; }
    void setReduceTransparency(bool reduce);
    Backdrop backdrop() const { return static_cast<Backdrop>(m_look.backdrop); }
    void setBackdrop(Backdrop backdrop);
    /// Points; never more than half of the width or height is drawn.
    double bottomRadius() const { return m_bottomRadius; }
    void setBottomRadius(double radius);

Q_SIGNALS:
    void changed();

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;
    void updatePolish() override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    void refresh();

    glass::PaneLook m_look;
    double m_bottomRadius = 0;
    GlassPane m_pane;
    std::vector<GlassPane::Piece> m_pieces;
    QPointF m_shift;
    double m_devicePixelRatio = 1;
};

} // namespace brimlight
