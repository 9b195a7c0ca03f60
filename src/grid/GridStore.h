#pragma once

#include "core/Document.h"
#include "grid/GridLayoutCodec.h"

#include <QObject>
#include <QtQmlIntegration>

#include <optional>

namespace brimlight {

class WidgetRegistry;

/// The single owner of the user's widget layout: loads and repairs it, answers where tiles fit, carries out
/// every change and saves it after each. Tiles stay where they were put; nothing flows.
class GridStore : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("owned by the controller")

public:
    /// A file that cannot be read or decoded gives the default layout, silently; it is kept aside before the
    /// first write. A layout that needed repair is saved at once.
    GridStore(SavedFile file, const WidgetRegistry &registry, QObject *parent = nullptr);

    const GridLayout &layout() const { return m_layout; }
    /// Assigns the document as it stands: neither repaired nor written before the next change.
    void setLayout(GridLayout layout);

    /// The instances of a page by row, then column; unplaced ones, which nobody draws, come first.
    QList<WidgetInstance> instances(qint64 page) const;
    /// How many rows the page shows: those in use and an empty one to drop into, from 3 to 8.
    int displayRows(qint64 page) const;
    std::optional<WidgetInstance> instance(const QUuid &id) const;
    std::optional<WidgetSize> size(const QUuid &id) const;
    /// The highest, then leftmost place where a tile fits beside all placed ones but `excluding`.
    std::optional<GridCell> firstFreeSlot(WidgetSize size, qint64 page,
                                          const std::optional<QUuid> &excluding = {}) const;
    /// Whether `place` would move the tile to exactly this cell.
    bool canPlace(const QUuid &id, const GridCell &cell) const;

    /// Adds a widget of the kind's default size. An unknown kind or a full page changes nothing.
    void add(const QString &kind, qint64 page);
    /// A new empty page; returns its index.
    Q_INVOKABLE qint64 addPage();
    /// Moves a tile on its own page, after limiting the cell to where the tile fits. False when that is
    /// occupied.
    bool place(const QUuid &id, qint64 col, qint64 row);
    /// Moves a tile by as many steps of `cols` and `rows` as it takes to find room. False when there is none.
    bool shift(const QUuid &id, int cols, int rows);
    /// Resizes where the tile stands, slid back into the grid, or at the first free slot; nothing when
    /// neither fits.
    void setSize(const QUuid &id, WidgetSize size);
    /// Deletes; the tiles around stay.
    void remove(const QUuid &id);
    /// Replaces the instance with the same id as a whole.
    void update(const WidgetInstance &instance);

Q_SIGNALS:
    /// After every assignment and change, even to an equal value.
    void layoutChanged();

private:
    WidgetInstance *find(const QUuid &id);
    /// True when no other placed instance of its page overlaps `candidate`.
    bool isFree(const WidgetInstance &candidate) const;
    /// Notifies and saves the whole document.
    void save();

    const WidgetRegistry &m_registry;
    Document<encodeLayout, decodeLayout> m_document;
    GridLayout m_layout;
};

} // namespace brimlight
