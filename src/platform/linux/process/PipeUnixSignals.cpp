#include "platform/linux/process/PipeUnixSignals.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace brimlight {
namespace {

// A signal handler reaches nothing but statics.
std::atomic<int> writeEnd{-1};
static_assert(std::atomic<int>::is_always_lock_free);

void forward(int signal)
{
    const int saved = errno;
    const auto byte = static_cast<unsigned char>(signal);
    // A full pipe loses the signal, as two pending signals of a kind are one anyway.
    [[maybe_unused]] const auto written = ::write(writeEnd.load(), &byte, 1);
    errno = saved;
}

} // namespace

PipeUnixSignals::~PipeUnixSignals()
{
    for (auto it = m_actions.constBegin(); it != m_actions.constEnd(); ++it)
        ::signal(it.key(), SIG_DFL);
    m_notifier.reset();
    if (m_readEnd >= 0) {
        ::close(writeEnd.exchange(-1));
        ::close(m_readEnd);
    }
}

bool PipeUnixSignals::install(int signal, const std::function<void()> &action)
{
    if (!openPipe())
        return false;
    m_actions.insert(signal, action);
    struct sigaction disposition = {};
    disposition.sa_handler = forward;
    disposition.sa_flags = SA_RESTART;
    sigemptyset(&disposition.sa_mask);
    return ::sigaction(signal, &disposition, nullptr) == 0;
}

bool PipeUnixSignals::openPipe()
{
    if (m_notifier)
        return true;
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return false;
    m_readEnd = ends[0];
    writeEnd = ends[1];
    m_notifier = std::make_unique<QSocketNotifier>(m_readEnd, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { drain(); });
    return true;
}

void PipeUnixSignals::drain()
{
    unsigned char byte = 0;
    while (::read(m_readEnd, &byte, 1) == 1) {
        if (const auto action = m_actions.value(byte))
            action();
    }
}

} // namespace brimlight
