#include "grid/GridLayout.h"

namespace brimlight {
namespace {

struct Span
{
    int columns;
    int rows;
};

Span span(WidgetSize size)
{
    switch (size) {
    case WidgetSize::small:
        return {1, 1};
    case WidgetSize::tall:
        return {1, 2};
    case WidgetSize::wide:
        return {2, 1};
    case WidgetSize::large:
        return {2, 2};
    case WidgetSize::banner:
        return {3, 1};
    case WidgetSize::wideTall:
        return {3, 2};
    case WidgetSize::huge:
        return {3, 3};
    }
    Q_UNREACHABLE();
}

} // namespace

int columnSpan(WidgetSize size)
{
    return span(size).columns;
}

int rowSpan(WidgetSize size)
{
    return span(size).rows;
}

GridLayout GridLayout::defaultLayout()
{
    const auto placed = [](const QString &kind, WidgetSize size, int order, int col) {
        WidgetInstance instance;
        instance.kind = kind;
        instance.size = size;
        instance.order = order;
        instance.col = col;
        instance.row = 0;
        return instance;
    };
    return {.instances = {placed(QStringLiteral("clock"), WidgetSize::wide, 0, 0),
                          placed(QStringLiteral("weather"), WidgetSize::wide, 1, 2),
                          placed(QStringLiteral("battery"), WidgetSize::small, 2, 4),
                          placed(QStringLiteral("temperature"), WidgetSize::small, 3, 5)},
            .pageCount = 1};
}

} // namespace brimlight
