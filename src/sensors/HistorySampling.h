#pragma once

#include "platform/Scheduler.h"

#include <QObject>

namespace brimlight {

class GridStore;
class SystemHistoryStore;

/// Says when the load is sampled: while the panel is open and, as a graph must have its history the moment
/// that the panel opens, always while the layout has one.
class HistorySampling : public QObject
{
public:
    HistorySampling(const GridStore &grid, SystemHistoryStore &history, Scheduler &scheduler);

    void setPanelOpen(bool open);

private:
    void update();

    const GridStore &m_grid;
    SystemHistoryStore &m_history;
    bool m_isPanelOpen = false;
};

} // namespace brimlight
