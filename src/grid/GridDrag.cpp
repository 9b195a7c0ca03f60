#include "grid/GridDrag.h"

#include "grid/GridStore.h"
#include "grid/GridViewState.h"

#include <algorithm>
#include <cmath>

namespace brimlight {

GridDrag::GridDrag(GridStore &grid, GridViewState &state, QObject *parent)
    : QObject(parent)
    , m_grid(grid)
    , m_state(state)
{
    connect(&state, &GridViewState::dismissed, this, &GridDrag::cancel);
}

QRectF GridDrag::highlight() const
{
    if (!hasTarget())
        return {};
    const QPointF corner(static_cast<double>(m_target->col) * gridMetrics::pitch,
                         static_cast<double>(m_target->row) * gridMetrics::pitch);
    return {corner, gridMetrics::rectangle(*m_size)};
}

bool GridDrag::fits() const
{
    return hasTarget() && m_grid.canPlace(*m_dragging, *m_target);
}

void GridDrag::begin(const QString &id, qint64 page)
{
    m_dragging = QUuid::fromString(id);
    m_size = m_grid.size(*m_dragging);
    m_page = page;
    m_state.setDragging(true);
    Q_EMIT changed();
}

void GridDrag::move(const QPointF &location)
{
    if (!m_dragging)
        return;
    const bool wasInside = m_target.has_value();
    if (isFarOutside(location))
        m_target.reset();
    // A small excursion does not end the highlight, and does not begin one either.
    else if (wasInside || QRectF(0, 0, gridMetrics::width, gridMetrics::extent(m_grid.displayRows(m_page)))
                              .contains(location))
        m_target = cell(location);
    Q_EMIT changed();
}

bool GridDrag::drop(const QPointF &location)
{
    if (!m_dragging)
        return false;
    const GridCell where = cell(location);
    const QUuid id = *m_dragging;
    end();
    return m_grid.place(id, where.col, where.row);
}

void GridDrag::cancel()
{
    if (m_dragging)
        end();
}

GridCell GridDrag::cell(const QPointF &location) const
{
    const int lastCol = m_size ? gridColumns - columnSpan(*m_size) : gridColumns - 1;
    const int lastRow = m_size ? gridRows - rowSpan(*m_size) : gridRows - 1;
    const auto index = [](double position, int last) {
        return static_cast<qint64>(std::clamp(std::floor(position / gridMetrics::pitch), 0.0, double(last)));
    };
    return {index(location.x(), lastCol), index(location.y(), lastRow)};
}

bool GridDrag::isFarOutside(const QPointF &location) const
{
    constexpr double tolerance = 4;
    const double right = gridMetrics::pitch * gridColumns + tolerance;
    const double bottom = gridMetrics::pitch * m_grid.displayRows(m_page) + tolerance;
    return location.x() < -tolerance || location.x() > right || location.y() < -tolerance ||
           location.y() > bottom;
}

void GridDrag::end()
{
    m_dragging.reset();
    m_size.reset();
    m_target.reset();
    m_state.setDragging(false);
    Q_EMIT changed();
}

} // namespace brimlight
