#pragma once

#include "platform/Geometry.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace brimlight {

/// One display, in logical coordinates.
struct Screen
{
    QString localizedName;
    Rect frame;
    /// `frame` without what other panels reserve.
    Rect visibleFrame;
    /// How far the camera housing reaches down from the top edge; 0 without one.
    double safeAreaTop = 0;
    /// What is left of the top of the display beside the housing.
    std::optional<Rect> auxiliaryTopLeftArea;
    std::optional<Rect> auxiliaryTopRightArea;

    bool operator==(const Screen &) const = default;
};

/// The displays that are connected now.
class Screens
{
public:
    virtual ~Screens() = default;

    virtual std::vector<Screen> screens() const = 0;
    /// The screen the user calls the main one; absent when there is none at all.
    virtual std::optional<Screen> mainScreen() const = 0;
    /// Calls back after screens came, went or changed size or work area, and after a switch of workspace.
    virtual void observeChanges(std::function<void()> changed) = 0;
};

} // namespace brimlight
