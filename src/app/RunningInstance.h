#pragma once

#include <QSocketNotifier>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace brimlight {

/// That the program runs once on a display: the first that starts holds a lock, those that follow make it
/// open its panel. The lock goes with the process, however that ends.
class RunningInstance
{
public:
    enum class Outcome {
        /// This one is to run; also where no lock can be had.
        first,
        /// Another one runs and has opened its panel.
        handedOver,
        /// Another one runs, but did not answer in time.
        unresponsive
    };

    /// `folder` holds lock and socket, which bear `name`.
    RunningInstance(const QString &folder, const QString &name);
    ~RunningInstance();
    RunningInstance(const RunningInstance &) = delete;
    RunningInstance &operator=(const RunningInstance &) = delete;

    /// Waits for the one that runs, at most `patience`.
    Outcome claim(std::chrono::milliseconds patience);
    /// From now on `open` runs on the main loop whenever another one starts. Those that came before are
    /// answered too.
    void answer(std::function<void()> open);

private:
    bool lock();
    void listen();
    bool handOver(std::chrono::steady_clock::time_point deadline) const;
    void acceptAll();

    QByteArray m_lockPath;
    QByteArray m_socketPath;
    int m_lock = -1;
    int m_socket = -1;
    std::function<void()> m_open;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

/// A folder of the session, or else of the user in the folder of temporary files, that nobody else can write
/// to. Absent when there is none.
std::optional<QString> instanceFolder();

/// The same for all programs on this display, and only for them.
QString instanceName();

} // namespace brimlight
