#pragma once

#include "grid/GridLayout.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>

namespace brimlight {

class GridStore;

/// The placed instances of all pages in the order of reading: by page, row and column. A change of the layout
/// becomes insertions, removals, moves and changed rows, never a reset, so that a view made for an instance
/// lives as long as the instance.
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
        instanceRole
    };

    explicit TileModel(const GridStore &grid, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    void follow();

    const GridStore &m_grid;
    QList<WidgetInstance> m_tiles;
};

} // namespace brimlight
