#pragma once

#include <pulse/mainloop-api.h>

#include <QString>

#include <functional>

namespace brimlight {

/// The socket that the audio server of this session makes, by the rules of its clients: PULSE_SERVER where it
/// names a socket, else in PULSE_RUNTIME_PATH, else in the runtime folder. Empty when there is no telling, as
/// for a server on another machine.
QString pulseSocket();

/// Tells when a socket is made. The folder that it is to be in need not exist yet.
class PulseSocketWatch
{
public:
    PulseSocketWatch(pa_mainloop_api &api, const QString &socket, std::function<void()> appeared);
    ~PulseSocketWatch() { stop(); }
    PulseSocketWatch(const PulseSocketWatch &) = delete;
    PulseSocketWatch &operator=(const PulseSocketWatch &) = delete;

    /// False when nothing can be noticed.
    bool start();
    void stop();
    bool isStarted() const { return m_event != nullptr; }
    bool socketExists() const;

private:
    /// The innermost folder on the way to the socket that exists.
    QString existingFolder() const;
    void changed();

    pa_mainloop_api &m_api;
    QString m_socket;
    std::function<void()> m_appeared;
    int m_inotify = -1;
    pa_io_event *m_event = nullptr;
    /// What the watched folder lacks.
    QByteArray m_missing;
};

} // namespace brimlight
