#pragma once

#include <QColor>
#include <QQuickItem>
#include <QtQmlIntegration>

namespace brimlight {

/// The soft shadow of a rectangle with continuous corners that is as large as the item, drawn beyond its
/// edges; an ancestor that clips cuts it off. It takes the memory of its corners alone, however large it is.
class DropShadow : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    /// With its opacity.
    Q_PROPERTY(QColor color MEMBER m_color NOTIFY changed)
    /// Of the caster's corners, in points.
    Q_PROPERTY(double corner MEMBER m_corner NOTIFY changed)
    /// Twice the standard deviation of the blur, in points.
    Q_PROPERTY(double radius MEMBER m_radius NOTIFY changed)

public:
    explicit DropShadow(QQuickItem *parent = nullptr);

Q_SIGNALS:
    void changed();

protected:
    QSGNode *updatePaintNode(QSGNode *old, UpdatePaintNodeData *data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &data) override;

private:
    void repaint();

    QColor m_color = Qt::black;
    double m_corner = 0;
    double m_radius = 0;
    bool m_isStale = true;
};

} // namespace brimlight
