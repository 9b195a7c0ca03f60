#include "notch/Dismissal.h"

#include "notch/NotchPanel.h"
#include "notch/NotchViewModel.h"
#include "platform/OverlaySurface.h"

namespace brimlight {

Dismissal::Dismissal(NotchViewModel &viewModel, NotchPanel &panel, OverlaySurface &surface)
{
    connect(&viewModel, &NotchViewModel::dismissed, &panel, &NotchPanel::removePopovers);
    const auto dismiss = [&viewModel] { viewModel.dismiss(); };
    connect(&viewModel, &NotchViewModel::isExpandedChanged, this, dismiss);
    connect(&viewModel, &NotchViewModel::showSettingsChanged, this, dismiss);
    connect(&viewModel, &NotchViewModel::currentPageChanged, this, dismiss);
    connect(&viewModel, &NotchViewModel::onboardingCompletedChanged, this, dismiss);
    connect(&viewModel, &NotchViewModel::isDraggingChanged, this,
            [&viewModel, &surface] { surface.setWatchesEscape(viewModel.isDragging()); });
}

} // namespace brimlight
