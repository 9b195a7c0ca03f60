#pragma once

#include "grid/WidgetContext.h"

#include <QObject>
#include <QSet>
#include <QUuid>

#include <map>
#include <memory>

namespace brimlight {

struct WidgetDefinition;
class WidgetLogic;

/// One widget at work: what it knows of its place, and the logic of its kind. The front and the back of a
/// tile share it, so a count or a running clock is the same on both.
class WidgetSession
{
public:
    WidgetSession(const WidgetEnvironment &environment, const WidgetDefinition &definition,
                  const std::optional<WidgetInstance> &instance, WidgetSize size);
    ~WidgetSession();

    WidgetContext &context() { return m_context; }
    /// Null for a kind whose views need no more than their context.
    WidgetLogic *logic() const { return m_logic.get(); }
    /// The widget is live while any side of it is seen.
    void setSeen(const QObject &side, bool seen);

private:
    WidgetContext m_context;
    std::unique_ptr<WidgetLogic> m_logic;
    QSet<const QObject *> m_seenBy;
};

/// The sessions of all placed instances. One is made when a side of the instance is first seen and kept as
/// long as the instance is in the layout, or a view still shows it.
class WidgetSessions : public QObject
{
public:
    explicit WidgetSessions(const WidgetEnvironment &environment);

    std::shared_ptr<WidgetSession> session(const WidgetInstance &instance,
                                           const WidgetDefinition &definition);

private:
    void dropLost();

    const WidgetEnvironment &m_environment;
    std::map<QUuid, std::shared_ptr<WidgetSession>> m_sessions;
};

} // namespace brimlight
