#pragma once

#include "platform/AudioServer.h"
#include "platform/Scheduler.h"

#include <QHash>
#include <QObject>
#include <QPointer>

namespace brimlight {

class PulseLoop;
class PulseSession;

/// The session's PulseAudio or what speaks its protocol, reached through libpulse a little after the start:
/// nothing that is drawn first depends on it. The server is never started from here.
///
/// A device that the server only makes up while there is none does not count as one.
class PulseAudioServer : public AudioServer
{
public:
    static constexpr std::chrono::milliseconds startDelay{400};

    explicit PulseAudioServer(Scheduler &scheduler);
    /// Outlives its watches.
    ~PulseAudioServer() override;

    std::unique_ptr<AudioWatch> watch(AudioDirection direction,
                                      std::function<void(std::optional<AudioDeviceState>)> known,
                                      std::function<void(AudioDeviceState)> changed) override;
    void outputMuted(QObject &context, std::function<void(std::optional<bool>)> answered) override;
    void toggleOutputMuted(QObject &context, std::function<void()> done) override;

private:
    class Watch;
    struct Listener
    {
        std::function<void(std::optional<AudioDeviceState>)> known;
        std::function<void(AudioDeviceState)> changed;
    };
    struct Request
    {
        QPointer<QObject> context;
        std::function<void(std::optional<bool>)> answered;
    };

    /// On the session's thread, once there is a session.
    void post(std::function<void(PulseSession &)> work);
    void start();
    uint64_t keep(QObject &context, std::function<void(std::optional<bool>)> answered);
    /// Runs `body` on the thread of this object; for the session's.
    void reportBack(std::function<void()> body);
    void answer(uint64_t id, std::optional<bool> isMuted);

    Scheduler &m_scheduler;
    uint64_t m_lastId = 0;
    QHash<uint64_t, Listener> m_listeners;
    QHash<uint64_t, Request> m_requests;
    QObject m_receiver;
    std::unique_ptr<Scheduled> m_start;
    /// Belongs to the loop's thread.
    std::unique_ptr<PulseSession> m_session;
    /// Ends before what its thread uses.
    std::unique_ptr<PulseLoop> m_loop;
};

} // namespace brimlight
