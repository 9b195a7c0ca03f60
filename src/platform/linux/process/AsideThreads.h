#pragma once

#include <functional>
#include <memory>

namespace brimlight {

/// Threads for work that may take long or never come back: nothing waits for them, neither other work nor the
/// end of the process. A thread that has nothing to do for a while ends.
///
/// Belongs to one thread.
class AsideThreads
{
public:
    AsideThreads();
    /// What is under way goes on by itself; its `done` does not run any more.
    ~AsideThreads();
    AsideThreads(const AsideThreads &) = delete;
    AsideThreads &operator=(const AsideThreads &) = delete;

    /// `work` runs at once on a thread of its own, then `done` on the loop of the thread that called this.
    void run(std::function<void()> work, std::function<void()> done);
    /// No work is under way: nobody uses what it was given.
    bool isIdle() const;

private:
    struct State;
    static void serve(const std::shared_ptr<State> &state);

    /// Shared with the threads, which may outlive this object.
    std::shared_ptr<State> m_state;
};

} // namespace brimlight
