#include "notch/SwipeRecognizer.h"

#include <cmath>

namespace brimlight {

SwipeRecognizer::Outcome SwipeRecognizer::handle(const ScrollEvent &event)
{
    switch (event.phase) {
    case ScrollEvent::Phase::began:
    case ScrollEvent::Phase::ended:
    case ScrollEvent::Phase::cancelled:
        reset();
        return {.consumed = true, .swipe = std::nullopt};
    case ScrollEvent::Phase::changed:
        m_accumX += event.deltaX;
        m_accumY += event.deltaY;
        return {.consumed = true, .swipe = m_fired ? std::nullopt : evaluate()};
    case ScrollEvent::Phase::none:
        break;
    }
    return {};
}

void SwipeRecognizer::reset()
{
    m_accumX = 0;
    m_accumY = 0;
    m_fired = false;
}

std::optional<SwipeRecognizer::Swipe> SwipeRecognizer::evaluate()
{
    const double horizontal = std::abs(m_accumX);
    const double vertical = std::abs(m_accumY);
    // Horizontal wins only when it is strictly the larger motion.
    if (horizontal > threshold && vertical < horizontal) {
        m_fired = true;
        return m_accumX < 0 ? Swipe::left : Swipe::right;
    }
    if (vertical > threshold) {
        m_fired = true;
        return m_accumY < 0 ? Swipe::up : Swipe::down;
    }
    return std::nullopt;
}

} // namespace brimlight
