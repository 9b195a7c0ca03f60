#include "platform/linux/audio/PulseSession.h"

#include <pulse/operation.h>
#include <pulse/timeval.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <string_view>
#include <utility>

namespace brimlight {
namespace {

constexpr std::chrono::milliseconds firstPause{50};
constexpr std::chrono::milliseconds longestPause{30000};
constexpr int mostAttempts = 7;

/// The server makes it up while there is no device; its monitor is called after it.
constexpr const char *dummyDevice = "auto_null";

/// Whether something is heard or recorded with it: not what the server offers when there is nothing, nor what
/// listens to an output, which stands in for a microphone where there is none.
template<typename Info>
bool isDevice(const Info &info)
{
    if constexpr (std::is_same_v<Info, pa_source_info>) {
        if (info.monitor_of_sink != PA_INVALID_INDEX)
            return false;
    }
    return !std::string_view(info.name).starts_with(dummyDevice);
}

} // namespace

AudioDeviceState pulseState(const pa_cvolume &volume, bool isMuted)
{
    // The server counts in 65536 steps and cuts: 45 % comes as 44.9997.
    constexpr double grain = 10000;
    const double exact = static_cast<double>(pa_cvolume_max(&volume)) / PA_VOLUME_NORM;
    return {.volume = std::round(exact * grain) / grain, .isMuted = isMuted};
}

void PulseSession::Unref::operator()(pa_context *context) const
{
    pa_context_set_state_callback(context, nullptr, nullptr);
    pa_context_set_subscribe_callback(context, nullptr, nullptr);
    pa_context_disconnect(context);
    pa_context_unref(context);
}

PulseSession::PulseSession(pa_mainloop_api &api, Reports reports)
    : m_api(api)
    , m_reports(std::move(reports))
    , m_socket(api, pulseSocket(), [this] {
        m_attempts = 0;
        tryAgain();
    })
{
    m_socket.start();
    connect();
}

PulseSession::~PulseSession()
{
    stopRetrying();
    m_context.reset();
}

void PulseSession::watch(uint64_t id, AudioDirection direction)
{
    m_watches[id] = {.direction = direction, .device = {}};
    if (!isReady())
        return;
    subscribe();
    find(id);
}

void PulseSession::unwatch(uint64_t id)
{
    m_watches.erase(id);
    if (isReady())
        subscribe();
}

void PulseSession::outputMuted(std::function<void(std::optional<bool>)> answered)
{
    whenReady([this, answered = std::move(answered)] {
        queryDefault(AudioDirection::output, [answered](const std::optional<PulseDevice> &device) {
            answered(device ? std::optional(device->state.isMuted) : std::nullopt);
        });
    });
}

void PulseSession::toggleOutputMuted(std::function<void()> done)
{
    whenReady([this, done = std::move(done)] {
        queryDefault(AudioDirection::output, [this, done](const std::optional<PulseDevice> &device) {
            if (!device) {
                done();
                return;
            }
            const auto toggled = [](pa_context *, int, void *query) { finish(*static_cast<Query *>(query)); };
            query([done](const auto &) { done(); },
                  [&](Query *asked) {
                      return pa_context_set_sink_mute_by_index(m_context.get(), device->index,
                                                               !device->state.isMuted, toggled, asked);
                  });
        });
    });
}

bool PulseSession::isReady() const
{
    return m_context && pa_context_get_state(m_context.get()) == PA_CONTEXT_READY;
}

void PulseSession::connect()
{
    m_context.reset(pa_context_new(&m_api, "Brimlight"));
    pa_context_set_state_callback(
        m_context.get(), [](pa_context *, void *self) { static_cast<PulseSession *>(self)->stateChanged(); },
        this);
    // What fails at once is not told by the callback in every case.
    if (pa_context_connect(m_context.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0 && !m_retry)
        lost();
}

void PulseSession::stateChanged()
{
    const pa_context_state_t state = pa_context_get_state(m_context.get());
    if (state == PA_CONTEXT_READY)
        ready();
    else if (!PA_CONTEXT_IS_GOOD(state))
        lost();
}

void PulseSession::ready()
{
    m_socket.stop();
    stopRetrying();
    m_attempts = 0;
    const auto heardOf = [](pa_context *, pa_subscription_event_type_t event, uint32_t index, void *self) {
        static_cast<PulseSession *>(self)->heard(event, index);
    };
    pa_context_set_subscribe_callback(m_context.get(), heardOf, this);
    subscribe();
    for (const auto &[id, watch] : m_watches)
        find(id);
    for (const auto &work : std::exchange(m_waiting, {}))
        work();
}

void PulseSession::lost()
{
    // Before the next attempt, so that a socket made right after it is noticed.
    m_socket.start();
    abandonQueries();
    for (const auto &[id, watch] : m_watches)
        take(id, std::nullopt);
    tryAgain();
    for (const auto &work : std::exchange(m_waiting, {}))
        work();
}

void PulseSession::tryAgain()
{
    // A socket that is there may just not be listened at yet.
    const bool mayListen = m_attempts == 0 || m_socket.socketExists();
    if (m_socket.isStarted() && (m_attempts >= mostAttempts || !mayListen))
        return;
    const auto pause = std::min(firstPause * (1 << std::min(m_attempts, 10)), longestPause);
    ++m_attempts;
    timeval due;
    pa_timeval_add(pa_gettimeofday(&due), static_cast<pa_usec_t>(std::chrono::microseconds(pause).count()));
    stopRetrying();
    const auto call = [](pa_mainloop_api *api, pa_time_event *event, const timeval *, void *self) {
        api->time_free(event);
        auto *session = static_cast<PulseSession *>(self);
        session->m_retry = nullptr;
        session->connect();
    };
    m_retry = m_api.time_new(&m_api, &due, call, this);
}

void PulseSession::stopRetrying()
{
    if (m_retry)
        m_api.time_free(m_retry);
    m_retry = nullptr;
}

void PulseSession::subscribe()
{
    unsigned mask = m_watches.empty() ? PA_SUBSCRIPTION_MASK_NULL : PA_SUBSCRIPTION_MASK_SERVER;
    for (const auto &[id, watch] : m_watches)
        mask |= watch.direction == AudioDirection::output ? PA_SUBSCRIPTION_MASK_SINK
                                                          : PA_SUBSCRIPTION_MASK_SOURCE;
    if (pa_operation *operation = pa_context_subscribe(
            m_context.get(), static_cast<pa_subscription_mask_t>(mask), nullptr, nullptr))
        pa_operation_unref(operation);
}

void PulseSession::heard(pa_subscription_event_type_t event, uint32_t index)
{
    const unsigned facility = event & PA_SUBSCRIPTION_EVENT_FACILITY_MASK;
    const unsigned kind = event & PA_SUBSCRIPTION_EVENT_TYPE_MASK;
    for (const auto &[id, watch] : m_watches) {
        const unsigned own = watch.direction == AudioDirection::output ? PA_SUBSCRIPTION_EVENT_SINK
                                                                       : PA_SUBSCRIPTION_EVENT_SOURCE;
        const bool isFollowed = facility == own && watch.device && watch.device->index == index;
        if (isFollowed && kind == PA_SUBSCRIPTION_EVENT_CHANGE)
            refresh(id, index);
        else if (facility == PA_SUBSCRIPTION_EVENT_SERVER || isFollowed || (facility == own && !watch.device))
            find(id);
    }
}

void PulseSession::find(uint64_t id)
{
    queryDefault(m_watches[id].direction,
                 [this, id](const std::optional<PulseDevice> &device) { take(id, device); });
}

void PulseSession::refresh(uint64_t id, uint32_t index)
{
    queryIndex(m_watches[id].direction, index, [this, id, index](const std::optional<PulseDevice> &device) {
        const auto watch = m_watches.find(id);
        // The default may be another one by now.
        if (device && watch != m_watches.end() && watch->second.device &&
            watch->second.device->index == index)
            take(id, device);
    });
}

void PulseSession::take(uint64_t id, const std::optional<PulseDevice> &device)
{
    const auto watch = m_watches.find(id);
    // The server also tells of devices that fall asleep or wake up, and of defaults that stay as they are.
    if (watch == m_watches.end() || watch->second.device == device)
        return;
    const std::optional<PulseDevice> before = std::exchange(watch->second.device, device);
    if (!device)
        m_reports.known(id, std::nullopt);
    else if (before && before->isSamePlace(*device))
        m_reports.changed(id, device->state);
    else
        m_reports.known(id, device->state);
}

template<typename Ask>
void PulseSession::query(Answer answered, Ask ask)
{
    Query &asked = m_queries.emplace_back(Query{*this, std::move(answered), std::nullopt});
    if (pa_operation *operation = ask(&asked))
        pa_operation_unref(operation);
    else
        finish(asked);
}

void PulseSession::queryDefault(AudioDirection direction, Answer answered)
{
    query(std::move(answered), [&](Query *asked) {
        return direction == AudioDirection::output
                   ? pa_context_get_sink_info_by_name(m_context.get(), "@DEFAULT_SINK@",
                                                      takeInfo<pa_sink_info>, asked)
                   : pa_context_get_source_info_by_name(m_context.get(), "@DEFAULT_SOURCE@",
                                                        takeInfo<pa_source_info>, asked);
    });
}

void PulseSession::queryIndex(AudioDirection direction, uint32_t index, Answer answered)
{
    query(std::move(answered), [&](Query *asked) {
        return direction == AudioDirection::output
                   ? pa_context_get_sink_info_by_index(m_context.get(), index, takeInfo<pa_sink_info>, asked)
                   : pa_context_get_source_info_by_index(m_context.get(), index, takeInfo<pa_source_info>,
                                                         asked);
    });
}

void PulseSession::whenReady(std::function<void()> work)
{
    const pa_context_state_t state = pa_context_get_state(m_context.get());
    if (PA_CONTEXT_IS_GOOD(state) && state != PA_CONTEXT_READY)
        m_waiting.push_back(std::move(work));
    else
        work();
}

void PulseSession::finish(Query &query)
{
    std::list<Query> &queries = query.session.m_queries;
    const auto own = std::ranges::find_if(queries, [&](const Query &each) { return &each == &query; });
    const Answer answered = std::move(query.answered);
    const std::optional<PulseDevice> found = query.found;
    queries.erase(own);
    answered(found);
}

void PulseSession::abandonQueries()
{
    for (const Query &query : std::exchange(m_queries, {}))
        query.answered(std::nullopt);
}

template<typename Info>
void PulseSession::takeInfo(pa_context *, const Info *info, int end, void *query)
{
    auto &asked = *static_cast<Query *>(query);
    if (end != 0)
        finish(asked);
    else if (isDevice(*info))
        asked.found = PulseDevice{.index = info->index,
                                  .port = info->active_port ? info->active_port->name : "",
                                  .state = pulseState(info->volume, info->mute != 0)};
}

} // namespace brimlight
