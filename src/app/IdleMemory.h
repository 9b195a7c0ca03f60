#pragma once

#include "platform/WorkItem.h"

#include <QObject>

namespace brimlight {

class NotchViewModel;

/// Gives freed memory back to the system once the panel has been collapsed for a while: a collapsed panel
/// stays so for most of the day, and what the last opening took and freed would stay with the process.
class IdleMemory : public QObject
{
public:
    /// Long enough for the collapse to be drawn and for a pointer that comes back.
    static constexpr std::chrono::seconds delay{3};

    IdleMemory(NotchViewModel &viewModel, Scheduler &scheduler, std::function<void()> giveBack);

private:
    WorkItem m_work;
};

} // namespace brimlight
