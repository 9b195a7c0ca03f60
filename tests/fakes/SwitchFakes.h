#pragma once

#include "platform/DoNotDisturb.h"
#include "platform/PowerAssertions.h"
#include "platform/ScriptHost.h"
#include "platform/SystemSounds.h"

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

    QStringList started;

private:
    struct Pending
    {
        QPointer<QObject> context;
        ScriptReply done;
    };
    std::vector<Pending> m_pending;
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

    uint32_t nextId = 1;
    QStringList names;
    std::vector<uint32_t> released;
    /// The last one turns out not to have been taken.
    std::function<void()> fail;
};

class FakeSounds : public SystemSounds
{
public:
    void play(const QString &name) override { played.append(name); }

    QStringList played;
};

} // namespace brimlight::test
