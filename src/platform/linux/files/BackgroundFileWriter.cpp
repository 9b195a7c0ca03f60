#include "platform/linux/files/BackgroundFileWriter.h"

#include "platform/Log.h"
#include "platform/WholeFile.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <future>
#include <mutex>
#include <set>
#include <system_error>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace brimlight {
namespace {

struct Job
{
    std::shared_ptr<WholeFile> file;
    QByteArray content;
    FailureWords words;
};

} // namespace

struct BackgroundFileWriter::State
{
    State(Log &newLog, Disk newDisk)
        : log(newLog)
        , disk(std::move(newDisk))
    {
    }

    /// With the mutex held, so that the log is not used once the writer is gone.
    void note(const Job &job, bool isWritten)
    {
        if (isWritten)
            failing.erase(job.file);
        else if (failing.insert(job.file).second && !isOver)
            log.write(LogLevel::error, job.words.category, job.words.message + job.file->errorString());
    }

    Log &log;
    const Disk disk;
    std::mutex mutex;
    std::condition_variable changed;
    /// At most one of each file.
    std::deque<Job> waiting;
    std::set<std::shared_ptr<WholeFile>> failing;
    bool hasThread = false;
    bool isWriting = false;
    bool isOver = false;
    std::atomic<bool> isSyncing = false;
};

BackgroundFileWriter::Disk BackgroundFileWriter::Disk::real()
{
    return {.write = &WholeFile::write, .sync = &WholeFile::untilOnDisk};
}

BackgroundFileWriter::BackgroundFileWriter(Log &log, Disk disk)
    : m_state(std::make_shared<State>(log, std::move(disk)))
{
}

BackgroundFileWriter::~BackgroundFileWriter()
{
    flush();
    const std::scoped_lock lock(m_state->mutex);
    m_state->isOver = true;
    m_state->changed.notify_all();
}

void BackgroundFileWriter::write(const std::shared_ptr<WholeFile> &file, const QByteArray &content,
                                 const FailureWords &words)
{
    std::unique_lock lock(m_state->mutex);
    const auto earlier = std::ranges::find(m_state->waiting, file, &Job::file);
    if (earlier != m_state->waiting.end())
        earlier->content = content;
    else
        m_state->waiting.push_back({file, content, words});
    if (!m_state->hasThread) {
        try {
            std::thread(&BackgroundFileWriter::work, m_state).detach();
        } catch (const std::system_error &) {
            // No thread to be had: slow is better than lost.
            writeNext(m_state, lock);
            return;
        }
        m_state->hasThread = true;
    }
    m_state->changed.notify_all();
}

bool BackgroundFileWriter::flush(std::chrono::milliseconds patience)
{
    std::unique_lock lock(m_state->mutex);
    return m_state->changed.wait_for(lock, patience,
                                     [this] { return m_state->waiting.empty() && !m_state->isWriting; });
}

void BackgroundFileWriter::work(const std::shared_ptr<State> &state)
{
    std::unique_lock lock(state->mutex);
    for (;;) {
        state->changed.wait(lock, [&] { return !state->waiting.empty() || state->isOver; });
        if (state->isOver)
            return;
        writeNext(state, lock);
    }
}

void BackgroundFileWriter::writeNext(const std::shared_ptr<State> &state, std::unique_lock<std::mutex> &lock)
{
    const Job job = std::move(state->waiting.front());
    state->waiting.pop_front();
    state->isWriting = true;
    lock.unlock();
    const bool isWritten = state->disk.write(*job.file, job.content,
                                             [&state](int descriptor) { syncBriefly(state, descriptor); });
    lock.lock();
    state->isWriting = false;
    state->note(job, isWritten);
    state->changed.notify_all();
}

void BackgroundFileWriter::syncBriefly(const std::shared_ptr<State> &state, int descriptor)
{
    // While an earlier content still waits for a slow disk, waiting for this one as well would not help.
    if (state->isSyncing.exchange(true))
        return;
    const int own = ::fcntl(descriptor, F_DUPFD_CLOEXEC, 0);
    std::promise<void> done;
    const std::future<void> synced = done.get_future();
    try {
        std::thread([state, own, done = std::move(done)]() mutable {
            state->disk.sync(own);
            ::close(own);
            state->isSyncing = false;
            done.set_value();
        }).detach();
    } catch (const std::system_error &) {
        ::close(own);
        state->isSyncing = false;
        return;
    }
    synced.wait_for(state->disk.syncPatience);
}

} // namespace brimlight
