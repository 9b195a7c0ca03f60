#pragma once

#include <QObject>

namespace brimlight {

class NotchPanel;
class NotchViewModel;
class OverlaySurface;

/// Ends what must not outlive the place where it began: menus, popovers and the drag of a tile go when the
/// panel closes, turns the page or shows something else. While a tile is dragged Escape is asked of the
/// surface, since the keyboard is not with the panel then.
class Dismissal : public QObject
{
public:
    /// Made before anything that follows the view model, so that a drag is given up before its tile is gone.
    Dismissal(NotchViewModel &viewModel, NotchPanel &panel, OverlaySurface &surface);
};

} // namespace brimlight
