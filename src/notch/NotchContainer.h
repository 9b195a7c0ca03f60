#pragma once

#include "notch/SwipeRecognizer.h"

#include <functional>

namespace brimlight {

/// The content side of the surface's pointer: entries, exits, clicks on the collapsed strip and
/// swipes; and Escape while it is watched for. A touchpad scrolls what can be scrolled under the pointer; its
/// first motion decides for the whole gesture whether it is that or a swipe.
class NotchContainer
{
public:
    struct Callbacks
    {
        std::function<void()> onEnter;
        std::function<void()> onExit;
        std::function<void()> onSwipeLeft;
        std::function<void()> onSwipeRight;
        std::function<void()> onSwipeDown;
        std::function<void()> onSwipeUp;
        std::function<void()> onTap;
        std::function<void()> onMenu;
        std::function<void()> onEscape;
        /// What lies behind the surface is another kind of thing from now on.
        std::function<void()> onBackdropChanged;
    };

    explicit NotchContainer(OverlaySurface &surface);

    void setCallbacks(Callbacks callbacks) { m_callbacks = std::move(callbacks); }

private:
    enum class Gesture { undecided, scrolls, swipes };

    bool scrolled(const ScrollEvent &event);
    void decide(const ScrollEvent &event);
    void swipe(SwipeRecognizer::Swipe swipe);

    Callbacks m_callbacks;
    SwipeRecognizer m_swipes;
    Gesture m_gesture = Gesture::undecided;
    /// What could be scrolled where the gesture began.
    ScrollAxes m_scrollable;
};

} // namespace brimlight
