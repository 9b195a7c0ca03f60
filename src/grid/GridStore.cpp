#include "grid/GridStore.h"

#include <algorithm>

namespace brimlight {

GridStore::GridStore(QObject *parent)
    : QObject(parent)
{
}

void GridStore::setLayout(GridLayout layout)
{
    m_layout = std::move(layout);
    Q_EMIT layoutChanged();
}

int GridStore::displayRows(int page) const
{
    int rows = 0;
    for (const WidgetInstance &instance : m_layout.instances) {
        if (instance.page == page && instance.isPlaced())
            rows = std::max(rows, instance.row + rowSpan(instance.size));
    }
    return std::clamp(rows + 1, 3, gridRows);
}

} // namespace brimlight
