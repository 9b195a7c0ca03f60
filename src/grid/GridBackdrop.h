#pragma once

#include "grid/GridStore.h"

#include <QQuickPaintedItem>
#include <QtQmlIntegration>

namespace brimlight {

/// The cells of a page below `rows` that no placed tile covers, row by row.
QList<GridCell> freeCells(const GridStore &grid, qint64 page, int rows);

/// The free cells of a page, faint at rest and clearer while a tile is dragged. As wide as the grid and as
/// high as the rows that the page shows.
class GridBackdrop : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(brimlight::GridStore *grid READ grid WRITE setGrid NOTIFY gridChanged REQUIRED)
    Q_PROPERTY(int page READ page WRITE setPage NOTIFY pageChanged)
    Q_PROPERTY(bool dragging READ isDragging WRITE setDragging NOTIFY draggingChanged)

public:
    explicit GridBackdrop(QQuickItem *parent = nullptr);

    GridStore *grid() const { return m_grid; }
    void setGrid(GridStore *grid);
    int page() const { return m_page; }
    void setPage(int page);
    bool isDragging() const { return m_dragging; }
    void setDragging(bool dragging);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void gridChanged();
    void pageChanged();
    void draggingChanged();

private:
    void follow();

    GridStore *m_grid = nullptr;
    int m_page = 0;
    bool m_dragging = false;
};

} // namespace brimlight
