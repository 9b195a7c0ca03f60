#pragma once

#include "Waiting.h"
#include "XClient.h"

namespace brimlight::onscreen {

/// The hand of a person on mouse, touchpad and keyboard.
class Hand
{
public:
    explicit Hand(const XClient &x)
        : m_x(x)
    {
    }

    /// The server waits for `after` before it carries the motion out: what must be quick does not depend on
    /// how busy the test is.
    void moveTo(QPoint point, milliseconds after = milliseconds(0)) const;
    /// Button 1 is the left one, 3 the right one.
    void clickAt(QPoint point, uint8_t button = 1) const;
    /// With the left button, in the small steps of a hand.
    void drag(QPoint from, QPoint to) const;
    /// The same without letting go, and letting go.
    void dragAndHold(QPoint from, QPoint to) const;
    void release() const;
    /// Wheel steps without a pause: button 4 is up, 5 down, 6 left, 7 right.
    void scroll(uint8_t button, int steps) const;
    void typeKey(uint32_t keysym) const;
    /// While the other key is held.
    void typeKeyWith(uint32_t modifier, uint32_t keysym) const;

    /// From now on a device, by default the one that this hand moves, passes for a touchpad.
    void useTouchpad(const char *device = "Virtual core XTEST pointer") const;

private:
    void fake(uint8_t type, uint8_t detail, QPoint point = {}, milliseconds after = milliseconds(0)) const;
    uint8_t keycode(uint32_t keysym) const;

    const XClient &m_x;
};

} // namespace brimlight::onscreen
