#include "grid/GridLayout.h"

namespace brimlight {
namespace {

struct SizeTraits
{
    const char *rawValue;
    int columns;
    int rows;
};

const SizeTraits &traits(WidgetSize size)
{
    // In the order of the enumeration.
    static constexpr std::array<SizeTraits, allWidgetSizes.size()> table{{{"small", 1, 1},
                                                                          {"tall", 1, 2},
                                                                          {"wide", 2, 1},
                                                                          {"large", 2, 2},
                                                                          {"banner", 3, 1},
                                                                          {"wideTall", 3, 2},
                                                                          {"huge", 3, 3}}};
    return table.at(static_cast<size_t>(size));
}

} // namespace

int columnSpan(WidgetSize size)
{
    return traits(size).columns;
}

int rowSpan(WidgetSize size)
{
    return traits(size).rows;
}

QString rawValue(WidgetSize size)
{
    return QString::fromLatin1(traits(size).rawValue);
}

std::optional<WidgetSize> widgetSizeFromRawValue(const QString &raw)
{
    for (const WidgetSize size : allWidgetSizes) {
        if (raw == QLatin1String(traits(size).rawValue))
            return size;
    }
    return std::nullopt;
}

GridLayout GridLayout::defaultLayout()
{
    const auto placed = [](const QString &kind, WidgetSize size, qint64 order, qint64 col) {
        return WidgetInstance{.kind = kind, .size = size, .order = order, .col = col, .row = 0};
    };
    return {.instances = {placed(QStringLiteral("clock"), WidgetSize::wide, 0, 0),
                          placed(QStringLiteral("weather"), WidgetSize::wide, 1, 2),
                          placed(QStringLiteral("battery"), WidgetSize::small, 2, 4),
                          placed(QStringLiteral("temperature"), WidgetSize::small, 3, 5)},
            .pageCount = 1};
}

bool collide(const WidgetInstance &a, const WidgetInstance &b)
{
    // Differences of two positions cannot overflow where position plus span could.
    return a.page == b.page && a.isPlaced() && b.isPlaced() && a.col - b.col < columnSpan(b.size) &&
           b.col - a.col < columnSpan(a.size) && a.row - b.row < rowSpan(b.size) &&
           b.row - a.row < rowSpan(a.size);
}

} // namespace brimlight
