#include "grid/TileModel.h"

#include "grid/GridMetrics.h"
#include "grid/GridStore.h"

#include <QSet>

#include <algorithm>
#include <tuple>

namespace brimlight {
namespace {

/// Placed instances in the order of reading, one for each id: a second one of the same id could not be told
/// from the first.
QList<WidgetInstance> placedTiles(const GridLayout &layout)
{
    QList<WidgetInstance> tiles;
    QSet<QUuid> seen;
    for (const WidgetInstance &instance : layout.instances) {
        if (instance.isPlaced() && instance.page >= 0 && !seen.contains(instance.id)) {
            seen.insert(instance.id);
            tiles.append(instance);
        }
    }
    std::stable_sort(tiles.begin(), tiles.end(), [](const WidgetInstance &a, const WidgetInstance &b) {
        return std::tie(a.page, a.row, a.col) < std::tie(b.page, b.row, b.col);
    });
    return tiles;
}

} // namespace

TileModel::TileModel(const GridStore &grid, QObject *parent)
    : QAbstractListModel(parent)
    , m_grid(grid)
    , m_tiles(placedTiles(grid.layout()))
{
    connect(&grid, &GridStore::layoutChanged, this, &TileModel::follow);
}

int TileModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_tiles.size());
}

QVariant TileModel::data(const QModelIndex &index, int role) const
{
    const WidgetInstance &tile = m_tiles.at(index.row());
    switch (role) {
    case instanceIdRole:
        return tile.id.toString(QUuid::WithoutBraces);
    case kindRole:
        return tile.kind;
    case pageRole:
        return tile.page;
    case frameRole:
        return gridMetrics::tile(tile.size, static_cast<double>(tile.col), static_cast<double>(tile.row));
    case colRole:
        return tile.col;
    case rowRole:
        return tile.row;
    case instanceRole:
        return QVariant::fromValue(tile);
    default:
        return {};
    }
}

QHash<int, QByteArray> TileModel::roleNames() const
{
    return {{instanceIdRole, "instanceId"}, {kindRole, "kind"}, {pageRole, "page"},
            {frameRole, "frame"},           {colRole, "col"},   {rowRole, "row"},
            {instanceRole, "instance"}};
}

void TileModel::follow()
{
    const QList<WidgetInstance> now = placedTiles(m_grid.layout());
    const auto position = [](const QList<WidgetInstance> &list, const QUuid &id) {
        return std::find_if(list.begin(), list.end(),
                            [&](const WidgetInstance &tile) { return tile.id == id; });
    };
    for (int row = static_cast<int>(m_tiles.size()) - 1; row >= 0; --row) {
        if (position(now, m_tiles.at(row).id) != now.end())
            continue;
        beginRemoveRows({}, row, row);
        m_tiles.removeAt(row);
        endRemoveRows();
    }
    // What stands before `target` is in order already.
    for (int target = 0; target < now.size(); ++target) {
        const auto known = position(m_tiles, now.at(target).id);
        const int row =
            static_cast<int>(std::distance(m_tiles.cbegin(), QList<WidgetInstance>::const_iterator(known)));
        if (known == m_tiles.end()) {
            beginInsertRows({}, target, target);
            m_tiles.insert(target, now.at(target));
            endInsertRows();
            continue;
        }
        if (row != target) {
            beginMoveRows({}, row, row, {}, target);
            m_tiles.move(row, target);
            endMoveRows();
        }
        if (m_tiles.at(target) != now.at(target)) {
            m_tiles[target] = now.at(target);
            Q_EMIT dataChanged(index(target), index(target));
        }
    }
}

} // namespace brimlight
