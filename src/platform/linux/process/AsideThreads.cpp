#include "platform/linux/process/AsideThreads.h"

#include <QObject>

#include <condition_variable>
#include <deque>
#include <mutex>
#include <system_error>
#include <thread>

namespace brimlight {
namespace {

using namespace std::chrono_literals;

/// Longer than the slowest tick: while figures are shown, threads are not made anew for each.
constexpr auto patience = 8s;

struct Job
{
    std::function<void()> work;
    std::function<void()> done;
};

} // namespace

struct AsideThreads::State
{
    std::mutex mutex;
    std::condition_variable given;
    std::deque<Job> waiting;
    /// Threads that wait for a job.
    size_t idle = 0;
    int working = 0;
    /// Lives on the thread that is called back; absent once nobody is.
    std::unique_ptr<QObject> receiver = std::make_unique<QObject>();
};

AsideThreads::AsideThreads()
    : m_state(std::make_shared<State>())
{
}

AsideThreads::~AsideThreads()
{
    const std::scoped_lock lock(m_state->mutex);
    m_state->receiver.reset();
    m_state->waiting.clear();
    m_state->given.notify_all();
}

void AsideThreads::run(std::function<void()> work, std::function<void()> done)
{
    const std::scoped_lock lock(m_state->mutex);
    m_state->waiting.push_back({std::move(work), std::move(done)});
    if (m_state->waiting.size() <= m_state->idle) {
        m_state->given.notify_one();
        return;
    }
    try {
        std::thread(&AsideThreads::serve, m_state).detach();
    } catch (const std::system_error &) {
        // The machine has no thread to spare: the work waits for the next one that comes free or can be made.
    }
}

bool AsideThreads::isIdle() const
{
    const std::scoped_lock lock(m_state->mutex);
    return m_state->working == 0 && m_state->waiting.empty();
}

void AsideThreads::serve(const std::shared_ptr<State> &state)
{
    std::unique_lock lock(state->mutex);
    for (;;) {
        ++state->idle;
        const bool hasWork = state->given.wait_for(
            lock, patience, [&state] { return !state->waiting.empty() || !state->receiver; });
        --state->idle;
        if (!hasWork || state->waiting.empty())
            return;
        Job job = std::move(state->waiting.front());
        state->waiting.pop_front();
        ++state->working;
        lock.unlock();
        job.work();
        // What it owns may be the last of something: it goes while nobody waits for the lock.
        job.work = nullptr;
        lock.lock();
        --state->working;
        if (state->receiver)
            QMetaObject::invokeMethod(state->receiver.get(), std::move(job.done), Qt::QueuedConnection);
    }
}

} // namespace brimlight
