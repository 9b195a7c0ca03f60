#pragma once

#include "platform/DoNotDisturb.h"
#include "platform/PowerAssertions.h"
#include "platform/ScriptHost.h"
#include "platform/SystemSounds.h"

#include <QHash>
#include <QPointer>
#include <QStringList>

#include <utility>
#include <vector>

namespace brimlight::test {

class FakeDoNotDisturb : public DoNotDisturb
{
public:
    bool isInhibited() const override { return inhibited; }
    bool hidesBanners() const override { return bannersHidden; }

    bool inhibited = false;
    bool bannersHidden = false;
};

/// Scripts are at work until the test lets them reply.
class FakeScriptHost : public ScriptHost
{
public:
    void run(const QString &text, QObject &context, ScriptReply done) override
    {
        started.append(text);
        m_pending.push_back({&context, std::move(done)});
    }
    /// To the one that was started first.
    void reply(const std::optional<QString> &text)
    {
        const Pending first = m_pending.front();
        m_pending.erase(m_pending.begin());
        if (first.context)
            first.done(text);
    }
    int pendingCount() const { return static_cast<int>(m_pending.size()); }
    void check(const QString &text, QObject &context, ObstacleReply answered) override
    {
        m_checks.push_back({text, &context, std::move(answered)});
    }
    /// Whoever has asked what is in the way learns it.
    void answerChecks()
    {
        for (const Check &check : std::exchange(m_checks, {})) {
            if (check.context)
                check.answered(obstacles.contains(check.text) ? std::optional(obstacles[check.text])
                                                              : std::nullopt);
        }
    }

    QStringList started;
    /// By the text of the script.
    QHash<QString, Obstacle> obstacles;

private:
    struct Pending
    {
        QPointer<QObject> context;
        ScriptReply done;
    };
    struct Check
    {
        QString text;
        QPointer<QObject> context;
        ObstacleReply answered;
    };
    std::vector<Pending> m_pending;
    std::vector<Check> m_checks;
};

class FakePowerAssertions : public PowerAssertions
{
public:
    uint32_t create(const QString &name, QObject &, std::function<void()> failed) override
    {
        names.append(name);
        fail = std::move(failed);
        return nextId;
    }
    void release(uint32_t id) override { released.push_back(id); }
    void check(QObject &context, ObstacleReply answered) override
    {
        m_checks.emplace_back(&context, std::move(answered));
    }
    /// Whoever has asked what is in the way learns it.
    void answerChecks()
    {
        for (const auto &[context, answered] : std::exchange(m_checks, {})) {
            if (context)
                answered(obstacle);
        }
    }

    uint32_t nextId = 1;
    QStringList names;
    std::vector<uint32_t> released;
    std::optional<Obstacle> obstacle;
    /// The last one turns out not to have been taken.
    std::function<void()> fail;

private:
    std::vector<std::pair<QPointer<QObject>, ObstacleReply>> m_checks;
};

class FakeSounds : public SystemSounds
{
public:
    void play(const QString &name) override { played.append(name); }

    QStringList played;
};

} // namespace brimlight::test
