#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace brimlight {

/// The whole content of a file, up to `limit` bytes of it; absent when it cannot be opened or read. Waits as
/// long as the file system or driver behind it does.
std::optional<QByteArray> smallFile(const QString &path, qsizetype limit = 1 << 20);

/// Asks drivers and file systems for something small without ever hanging with them: a worker thread asks,
/// the caller waits only so long. What does not answer in time is late: its key is answered "absent" at once
/// until the call has returned, and a rest after that, so that a slow device costs the caller little. A new
/// worker takes the place of the one that is held up, up to `mostLate` of them; then everything is absent
/// until one comes back.
///
/// Belongs to one thread, and what it is given to call may not use it in turn. It can be destroyed while
/// calls are late. Separate objects do not disturb each other. An object costs a thread from its first use
/// on, and a call a microsecond; the first one after a pause costs some fifty, for the worker has to be woken
/// up.
class BoundedRead
{
public:
    static constexpr std::chrono::milliseconds defaultPatience{50};
    static constexpr std::chrono::milliseconds defaultRest{5000};
    static constexpr int mostLate = 8;

    explicit BoundedRead(std::chrono::milliseconds patience = defaultPatience,
                         std::chrono::milliseconds rest = defaultRest);
    ~BoundedRead();
    BoundedRead(const BoundedRead &) = delete;
    BoundedRead &operator=(const BoundedRead &) = delete;

    /// `smallFile` of this path, or absent when it is late. The key is the path.
    std::optional<QByteArray> file(const QString &path);
    /// The same with ten times the patience, for what is read once and decides for long: late because the
    /// machine is busy must not count as not there.
    std::optional<QByteArray> lastingFile(const QString &path);

    /// What `body` returns, or absent when it is late. `body` runs on another thread and may outlive the
    /// caller and this object, so it owns all that it uses.
    template<typename T>
    std::optional<T> call(const QString &key, std::function<std::optional<T>()> body)
    {
        return call<T>(key, std::move(body), m_patience);
    }

    /// Calls that have not returned yet.
    int lateCount() const;

private:
    struct State;

    template<typename T>
    std::optional<T> call(const QString &key, std::function<std::optional<T>()> body,
                          std::chrono::milliseconds patience)
    {
        const auto result = std::make_shared<std::optional<T>>();
        if (!run(
                key, [result, body = std::move(body)] { *result = body(); }, patience))
            return std::nullopt;
        return std::move(*result);
    }

    static void work(const std::shared_ptr<State> &state);
    bool run(const QString &key, std::function<void()> body, std::chrono::milliseconds patience);

    /// Shared with the workers, which may outlive this object.
    std::shared_ptr<State> m_state;
    std::chrono::milliseconds m_patience;
};

} // namespace brimlight
