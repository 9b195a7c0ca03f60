#include "grid/GridStore.h"

#include "grid/GridPlacement.h"
#include "grid/WidgetRegistry.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <tuple>

namespace brimlight {
namespace {

/// One more than any order in use; 0 for the first instance.
qint64 nextOrder(const QList<WidgetInstance> &instances)
{
    if (instances.isEmpty())
        return 0;
    const auto last =
        std::max_element(instances.begin(), instances.end(),
                         [](const WidgetInstance &a, const WidgetInstance &b) { return a.order < b.order; });
    return last->order == std::numeric_limits<qint64>::max() ? last->order : last->order + 1;
}

} // namespace

GridStore::GridStore(SavedFile file, const WidgetRegistry &registry, QObject *parent)
    : QObject(parent)
    , m_registry(registry)
    , m_document(std::move(file))
{
    auto stored = m_document.load();
    m_layout = stored ? std::move(*stored) : GridLayout::defaultLayout();
    if (normalizePlacements(m_layout))
        save();
}

void GridStore::setLayout(GridLayout layout)
{
    m_layout = std::move(layout);
    Q_EMIT layoutChanged();
}

QList<WidgetInstance> GridStore::instances(qint64 page) const
{
    QList<WidgetInstance> found;
    std::copy_if(m_layout.instances.begin(), m_layout.instances.end(), std::back_inserter(found),
                 [page](const WidgetInstance &instance) { return instance.page == page; });
    std::stable_sort(found.begin(), found.end(), [](const WidgetInstance &a, const WidgetInstance &b) {
        return std::tie(a.row, a.col) < std::tie(b.row, b.col);
    });
    return found;
}

int GridStore::displayRows(qint64 page) const
{
    qint64 rows = 0;
    for (const WidgetInstance &instance : m_layout.instances) {
        // A row far below the grid, which only an update can bring in, must not overflow.
        if (instance.page == page && instance.isPlaced())
            rows = std::max(rows, std::min<qint64>(instance.row, gridRows) + rowSpan(instance.size));
    }
    return static_cast<int>(std::clamp<qint64>(rows + 1, 3, gridRows));
}

std::optional<WidgetInstance> GridStore::instance(const QUuid &id) const
{
    for (const WidgetInstance &candidate : m_layout.instances) {
        if (candidate.id == id)
            return candidate;
    }
    return std::nullopt;
}

std::optional<WidgetSize> GridStore::size(const QUuid &id) const
{
    const auto found = instance(id);
    return found ? std::optional(found->size) : std::nullopt;
}

std::optional<GridCell> GridStore::firstFreeSlot(WidgetSize size, qint64 page,
                                                 const std::optional<QUuid> &excluding) const
{
    CellSet occupied;
    for (const WidgetInstance &instance : m_layout.instances) {
        if (instance.page == page && instance.isPlaced() && instance.id != excluding)
            occupied |= cellsCovered({instance.col, instance.row}, instance.size);
    }
    return freeSlot(occupied, size);
}

bool GridStore::canPlace(const QUuid &id, const GridCell &cell) const
{
    auto candidate = instance(id);
    if (!candidate)
        return false;
    candidate->col = cell.col;
    candidate->row = cell.row;
    return liesWithinGrid(cell, candidate->size) && isFree(*candidate);
}

void GridStore::add(const QString &kind, qint64 page)
{
    const WidgetDefinition *definition = m_registry.definition(kind);
    if (!definition)
        return;
    const WidgetSize size = definition->metadata.defaultSize;
    const auto cell = firstFreeSlot(size, page);
    if (!cell)
        return;
    m_layout.instances.append({.kind = kind,
                               .size = size,
                               .order = nextOrder(m_layout.instances),
                               .page = page,
                               .col = cell->col,
                               .row = cell->row});
    m_layout.pageCount = std::max(pagesUpTo(page), m_layout.pageCount);
    save();
}

qint64 GridStore::addPage()
{
    m_layout.pageCount = pagesUpTo(m_layout.pageCount);
    save();
    return m_layout.pageCount - 1;
}

bool GridStore::place(const QUuid &id, qint64 col, qint64 row)
{
    WidgetInstance *found = find(id);
    if (!found)
        return false;
    const GridCell cell = limitedToGrid({col, row}, found->size);
    WidgetInstance moved = *found;
    moved.col = cell.col;
    moved.row = cell.row;
    if (!isFree(moved))
        return false;
    *found = moved;
    save();
    return true;
}

bool GridStore::shift(const QUuid &id, int cols, int rows)
{
    const auto tile = instance(id);
    if (!tile)
        return false;
    GridCell cell{tile->col, tile->row};
    while (liesWithinGrid(cell, tile->size)) {
        cell = {cell.col + cols, cell.row + rows};
        if (canPlace(id, cell))
            return place(id, cell.col, cell.row);
    }
    return false;
}

void GridStore::setSize(const QUuid &id, WidgetSize size)
{
    WidgetInstance *found = find(id);
    if (!found)
        return;
    WidgetInstance resized = *found;
    resized.size = size;
    const GridCell cell = limitedToGrid({found->col, found->row}, size);
    resized.col = cell.col;
    resized.row = cell.row;
    if (!isFree(resized)) {
        const auto slot = firstFreeSlot(size, found->page, id);
        if (!slot)
            return;
        resized.col = slot->col;
        resized.row = slot->row;
    }
    *found = resized;
    save();
}

void GridStore::remove(const QUuid &id)
{
    m_layout.instances.removeIf([&](const WidgetInstance &instance) { return instance.id == id; });
    save();
}

void GridStore::update(const WidgetInstance &instance)
{
    WidgetInstance *found = find(instance.id);
    if (!found)
        return;
    *found = instance;
    save();
}

WidgetInstance *GridStore::find(const QUuid &id)
{
    const auto found = std::find_if(m_layout.instances.begin(), m_layout.instances.end(),
                                    [&](const WidgetInstance &instance) { return instance.id == id; });
    return found == m_layout.instances.end() ? nullptr : &*found;
}

bool GridStore::isFree(const WidgetInstance &candidate) const
{
    return std::none_of(
        m_layout.instances.begin(), m_layout.instances.end(),
        [&](const WidgetInstance &other) { return other.id != candidate.id && collide(other, candidate); });
}

void GridStore::save()
{
    m_document.save(m_layout);
    Q_EMIT layoutChanged();
}

} // namespace brimlight
