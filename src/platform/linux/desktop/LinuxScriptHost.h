#pragma once

#include "platform/Scheduler.h"
#include "platform/ScriptHost.h"

#include <QHash>

namespace brimlight {

/// What one script does. Both call back in a later turn of the loop, unless the context is gone by then.
struct ScriptOperation
{
    std::function<void(QObject &context, ScriptReply done)> run;
    std::function<void(QObject &context, ObstacleReply answered)> check;
};
/// By the text of the script.
using ScriptTable = QHash<QString, ScriptOperation>;

/// There is no interpreter: each script that the program knows stands for an operation of its own, in this
/// process. Any other text cannot be run.
class LinuxScriptHost : public ScriptHost
{
public:
    LinuxScriptHost(Scheduler &scheduler, ScriptTable operations)
        : m_scheduler(scheduler)
        , m_operations(std::move(operations))
    {
    }

    void run(const QString &text, QObject &context, ScriptReply done) override
    {
        if (const auto operation = m_operations.constFind(text); operation != m_operations.constEnd())
            operation->run(context, std::move(done));
        else
            m_scheduler.post(context, [done = std::move(done)] { done(std::nullopt); });
    }
    void check(const QString &text, QObject &context, ObstacleReply answered) override
    {
        if (const auto operation = m_operations.constFind(text); operation != m_operations.constEnd())
            operation->check(context, std::move(answered));
        else
            m_scheduler.post(context,
                             [answered = std::move(answered)] { answered(Obstacle::unknownSwitch); });
    }

private:
    Scheduler &m_scheduler;
    ScriptTable m_operations;
};

} // namespace brimlight
