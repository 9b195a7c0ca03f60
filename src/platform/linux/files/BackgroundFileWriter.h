#pragma once

#include "platform/FileWriter.h"

#include <chrono>
#include <functional>
#include <mutex>

namespace brimlight {

class Log;

/// Writes files on a thread of its own, one after the other.
///
/// Before a new content takes the place of an old one the disk is waited for, but only so long: what is set
/// must survive the death of the process a tenth of a second later, and a busy disk may take longer than
/// that. It is then left to the file system which of the two is there after a loss of power. Two writes, the
/// one under way and the newest, are less than that tenth of a second apart.
///
/// The thread exists from the first write on and sleeps while there is nothing to write. `log` is written to
/// on that thread.
class BackgroundFileWriter : public FileWriter
{
public:
    static constexpr std::chrono::milliseconds flushPatience{5000};

    /// What tests put something else in place of.
    struct Disk
    {
        std::function<bool(WholeFile &, const QByteArray &, const std::function<void(int)> &sync)> write;
        std::function<void(int descriptor)> sync;
        std::chrono::milliseconds syncPatience{40};

        static Disk real();
    };

    explicit BackgroundFileWriter(Log &log, Disk disk = Disk::real());
    /// Flushes.
    ~BackgroundFileWriter() override;
    BackgroundFileWriter(const BackgroundFileWriter &) = delete;
    BackgroundFileWriter &operator=(const BackgroundFileWriter &) = delete;

    void write(const std::shared_ptr<WholeFile> &file, const QByteArray &content,
               const FailureWords &words) override;

    /// Waits until everything is written. False when the disk does not get there in time: a program on a
    /// broken disk must end nevertheless.
    bool flush(std::chrono::milliseconds patience = flushPatience);

private:
    struct State;
    static void work(const std::shared_ptr<State> &state);
    static void writeNext(const std::shared_ptr<State> &state, std::unique_lock<std::mutex> &lock);
    static void syncBriefly(const std::shared_ptr<State> &state, int descriptor);

    /// Shared with the threads, which a disk may hold up beyond the end of this object.
    std::shared_ptr<State> m_state;
};

} // namespace brimlight
