#pragma once

#include "platform/UnixSignals.h"

#include <QHash>
#include <QSocketNotifier>

#include <memory>

namespace brimlight {

/// Signals through a pipe to the event loop. One per process, since signal dispositions are the process's
/// own.
class PipeUnixSignals : public UnixSignals
{
public:
    PipeUnixSignals() = default;
    ~PipeUnixSignals() override;

    bool install(int signal, const std::function<void()> &action) override;

private:
    bool openPipe();
    void drain();

    std::unique_ptr<QSocketNotifier> m_notifier;
    QHash<int, std::function<void()>> m_actions;
    int m_readEnd = -1;
};

} // namespace brimlight
