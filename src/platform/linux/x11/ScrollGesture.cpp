#include "platform/linux/x11/ScrollGesture.h"

namespace brimlight {

void ScrollGesture::step(double deltaX, double deltaY, Point position)
{
    const auto phase = m_end.isPending() ? ScrollEvent::Phase::changed : ScrollEvent::Phase::began;
    m_end.schedule(m_scheduler, silence, [this, position] {
        m_deliver({.phase = ScrollEvent::Phase::ended, .position = position});
    });
    m_deliver({.phase = phase, .deltaX = deltaX, .deltaY = deltaY, .position = position});
}

} // namespace brimlight
