#include "grid/WidgetSession.h"

#include "grid/GridStore.h"
#include "grid/WidgetDefinition.h"
#include "grid/WidgetEnvironment.h"
#include "grid/WidgetLogic.h"

namespace brimlight {

WidgetSession::WidgetSession(const WidgetEnvironment &environment, const WidgetDefinition &definition,
                             const std::optional<WidgetInstance> &instance, WidgetSize size)
    : m_context(environment)
{
    m_context.setSize(size);
    m_context.setInstance(instance);
    if (definition.makeLogic)
        m_logic = definition.makeLogic(m_context);
}

WidgetSession::~WidgetSession() = default;

void WidgetSession::setSeen(const QObject &side, bool seen)
{
    if (seen)
        m_seenBy.insert(&side);
    else
        m_seenBy.remove(&side);
    m_context.setLive(!m_seenBy.isEmpty());
}

WidgetSessions::WidgetSessions(const WidgetEnvironment &environment)
    : m_environment(environment)
{
    connect(&environment.grid, &GridStore::layoutChanged, this, &WidgetSessions::dropLost,
            Qt::QueuedConnection);
}

std::shared_ptr<WidgetSession> WidgetSessions::session(const WidgetInstance &instance,
                                                       const WidgetDefinition &definition)
{
    auto &session = m_sessions[instance.id];
    if (!session)
        session = std::make_shared<WidgetSession>(m_environment, definition, instance, instance.size);
    return session;
}

void WidgetSessions::dropLost()
{
    std::erase_if(m_sessions,
                  [this](const auto &entry) { return !m_environment.grid.instance(entry.first); });
}

} // namespace brimlight
