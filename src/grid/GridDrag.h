#pragma once

#include "grid/GridLayout.h"
#include "grid/GridMetrics.h"

#include <QObject>
#include <QPointF>
#include <QtQmlIntegration>

#include <optional>

namespace brimlight {

class GridStore;
class GridViewState;

/// One drag of a tile over a page: from the pointer's positions to cells, and what would happen there. The
/// pointer's position decides the cell, not the tile's corner.
class GridDrag : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the controller")
    Q_PROPERTY(bool isActive READ isActive NOTIFY changed)
    Q_PROPERTY(bool hasTarget READ hasTarget NOTIFY changed)
    Q_PROPERTY(QRectF highlight READ highlight NOTIFY changed)
    Q_PROPERTY(bool fits READ fits NOTIFY changed)

public:
    GridDrag(GridStore &grid, GridViewState &state, QObject *parent = nullptr);

    bool isActive() const { return m_dragging.has_value(); }
    bool hasTarget() const { return m_dragging && m_target && m_size; }
    const std::optional<GridCell> &target() const { return m_target; }
    /// The whole rectangle at the target cell; empty without one.
    QRectF highlight() const;
    /// Whether a drop at the target would succeed.
    bool fits() const;

    /// `page` is the one that shows, whose rows bound the grid.
    Q_INVOKABLE void begin(const QString &id, qint64 page);
    /// The pointer in the grid's coordinates.
    Q_INVOKABLE void move(const QPointF &location);
    /// True when the tile has moved.
    Q_INVOKABLE bool drop(const QPointF &location);
    Q_INVOKABLE void cancel();

    /// The cell under a position: limited to where the dragged tile fits, or to the grid without a drag.
    GridCell cell(const QPointF &location) const;

Q_SIGNALS:
    void changed();

private:
    bool isFarOutside(const QPointF &location) const;
    void end();

    GridStore &m_grid;
    GridViewState &m_state;
    std::optional<QUuid> m_dragging;
    std::optional<WidgetSize> m_size;
    std::optional<GridCell> m_target;
    qint64 m_page = 0;
};

} // namespace brimlight
