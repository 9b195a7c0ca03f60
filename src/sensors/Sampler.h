#pragma once

#include "platform/Scheduler.h"
#include "platform/WorkItem.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace brimlight {

/// What all samplers have in common, whatever they ask.
class AnySampler : public QObject
{
    Q_OBJECT

public:
    /// The answer comes by `answered`, never within this call.
    virtual void ask() = 0;
    /// A question is under way.
    bool isAsking() const { return m_isAsking; }

Q_SIGNALS:
    /// There is a new answer.
    void answered();

protected:
    bool m_isAsking = false;
};

/// One source of the machine's figures. Its question is put on a thread of its own, so that a file or driver
/// that hangs holds up neither the main thread nor other sources: the last answer stands meanwhile. Of
/// however many ask while a question is under way, none puts another one.
template<typename Answer>
class Sampler : public AnySampler
{
public:
    using Question = std::function<Answer()>;

    /// `question` owns or outlives all that it uses.
    Sampler(Scheduler &scheduler, Question question)
        : m_scheduler(scheduler)
        , m_question(std::move(question))
    {
    }

    void ask() override
    {
        if (m_isAsking)
            return;
        m_isAsking = true;
        const auto answer = std::make_shared<std::optional<Answer>>();
        m_scheduler.aside(
            *this, [answer, question = m_question] { *answer = question(); },
            [this, answer] {
                m_isAsking = false;
                m_latest = std::move(*answer);
                Q_EMIT answered();
            });
    }
    /// What is asked from the next time on.
    void setQuestion(Question question) { m_question = std::move(question); }

    /// The last answer, however old; absent before the first one.
    const std::optional<Answer> &latest() const { return m_latest; }

    Scheduler &scheduler() { return m_scheduler; }

private:
    Scheduler &m_scheduler;
    Question m_question;
    std::optional<Answer> m_latest;
};

/// One who asks a sampler, and is handed what comes of it: the answers to the questions of others pass by, so
/// that whoever measures from one answer to the next has an interval of his own.
template<typename Answer>
class Asker
{
public:
    /// How soon a rate can be told. Shorter, and the counters' own steps show.
    static constexpr std::chrono::milliseconds rateTime{250};

    Asker(Sampler<Answer> &sampler, std::function<void(const Answer &)> take)
        : m_sampler(sampler)
        , m_take(std::move(take))
    {
        QObject::connect(&sampler, &AnySampler::answered, &m_context, [this] {
            if (std::exchange(m_isOpen, false))
                m_take(*m_sampler.latest());
        });
    }

    /// Hands over what is known without asking.
    void takeLatest()
    {
        if (m_sampler.latest())
            m_take(*m_sampler.latest());
    }
    void ask()
    {
        m_isOpen = true;
        m_sampler.ask();
    }
    /// Asks now and once more a moment later, so that a rate need not wait for the next tick.
    void askForRate()
    {
        ask();
        m_again.schedule(m_sampler.scheduler(), rateTime, [this] { ask(); });
    }

private:
    Sampler<Answer> &m_sampler;
    std::function<void(const Answer &)> m_take;
    bool m_isOpen = false;
    WorkItem m_again;
    /// The connection goes before what it uses.
    QObject m_context;
};

} // namespace brimlight
