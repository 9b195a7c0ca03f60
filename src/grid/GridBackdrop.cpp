#include "grid/GridBackdrop.h"

#include "grid/GridMetrics.h"
#include "theme/Superellipse.h"

#include <QPainter>

#include <bitset>

namespace brimlight {

QList<GridCell> freeCells(const GridStore &grid, qint64 page, int rows)
{
    constexpr size_t cellCount = size_t{gridColumns} * gridRows;
    std::bitset<cellCount> covered;
    for (const WidgetInstance &tile : grid.instances(page)) {
        if (!tile.isPlaced())
            continue;
        for (qint64 row = tile.row; row < std::min<qint64>(tile.row + rowSpan(tile.size), gridRows); ++row) {
            for (qint64 col = tile.col; col < std::min<qint64>(tile.col + columnSpan(tile.size), gridColumns);
                 ++col)
                covered.set(static_cast<size_t>(row * gridColumns + col));
        }
    }
    QList<GridCell> cells;
    for (qint64 row = 0; row < rows; ++row) {
        for (qint64 col = 0; col < gridColumns; ++col) {
            if (!covered.test(static_cast<size_t>(row * gridColumns + col)))
                cells.append({col, row});
        }
    }
    return cells;
}

GridBackdrop::GridBackdrop(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

void GridBackdrop::setGrid(GridStore *grid)
{
    m_grid = grid;
    connect(grid, &GridStore::layoutChanged, this, &GridBackdrop::follow);
    Q_EMIT gridChanged();
    follow();
}

void GridBackdrop::setPage(int page)
{
    m_page = page;
    Q_EMIT pageChanged();
    follow();
}

void GridBackdrop::setDragging(bool dragging)
{
    m_dragging = dragging;
    Q_EMIT draggingChanged();
    update();
}

void GridBackdrop::follow()
{
    if (!m_grid)
        return;
    setImplicitSize(gridMetrics::width, gridMetrics::extent(m_grid->displayRows(m_page)));
    update();
}

void GridBackdrop::paint(QPainter *painter)
{
    if (!m_grid)
        return;
    const auto white = [](double opacity) { return QColor::fromRgbF(1, 1, 1, static_cast<float>(opacity)); };
    const QColor fill = white(m_dragging ? 0.06 : 0.025);
    const QColor rim = white(m_dragging ? 0.14 : 0.05);
    painter->setRenderHint(QPainter::Antialiasing);
    for (const GridCell &cell : freeCells(*m_grid, m_page, m_grid->displayRows(m_page))) {
        const QRectF frame = gridMetrics::tile(WidgetSize::small, static_cast<double>(cell.col),
                                               static_cast<double>(cell.row));
        painter->fillPath(superellipsePath(frame, gridMetrics::tileRadius), fill);
        painter->setPen(QPen(rim, 1));
        painter->drawPath(
            superellipsePath(frame.adjusted(0.5, 0.5, -0.5, -0.5), gridMetrics::tileRadius - 0.5));
    }
}

} // namespace brimlight
