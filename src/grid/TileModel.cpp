#include "grid/TileModel.h"

#include "grid/GridMetrics.h"
#include "grid/GridStore.h"

#include <QSet>

#include <optional>

namespace brimlight {

// One tile for each id: a second one of the same id could not be told from the first.
QList<TileModel::Tile> TileModel::placed(const GridLayout &layout)
{
    QList<Tile> tiles;
    QSet<QUuid> seen;
    for (const WidgetInstance &instance : layout.instances) {
        if (instance.isPlaced() && instance.page >= 0 && !seen.contains(instance.id)) {
            seen.insert(instance.id);
            tiles.append({instance});
        }
    }
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

void TileModel::follow()
{
    QList<Tile> now = placed(m_grid.layout());
    const auto take = [&](const QUuid &id) -> std::optional<Tile> {
        for (qsizetype i = 0; i < now.size(); ++i) {
            if (now.at(i).instance.id == id)
                return now.takeAt(i);
        }
        return std::nullopt;
    };
    for (int row = 0; row < static_cast<int>(m_tiles.size()); ++row) {
        Tile next = m_tiles.at(row);
        next.leaving = true;
        if (const auto kept = take(next.instance.id))
            next = *kept;
        if (next == m_tiles.at(row))
            continue;
        m_tiles[row] = next;
        Q_EMIT dataChanged(index(row), index(row));
    }
    if (now.isEmpty())
        return;
    const int first = static_cast<int>(m_tiles.size());
    beginInsertRows({}, first, first + static_cast<int>(now.size()) - 1);
    m_tiles += now;
    endInsertRows();
}

} // namespace brimlight
