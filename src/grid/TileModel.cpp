#include "grid/TileModel.h"

#include "grid/GridMetrics.h"
#include "grid/GridStore.h"

#include <QSet>

#include <algorithm>
#include <limits>
#include <tuple>

namespace brimlight {

// In the order of reading, one tile for each id: a second one of the same id could not be told from the
// first.
QList<TileModel::Tile> TileModel::placed(const GridLayout &layout)
{
    QList<Tile> tiles;
    QSet<QUuid> seen;
    // A view counts pages in 32 bits; nobody can turn to those beyond.
    constexpr qint64 lastPage = std::numeric_limits<int>::max();
    for (const WidgetInstance &instance : layout.instances) {
        if (instance.isPlaced() && instance.page >= 0 && instance.page <= lastPage &&
            !seen.contains(instance.id)) {
            seen.insert(instance.id);
            tiles.append({instance});
        }
    }
    std::ranges::stable_sort(tiles, {}, [](const Tile &tile) {
        return std::tuple(tile.instance.page, tile.instance.row, tile.instance.col);
    });
    return tiles;
}

TileModel::TileModel(const GridStore &grid, QObject *parent)
    : QAbstractListModel(parent)
    , m_grid(grid)
    , m_tiles(placed(grid.layout()))
{
    connect(&grid, &GridStore::layoutChanged, this, &TileModel::follow);
}

int TileModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_tiles.size());
}

QVariant TileModel::data(const QModelIndex &index, int role) const
{
    const auto &[tile, leaving] = m_tiles.at(index.row());
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
    case leavingRole:
        return leaving;
    default:
        return {};
    }
}

QHash<int, QByteArray> TileModel::roleNames() const
{
    return {{instanceIdRole, "instanceId"}, {kindRole, "kind"},      {pageRole, "page"},
            {frameRole, "frame"},           {colRole, "col"},        {rowRole, "row"},
            {instanceRole, "instance"},     {leavingRole, "leaving"}};
}

void TileModel::forget(const QString &instanceId)
{
    const QUuid id = QUuid::fromString(instanceId);
    for (int row = static_cast<int>(m_tiles.size()) - 1; row >= 0; --row) {
        if (m_tiles.at(row).instance.id != id || !m_tiles.at(row).leaving)
            continue;
        beginRemoveRows({}, row, row);
        m_tiles.removeAt(row);
        endRemoveRows();
    }
}

void TileModel::forgetLater(const QString &instanceId)
{
    QMetaObject::invokeMethod(
        this, [this, instanceId] { forget(instanceId); }, Qt::QueuedConnection);
}

void TileModel::follow()
{
    QList<Tile> now = placed(m_grid.layout());
    const auto position = [](const QList<Tile> &list, const QUuid &id) {
        const auto found = std::ranges::find(list, id, [](const Tile &tile) { return tile.instance.id; });
        return static_cast<int>(std::distance(list.begin(), found));
    };
    for (Tile tile : std::as_const(m_tiles)) {
        tile.leaving = true;
        if (position(now, tile.instance.id) == now.size())
            now.append(tile);
    }
    // What stands before `target` is in order already.
    for (int target = 0; target < now.size(); ++target) {
        const int row = position(m_tiles, now.at(target).instance.id);
        if (row == m_tiles.size()) {
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
