#include "fakes/ManualScheduler.h"

#include <algorithm>

namespace brimlight::test {

class ManualScheduler::Handle : public Scheduled
{
public:
    Handle(ManualScheduler &scheduler, std::shared_ptr<Entry> entry)
        : m_scheduler(scheduler)
        , m_entry(std::move(entry))
    {
    }
    ~Handle() override { m_scheduler.m_entries.remove(m_entry); }

private:
    ManualScheduler &m_scheduler;
    std::shared_ptr<Entry> m_entry;
};

void ManualScheduler::post(QObject &context, std::function<void()> body)
{
    m_posted.push_back({&context, std::move(body)});
}

std::unique_ptr<Scheduled> ManualScheduler::after(std::chrono::milliseconds delay, std::function<void()> body)
{
    return add({m_elapsed + delay, std::nullopt, std::move(body)});
}

std::unique_ptr<Scheduled> ManualScheduler::every(std::chrono::milliseconds period,
                                                  std::chrono::milliseconds tolerance,
                                                  std::function<void()> body)
{
    lastPeriod = period;
    lastTolerance = tolerance;
    return add({m_elapsed + period, period, std::move(body)});
}

std::unique_ptr<Scheduled> ManualScheduler::add(Entry entry)
{
    auto shared = std::make_shared<Entry>(std::move(entry));
    m_entries.push_back(shared);
    return std::make_unique<Handle>(*this, std::move(shared));
}

void ManualScheduler::aside(QObject &context, std::function<void()> work, std::function<void()> done)
{
    std::vector<Posted> &queue = m_isAsideHeld ? m_held : m_posted;
    queue.push_back({&context, [work = std::move(work), done = std::move(done)] {
                         work();
                         done();
                     }});
}

void ManualScheduler::letAsideGo()
{
    m_isAsideHeld = false;
    std::move(m_held.begin(), m_held.end(), std::back_inserter(m_posted));
    m_held.clear();
    runPosted();
}

void ManualScheduler::runPosted()
{
    while (!m_posted.empty()) {
        const std::vector<Posted> turn = std::exchange(m_posted, {});
        for (const Posted &posted : turn) {
            if (posted.context)
                posted.body();
        }
    }
}

void ManualScheduler::advance(std::chrono::milliseconds time)
{
    const auto until = m_elapsed + time;
    runPosted();
    for (;;) {
        const auto next = std::min_element(m_entries.begin(), m_entries.end(),
                                           [](const auto &a, const auto &b) { return a->due < b->due; });
        if (next == m_entries.end() || (*next)->due > until)
            break;
        const std::shared_ptr<Entry> entry = *next;
        m_elapsed = entry->due;
        if (entry->period)
            entry->due += *entry->period;
        else
            m_entries.remove(entry);
        entry->body();
        runPosted();
    }
    m_elapsed = until;
}

int ManualScheduler::repeatingCount() const
{
    return static_cast<int>(std::count_if(m_entries.begin(), m_entries.end(),
                                          [](const auto &entry) { return entry->period.has_value(); }));
}

} // namespace brimlight::test
