#include "platform/linux/x11/ScrollGesture.h"

namespace brimlight {

bool ScrollGesture::step(double deltaX, double deltaY)
{
    const auto phase = isUnderWay() ? ScrollEvent::Phase::changed : ScrollEvent::Phase::began;
    m_end.schedule(m_scheduler, silence, [this] { m_deliver({.phase = ScrollEvent::Phase::ended}); });
    return m_deliver({.phase = phase, .deltaX = deltaX, .deltaY = deltaY});
}

} // namespace brimlight
