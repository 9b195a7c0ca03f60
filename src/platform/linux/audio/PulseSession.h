#pragma once

#include "platform/AudioServer.h"
#include "platform/linux/audio/PulseSocketWatch.h"

#include <pulse/context.h>
#include <pulse/introspect.h>
#include <pulse/subscribe.h>

#include <cstdint>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace brimlight {

/// One device as the server describes it.
struct PulseDevice
{
    uint32_t index = PA_INVALID_INDEX;
    /// The socket that is in use, each with a volume of its own: loudspeakers and headphones of a sound card
    /// are one device. Empty where there is but one.
    std::string port;
    AudioDeviceState state;

    /// Sound comes from the same place.
    bool isSamePlace(const PulseDevice &other) const { return index == other.index && port == other.port; }
    bool operator==(const PulseDevice &) const = default;
};

/// As desktops count it: the loudest channel, on the scale of their sliders.
AudioDeviceState pulseState(const pa_cvolume &volume, bool isMuted);

/// The connection to the audio server and everything asked of it. Lives on the thread of its loop and
/// reports there.
///
/// A lost server is tried again a few times in a few seconds, and then once its socket is made anew. Only
/// where there is no socket to wait for it is tried again and again.
class PulseSession
{
public:
    struct Reports
    {
        /// What a watch has found its device at; absent when it has lost the last one.
        std::function<void(uint64_t, std::optional<AudioDeviceState>)> known;
        std::function<void(uint64_t, AudioDeviceState)> changed;
    };

    PulseSession(pa_mainloop_api &api, Reports reports);
    ~PulseSession();
    PulseSession(const PulseSession &) = delete;
    PulseSession &operator=(const PulseSession &) = delete;

    void watch(uint64_t id, AudioDirection direction);
    void unwatch(uint64_t id);
    /// Called back in any case, when there is no server at once.
    void outputMuted(std::function<void(std::optional<bool>)> answered);
    void toggleOutputMuted(std::function<void()> done);

private:
    struct Watch
    {
        AudioDirection direction = AudioDirection::output;
        /// The default one; absent while there is none.
        std::optional<PulseDevice> device;
    };
    using Answer = std::function<void(std::optional<PulseDevice>)>;
    /// Something that the server has been asked; answered absent when the server goes first.
    struct Query
    {
        PulseSession &session;
        Answer answered;
        std::optional<PulseDevice> found;
    };
    struct Unref
    {
        void operator()(pa_context *context) const;
    };

    bool isReady() const;
    void connect();
    void stateChanged();
    void ready();
    void lost();
    void tryAgain();
    void stopRetrying();

    void subscribe();
    void heard(pa_subscription_event_type_t event, uint32_t index);
    void find(uint64_t id);
    void refresh(uint64_t id, uint32_t index);
    void take(uint64_t id, const std::optional<PulseDevice> &device);

    /// Hands the server a question; `ask` gets the query and returns the operation.
    template<typename Ask>
    void query(Answer answered, Ask ask);
    void queryDefault(AudioDirection direction, Answer answered);
    void queryIndex(AudioDirection direction, uint32_t index, Answer answered);
    void whenReady(std::function<void()> work);
    static void finish(Query &query);
    void abandonQueries();
    template<typename Info>
    static void takeInfo(pa_context *context, const Info *info, int end, void *query);

    pa_mainloop_api &m_api;
    Reports m_reports;
    PulseSocketWatch m_socket;
    std::unique_ptr<pa_context, Unref> m_context;
    pa_time_event *m_retry = nullptr;
    /// Since there last was a reason to hope.
    int m_attempts = 0;
    std::map<uint64_t, Watch> m_watches;
    std::list<Query> m_queries;
    /// What was asked while the connection was being made.
    std::vector<std::function<void()>> m_waiting;
};

} // namespace brimlight
