#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QUuid>

#include <optional>

namespace brimlight {

/// Every page has this many cells; cell (0, 0) is at the top left.
inline constexpr int gridColumns = 6;
inline constexpr int gridRows = 8;

/// How many cells a tile covers, in the order in which menus offer the sizes.
enum class WidgetSize { small, tall, wide, large, banner, wideTall, huge };

int columnSpan(WidgetSize size);
int rowSpan(WidgetSize size);

/// One widget that the user has placed.
struct WidgetInstance
{
    /// Made once and never changed.
    QUuid id = QUuid::createUuid();
    /// The key of its definition; kept even if no definition has it.
    QString kind;
    WidgetSize size = WidgetSize::small;
    /// Creation rank across all pages; breaks ties, never decides a place.
    int order = 0;
    /// Zero-based.
    int page = 0;
    /// The top left cell, or -1 without a cell: such an instance is kept but not drawn.
    int col = -1;
    int row = -1;
    /// Options of this one instance, absent until the first is written.
    std::optional<QHash<QString, QString>> settings;

    bool isPlaced() const { return col >= 0 && row >= 0; }
    bool operator==(const WidgetInstance &) const = default;
};

/// The whole document: all instances of all pages.
struct GridLayout
{
    QList<WidgetInstance> instances;
    /// At least 1.
    int pageCount = 1;

    bool operator==(const GridLayout &) const = default;

    /// What a first run shows, with new ids at every call.
    static GridLayout defaultLayout();
};

} // namespace brimlight
