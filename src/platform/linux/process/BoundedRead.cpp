#include "platform/linux/process/BoundedRead.h"

#include <QFile>
#include <QHash>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace brimlight {
namespace {

using Clock = std::chrono::steady_clock;

ssize_t readSome(int descriptor, char *to, size_t size)
{
    ssize_t count = 0;
    do
        count = ::read(descriptor, to, size);
    while (count < 0 && errno == EINTR);
    return count;
}

/// Reads come in bursts, and most take less time than putting a thread to sleep and waking it up.
constexpr std::chrono::microseconds burstGap{100};

template<typename Condition>
void lookOutFor(const Condition &condition)
{
    const auto end = Clock::now() + burstGap;
    while (!condition() && Clock::now() < end)
        std::this_thread::yield();
}

struct Job
{
    QString key;
    std::function<void()> body;
    std::atomic<bool> isDone = false;
    bool isLate = false;
};

} // namespace

std::optional<QByteArray> smallFile(const QString &path, qsizetype limit)
{
    constexpr qsizetype step = 4096;
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0)
        return std::nullopt;
    QByteArray content;
    ssize_t count = 0;
    do {
        const qsizetype size = content.size();
        content.resize(std::min(size + step, limit));
        count = readSome(descriptor, content.data() + size, content.size() - size);
        content.resize(size + std::max<ssize_t>(count, 0));
    } while (count > 0 && content.size() < limit);
    ::close(descriptor);
    return count < 0 ? std::nullopt : std::optional(content);
}

struct BoundedRead::State
{
    std::mutex mutex;
    std::condition_variable given;
    std::condition_variable done;
    /// What no worker has taken yet.
    std::shared_ptr<Job> waiting;
    std::atomic<bool> hasWaiting = false;
    bool hasWorker = false;
    bool isOver = false;
    int late = 0;
    QHash<QString, Clock::time_point> absentUntil;
    std::chrono::milliseconds rest{0};
};

BoundedRead::BoundedRead(std::chrono::milliseconds patience, std::chrono::milliseconds rest)
    : m_state(std::make_shared<State>())
    , m_patience(patience)
{
    m_state->rest = rest;
}

BoundedRead::~BoundedRead()
{
    const std::scoped_lock lock(m_state->mutex);
    m_state->isOver = true;
    m_state->given.notify_all();
}

std::optional<QByteArray> BoundedRead::file(const QString &path)
{
    return call<QByteArray>(path, [path] { return smallFile(path); });
}

std::optional<QByteArray> BoundedRead::lastingFile(const QString &path)
{
    constexpr int timesThePatience = 10;
    return call<QByteArray>(
        path, [path] { return smallFile(path); }, timesThePatience * m_patience);
}

int BoundedRead::lateCount() const
{
    const std::scoped_lock lock(m_state->mutex);
    return m_state->late;
}

void BoundedRead::work(const std::shared_ptr<State> &state)
{
    std::unique_lock lock(state->mutex);
    for (;;) {
        state->given.wait(lock, [&] { return state->waiting || state->isOver; });
        const std::shared_ptr<Job> job = std::exchange(state->waiting, nullptr);
        state->hasWaiting = false;
        if (!job)
            return;
        lock.unlock();
        job->body();
        lock.lock();
        job->isDone = true;
        if (job->isLate) {
            // Another worker has taken this one's place.
            --state->late;
            state->absentUntil[job->key] = Clock::now() + state->rest;
            return;
        }
        state->done.notify_one();
        lock.unlock();
        lookOutFor([&] { return state->hasWaiting.load(); });
        lock.lock();
    }
}

bool BoundedRead::run(const QString &key, std::function<void()> body, std::chrono::milliseconds patience)
{
    std::unique_lock lock(m_state->mutex);
    if (m_state->late >= mostLate)
        return false;
    if (const auto rest = m_state->absentUntil.constFind(key); rest != m_state->absentUntil.constEnd()) {
        if (Clock::now() < *rest)
            return false;
        m_state->absentUntil.erase(rest);
    }
    if (!m_state->hasWorker) {
        try {
            std::thread(&BoundedRead::work, m_state).detach();
        } catch (const std::system_error &) {
            return false;
        }
        m_state->hasWorker = true;
    }
    const auto job = std::make_shared<Job>();
    job->key = key;
    job->body = std::move(body);
    m_state->waiting = job;
    m_state->hasWaiting = true;
    m_state->given.notify_one();
    lock.unlock();
    lookOutFor([&] { return job->isDone.load(); });
    lock.lock();
    if (m_state->done.wait_for(lock, patience, [&] { return job->isDone.load(); }))
        return true;
    if (m_state->waiting == job) {
        // The machine was too busy for the worker itself.
        m_state->waiting.reset();
        m_state->hasWaiting = false;
        return false;
    }
    job->isLate = true;
    ++m_state->late;
    m_state->hasWorker = false;
    m_state->absentUntil[key] = Clock::time_point::max();
    return false;
}

} // namespace brimlight
