#include "notch/NotchContainer.h"

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
    const SwipeRecognizer::Outcome outcome = m_swipes.handle(event);
    if (outcome.swipe) {
        switch (*outcome.swipe) {
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
    return outcome.consumed;
}

} // namespace brimlight
