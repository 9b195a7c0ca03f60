#pragma once

#include <QHashFunctions>
#include <QList>
#include <QMap>
#include <QString>
#include <QUuid>

#include <array>
#include <limits>
#include <optional>

namespace brimlight {

/// Every page has this many cells; cell (0, 0) is at the top left, columns grow to the right and rows
/// downwards.
inline constexpr int gridColumns = 6;
inline constexpr int gridRows = 8;

/// How many cells a tile covers, in the order in which menus offer the sizes.
enum class WidgetSize { small, tall, wide, large, banner, wideTall, huge };

inline constexpr std::array allWidgetSizes{WidgetSize::small, WidgetSize::tall,   WidgetSize::wide,
                                           WidgetSize::large, WidgetSize::banner, WidgetSize::wideTall,
                                           WidgetSize::huge};

int columnSpan(WidgetSize size);
int rowSpan(WidgetSize size);
/// The stored text of a size, its case name, and back; absent for a text that names none.
QString rawValue(WidgetSize size);
std::optional<WidgetSize> widgetSizeFromRawValue(const QString &raw);

/// One cell address.
struct GridCell
{
    qint64 col = 0;
    qint64 row = 0;

    bool operator==(const GridCell &) const = default;
    friend size_t qHash(const GridCell &cell, size_t seed) { return qHashMulti(seed, cell.col, cell.row); }
};

/// Options of one instance, owned by its widget kind; kept in the order of their keys.
using WidgetSettings = QMap<QString, QString>;

/// One widget that the user has placed.
struct WidgetInstance
{
    /// Made once and never changed.
    QUuid id = QUuid::createUuid();
    /// The key of its definition; kept even if no definition has it.
    QString kind;
    WidgetSize size = WidgetSize::small;
    /// Creation rank across all pages; breaks ties, never decides a place.
    qint64 order = 0;
    /// Zero-based. A stored layout can hold any number: nothing may count up to it.
    qint64 page = 0;
    /// The top left cell, or -1 without a cell: such an instance is kept but not drawn.
    qint64 col = -1;
    qint64 row = -1;
    /// Absent until the first option is written.
    std::optional<WidgetSettings> settings;

    bool isPlaced() const { return col >= 0 && row >= 0; }
    bool operator==(const WidgetInstance &) const = default;
};

/// The whole document: all instances of all pages, in the order of creation or of the file.
struct GridLayout
{
    QList<WidgetInstance> instances;
    /// At least 1, and enough for the largest `page`. As large as a stored number can be.
    qint64 pageCount = 1;

    bool operator==(const GridLayout &) const = default;

    /// What a first run shows, with new ids at every call.
    static GridLayout defaultLayout();
};

/// The number of pages that end with `page`; the largest number there is instead of an overflow.
constexpr qint64 pagesUpTo(qint64 page)
{
    return page == std::numeric_limits<qint64>::max() ? page : page + 1;
}

/// True when both are placed on one page and their rectangles overlap.
bool collide(const WidgetInstance &a, const WidgetInstance &b);

} // namespace brimlight
