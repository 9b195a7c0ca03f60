#include "app/IdleMemory.h"

#include "notch/NotchViewModel.h"

namespace brimlight {

IdleMemory::IdleMemory(NotchViewModel &viewModel, Scheduler &scheduler, std::function<void()> giveBack)
{
    connect(&viewModel, &NotchViewModel::isExpandedChanged, this,
            [this, &viewModel, &scheduler, giveBack = std::move(giveBack)] {
                if (viewModel.isExpanded())
                    m_work.cancel();
                else
                    m_work.schedule(scheduler, delay, giveBack);
            });
}

} // namespace brimlight
