#include "notch/NotchContainer.h"

#include <cmath>

namespace brimlight {
namespace {

void call(const std::function<void()> &callback)
{
    if (callback)
        callback();
}

} // namespace

NotchContainer::NotchContainer(OverlaySurface &surface)
{
    surface.setEvents({.entered = [this] { call(m_callbacks.onEnter); },
                       .exited = [this] { call(m_callbacks.onExit); },
                       .tapped = [this] { call(m_callbacks.onTap); },
                       .menuRequested = [this] { call(m_callbacks.onMenu); },
                       .escapePressed = [this] { call(m_callbacks.onEscape); },
                       .scrolled = [this](const ScrollEvent &event) { return scrolled(event); },
                       .backdropChanged = [this] { call(m_callbacks.onBackdropChanged); }});
}

bool NotchContainer::scrolled(const ScrollEvent &event)
{
    if (event.phase == ScrollEvent::Phase::began) {
        m_gesture = Gesture::undecided;
        m_scrollable = event.scrollable;
    }
    if (m_gesture == Gesture::undecided)
        decide(event);
    const SwipeRecognizer::Outcome outcome = m_swipes.handle(event);
    if (m_gesture == Gesture::scrolls)
        return false;
    if (outcome.swipe)
        swipe(*outcome.swipe);
    return outcome.consumed;
}

void NotchContainer::decide(const ScrollEvent &event)
{
    const double horizontal = std::abs(event.deltaX);
    const double vertical = std::abs(event.deltaY);
    if (horizontal == 0 && vertical == 0)
        return;
    const bool scrolls = horizontal > vertical ? m_scrollable.horizontal : m_scrollable.vertical;
    m_gesture = scrolls ? Gesture::scrolls : Gesture::swipes;
}

void NotchContainer::swipe(SwipeRecognizer::Swipe swipe)
{
    const bool isHorizontal = swipe == SwipeRecognizer::Swipe::left || swipe == SwipeRecognizer::Swipe::right;
    // The fingers have wandered off into a direction that scrolls here: neither was meant.
    if (isHorizontal ? m_scrollable.horizontal : m_scrollable.vertical)
        return;
    switch (swipe) {
    case SwipeRecognizer::Swipe::left:
        call(m_callbacks.onSwipeLeft);
        break;
    case SwipeRecognizer::Swipe::right:
        call(m_callbacks.onSwipeRight);
        break;
    case SwipeRecognizer::Swipe::up:
        call(m_callbacks.onSwipeUp);
        break;
    case SwipeRecognizer::Swipe::down:
        call(m_callbacks.onSwipeDown);
        break;
    }
}

} // namespace brimlight
