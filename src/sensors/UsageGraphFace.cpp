#include "sensors/UsageGraphFace.h"

#include "sensors/Percent.h"

namespace brimlight {

UsageGraphFace::UsageGraphFace(WidgetContext &context, SystemHistoryStore &history)
    : WidgetLogic(context)
    , m_history(history)
{
    // The memory's history is the last of the three to change with a sample.
    connect(&history, &SystemHistoryStore::memHistoryChanged, this, &UsageGraphFace::historyChanged);
}

QString UsageGraphFace::cpuText() const
{
    return wholePercent(m_history.snapshot().cpu);
}

QString UsageGraphFace::ramText() const
{
    return wholePercent(m_history.snapshot().memUsed);
}

} // namespace brimlight
