#pragma once

#include "notch/SwipeRecognizer.h"

#include <functional>

namespace brimlight {

/// The content side of the surface's pointer: entries, exits, clicks on the collapsed strip and
/// swipes; and Escape while it is watched for.
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
    bool scrolled(const ScrollEvent &event);

    Callbacks m_callbacks;
    SwipeRecognizer m_swipes;
};

} // namespace brimlight
