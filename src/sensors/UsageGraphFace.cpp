#include "sensors/UsageGraphFace.h"

#include "sensors/Percent.h"

namespace brimlight {
void UsageGraphFace::setHistory(SystemHistoryStore *history)
{
    if (m_history)
        disconnect(m_history, nullptr, this, nullptr);
    m_history = history;
    // The memory's history is the last of the three to change with a sample.
    if (m_history)
        connect(m_history, &SystemHistoryStore::memHistoryChanged, this, &UsageGraphFace::historyChanged);
    Q_EMIT historyChanged();
}

QString UsageGraphFace::cpuText() const
{
    return wholePercent(m_history ? m_history->snapshot().cpu : 0);
}

QString UsageGraphFace::ramText() const
{
    return wholePercent(m_history ? m_history->snapshot().memUsed : 0);
}

} // namespace brimlight
