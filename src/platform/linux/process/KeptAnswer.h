#pragma once

#include "platform/linux/process/BoundedRead.h"

#include <mutex>

namespace brimlight {

/// The last answer of something that may be slow or hang: asking takes as long as the `BoundedRead` lets it,
/// and what comes too late is the answer of a later call. Copies share the answer.
template<typename T>
class KeptAnswer
{
public:
    /// What `body` returns or, while that takes too long, returned last; a T made by default before there is
    /// an answer. `body` runs on another thread and owns all that it uses.
    T ask(BoundedRead &reads, const QString &key, std::function<T()> body)
    {
        reads.call<bool>(key, [kept = m_kept, body = std::move(body)] {
            T answer = body();
            const std::scoped_lock lock(kept->mutex);
            kept->answer = std::move(answer);
            return std::optional(true);
        });
        const std::scoped_lock lock(m_kept->mutex);
        return m_kept->answer;
    }

private:
    struct Kept
    {
        std::mutex mutex;
        T answer{};
    };
    std::shared_ptr<Kept> m_kept = std::make_shared<Kept>();
};

} // namespace brimlight
