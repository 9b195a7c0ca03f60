#include "platform/linux/audio/PulseLoop.h"

#include <utility>

namespace brimlight {

PulseLoop::PulseLoop()
    : m_loop(pa_mainloop_new())
{
}

PulseLoop::~PulseLoop()
{
    m_thread.request_stop();
    pa_mainloop_wakeup(m_loop.get());
}

void PulseLoop::start(std::function<void()> end)
{
    m_end = std::move(end);
    m_thread = std::jthread([this](const std::stop_token &stop) { run(stop); });
}

void PulseLoop::post(std::function<void()> work)
{
    const std::scoped_lock lock(m_mutex);
    m_posted.push_back(std::move(work));
    pa_mainloop_wakeup(m_loop.get());
}

void PulseLoop::run(const std::stop_token &stop)
{
    while (!stop.stop_requested()) {
        runPosted();
        if (pa_mainloop_iterate(m_loop.get(), 1, nullptr) < 0)
            break;
    }
    m_end();
}

void PulseLoop::runPosted()
{
    std::vector<std::function<void()>> work;
    {
        const std::scoped_lock lock(m_mutex);
        work.swap(m_posted);
    }
    for (const auto &each : work)
        each();
}

} // namespace brimlight
