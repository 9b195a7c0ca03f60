#pragma once

#include "platform/OverlaySurface.h"

#include <optional>

namespace brimlight {

/// Turns two-finger touchpad motion into at most one swipe per gesture.
class SwipeRecognizer
{
public:
    enum class Swipe { left, right, up, down };

    struct Outcome
    {
        /// The event belongs to a gesture and must not reach the content.
        bool consumed = false;
        std::optional<Swipe> swipe;
    };

    /// Motion beyond this, in points, is a swipe.
    static constexpr double threshold = 28.0;

    Outcome handle(const ScrollEvent &event);

private:
    void reset();
    std::optional<Swipe> evaluate();

    double m_accumX = 0;
    double m_accumY = 0;
    bool m_fired = false;
};

} // namespace brimlight
