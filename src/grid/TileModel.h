#pragma once

#include "grid/GridLayout.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>

namespace brimlight {

class GridStore;

/// The placed instances of all pages in the order of reading: by page, row and column. A change of the layout
/// becomes insertions, removals, moves and changed rows, never a reset, so that a view made for an instance
/// lives as long as the instance: a tile that is no longer in the layout stays at the end of the list as
/// leaving until the view has seen it off.
class TileModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the controller")

public:
    enum Role {
        instanceIdRole = Qt::UserRole,
        kindRole,
        pageRole,
        frameRole,
        colRole,
        rowRole,
        instanceRole,
        leavingRole
    };

    explicit TileModel(const GridStore &grid, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// The leaving tile need not be drawn any more; no other tile is touched.
    void forget(const QString &instanceId);
    /// The same in the next turn of the event loop: a tile must not go within its own handler.
    Q_INVOKABLE void forgetLater(const QString &instanceId);

private:
    struct Tile
    {
        WidgetInstance instance;
        bool leaving = false;

        bool operator==(const Tile &) const = default;
    };

    static QList<Tile> placed(const GridLayout &layout);
    void follow();

    const GridStore &m_grid;
    QList<Tile> m_tiles;
};

} // namespace brimlight
