// Any bytes at all as a layout file: what decodes is written and read the same, a repair leaves no overlap,
// and neither do the store's operations.

#include "fakes/DirectFileWriter.h"
#include "grid/GridLayoutCodec.h"
#include "grid/GridPlacement.h"
#include "grid/GridStore.h"
#include "grid/WidgetRegistry.h"

#include <QSet>

#include <cstdlib>
#include <map>

namespace brimlight {
namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

void requireSameAfterReading(const GridLayout &layout)
{
    require(decodeLayout(encodeLayout(layout)) == layout);
}

void requireNoOverlap(const GridLayout &layout)
{
    std::map<qint64, CellSet> pages;
    for (const WidgetInstance &instance : layout.instances) {
        if (!instance.isPlaced())
            continue;
        const GridCell corner{instance.col, instance.row};
        require(liesWithinGrid(corner, instance.size));
        const CellSet cells = cellsCovered(corner, instance.size);
        CellSet &occupied = pages[instance.page];
        require((cells & occupied).none());
        occupied |= cells;
    }
}

bool idsAreDistinct(const GridLayout &layout)
{
    QSet<QUuid> ids;
    for (const WidgetInstance &instance : layout.instances)
        ids.insert(instance.id);
    return ids.size() == layout.instances.size();
}

/// A few operations on a layout without overlaps, chosen by the bytes.
void operate(const GridLayout &layout, const QByteArray &bytes)
{
    static const WidgetRegistry widgets({{.metadata = {.kind = QStringLiteral("clock"),
                                                       .allowedSizes = {WidgetSize::wide},
                                                       .defaultSize = WidgetSize::wide}}});
    // Nothing can be written there, so nothing is.
    test::DirectFileWriter files;
    GridStore store({QStringLiteral("/proc/brimlight/grid.json"), files}, widgets);
    store.setLayout(layout);
    for (const char c : bytes.right(16)) {
        const auto byte = static_cast<unsigned char>(c);
        const auto &instances = store.layout().instances;
        const WidgetInstance chosen =
            instances.isEmpty() ? WidgetInstance{} : instances[byte % instances.size()];
        const WidgetSize size = allWidgetSizes[byte % allWidgetSizes.size()];
        switch (byte % 6) {
        case 0:
            store.add(QStringLiteral("clock"), chosen.page);
            break;
        case 1: {
            const GridCell cell{byte % 9 - 2, byte / 9 % 11 - 2};
            const bool could = store.canPlace(chosen.id, cell);
            require(store.place(chosen.id, cell.col, cell.row) || !could);
            break;
        }
        case 2:
            store.setSize(chosen.id, size);
            break;
        case 3:
            if (const auto cell = store.firstFreeSlot(size, chosen.page))
                require(liesWithinGrid(*cell, size));
            break;
        case 4:
            store.addPage();
            break;
        default:
            store.remove(chosen.id);
        }
        const int rows = store.displayRows(chosen.page);
        require(rows >= 3 && rows <= gridRows);
        requireNoOverlap(store.layout());
    }
    requireSameAfterReading(store.layout());
}

} // namespace
} // namespace brimlight

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    using namespace brimlight;
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    auto layout = decodeLayout(bytes);
    if (!layout)
        return 0;
    requireSameAfterReading(*layout);
    normalizePlacements(*layout);
    requireNoOverlap(*layout);
    requireSameAfterReading(*layout);
    // Tiles that share an id are no obstacles to each other.
    if (idsAreDistinct(*layout))
        operate(*layout, bytes);
    return 0;
}
