#include "grid/GridLayout.h"

#include "core/EnumTexts.h"

namespace brimlight {
namespace {

struct Span
{
    int columns;
    int rows;
};

constexpr Span span(WidgetSize size)
{
    // In the order of the enumeration.
    constexpr std::array<Span, allWidgetSizes.size()> spans{
        {{1, 1}, {1, 2}, {2, 1}, {2, 2}, {3, 1}, {3, 2}, {3, 3}}};
    return spans.at(static_cast<size_t>(size));
}

constexpr EnumTexts<WidgetSize, 7> sizeTexts{{{{WidgetSize::small, u"small"},
                                               {WidgetSize::tall, u"tall"},
                                               {WidgetSize::wide, u"wide"},
                                               {WidgetSize::large, u"large"},
                                               {WidgetSize::banner, u"banner"},
                                               {WidgetSize::wideTall, u"wideTall"},
                                               {WidgetSize::huge, u"huge"}}}};
static_assert(sizeTexts.covers(allWidgetSizes));

} // namespace

int columnSpan(WidgetSize size)
{
    return span(size).columns;
}

int rowSpan(WidgetSize size)
{
    return span(size).rows;
}

QString rawValue(WidgetSize size)
{
    return sizeTexts.text(size);
}

std::optional<WidgetSize> widgetSizeFromRawValue(const QString &raw)
{
    return sizeTexts.value(raw);
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
