#include "sensors/UsageGraphFace.h"

#include "core/Formats.h"

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
    return formats::percent(m_history.snapshot().cpu);
}

QString UsageGraphFace::ramText() const
{
    return formats::percent(m_history.snapshot().memUsed);
}

} // namespace brimlight
