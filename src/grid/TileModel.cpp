#include "grid/TileModel.h"

#include "grid/GridMetrics.h"
#include "grid/GridStore.h"

#include <QSet>

#include <algorithm>

namespace brimlight {
namespace {

/// Placed instances, one for each id: a second one of the same id could not be told from the first.
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
    for (const WidgetInstance &tile : now) {
        const auto known = position(m_tiles, tile.id);
        const int row =
            static_cast<int>(std::distance(m_tiles.cbegin(), QList<WidgetInstance>::const_iterator(known)));
        if (known == m_tiles.end()) {
            beginInsertRows({}, row, row);
            m_tiles.append(tile);
            endInsertRows();
        } else if (*known != tile) {
            m_tiles[row] = tile;
            Q_EMIT dataChanged(index(row), index(row));
        }
    }
}

} // namespace brimlight
