#include "sensors/HistorySampling.h"

#include "grid/GridStore.h"
#include "sensors/SystemHistoryStore.h"

namespace brimlight {

HistorySampling::HistorySampling(const GridStore &grid, SystemHistoryStore &history, Scheduler &scheduler)
    : m_grid(grid)
    , m_history(history)
{
    const auto later = [this, &scheduler] { scheduler.post(*this, [this] { update(); }); };
    connect(&grid, &GridStore::layoutChanged, this, later);
    later();
}

void HistorySampling::setPanelOpen(bool open)
{
    m_isPanelOpen = open;
    update();
}

void HistorySampling::update()
{
    const auto drawsHistory = [](const WidgetInstance &instance) {
        return instance.kind == QLatin1String("usagegraph");
    };
    m_history.setActive(m_isPanelOpen || std::ranges::any_of(m_grid.layout().instances, drawsHistory));
}

} // namespace brimlight
