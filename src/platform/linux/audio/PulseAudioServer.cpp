#include "platform/linux/audio/PulseAudioServer.h"

#include "platform/linux/audio/PulseLoop.h"
#include "platform/linux/audio/PulseSession.h"

namespace brimlight {

class PulseAudioServer::Watch : public AudioWatch
{
public:
    Watch(PulseAudioServer &server, uint64_t id)
        : m_server(server)
        , m_id(id)
    {
    }
    ~Watch() override
    {
        m_server.m_listeners.remove(m_id);
        m_server.post([id = m_id](PulseSession &session) { session.unwatch(id); });
    }

private:
    PulseAudioServer &m_server;
    uint64_t m_id;
};

PulseAudioServer::PulseAudioServer(Scheduler &scheduler)
    : m_scheduler(scheduler)
{
}

PulseAudioServer::~PulseAudioServer() = default;

std::unique_ptr<AudioWatch>
PulseAudioServer::watch(AudioDirection direction, std::function<void(std::optional<AudioDeviceState>)> known,
                        std::function<void(AudioDeviceState)> changed)
{
    const uint64_t id = ++m_lastId;
    m_listeners.insert(id, {std::move(known), std::move(changed)});
    post([id, direction](PulseSession &session) { session.watch(id, direction); });
    return std::make_unique<Watch>(*this, id);
}

void PulseAudioServer::outputMuted(QObject &context, std::function<void(std::optional<bool>)> answered)
{
    const uint64_t id = keep(context, std::move(answered));
    post([this, id](PulseSession &session) {
        session.outputMuted(
            [this, id](std::optional<bool> isMuted) { reportBack([=, this] { answer(id, isMuted); }); });
    });
}

void PulseAudioServer::toggleOutputMuted(QObject &context, std::function<void()> done)
{
    const uint64_t id = keep(context, [done = std::move(done)](const auto &) { done(); });
    post([this, id](PulseSession &session) {
        session.toggleOutputMuted([this, id] { reportBack([=, this] { answer(id, std::nullopt); }); });
    });
}

void PulseAudioServer::post(std::function<void(PulseSession &)> work)
{
    if (!m_loop) {
        m_loop = std::make_unique<PulseLoop>();
        m_start = m_scheduler.after(startDelay, [this] { start(); });
    }
    m_loop->post([this, work = std::move(work)] {
        if (!m_session) {
            const auto report = [this](auto Listener::*which) {
                return [this, which](uint64_t id, const auto &state) {
                    reportBack([this, which, id, state] {
                        // A copy: what is called may end the watch.
                        if (const auto told = m_listeners.value(id).*which)
                            told(state);
                    });
                };
            };
            m_session = std::make_unique<PulseSession>(
                *m_loop->api(), PulseSession::Reports{report(&Listener::known), report(&Listener::changed)});
        }
        work(*m_session);
    });
}

void PulseAudioServer::start()
{
    m_loop->start([this] { m_session.reset(); });
}

uint64_t PulseAudioServer::keep(QObject &context, std::function<void(std::optional<bool>)> answered)
{
    m_requests.insert(++m_lastId, {&context, std::move(answered)});
    return m_lastId;
}

void PulseAudioServer::reportBack(std::function<void()> body)
{
    QMetaObject::invokeMethod(&m_receiver, std::move(body), Qt::QueuedConnection);
}

void PulseAudioServer::answer(uint64_t id, std::optional<bool> isMuted)
{
    const Request request = m_requests.take(id);
    if (request.context)
        request.answered(isMuted);
}

} // namespace brimlight
