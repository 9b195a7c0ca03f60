#pragma once

#include <pulse/mainloop.h>

#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace brimlight {

/// libpulse's main loop on a thread of its own: reaching a server reads files and may ask the X server, and
/// none of that may hold up the panel. It sleeps while nothing happens.
class PulseLoop
{
public:
    PulseLoop();
    ~PulseLoop();
    PulseLoop(const PulseLoop &) = delete;
    PulseLoop &operator=(const PulseLoop &) = delete;

    /// Starts the thread; what has been posted before runs first. `end` is the last thing to run on it.
    void start(std::function<void()> end);
    /// Runs `work` on the loop's thread, in the order of the calls. From any thread.
    void post(std::function<void()> work);
    /// For the loop's thread.
    pa_mainloop_api *api() const { return pa_mainloop_get_api(m_loop.get()); }

private:
    struct Free
    {
        void operator()(pa_mainloop *loop) const { pa_mainloop_free(loop); }
    };

    void run(const std::stop_token &stop);
    void runPosted();

    std::unique_ptr<pa_mainloop, Free> m_loop;
    std::mutex m_mutex;
    std::vector<std::function<void()>> m_posted;
    std::function<void()> m_end;
    std::jthread m_thread;
};

} // namespace brimlight
