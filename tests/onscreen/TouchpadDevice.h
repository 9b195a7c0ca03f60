#pragma once

#include "XClient.h"

namespace brimlight::onscreen {

class XSession;

/// The touchpad of a desktop that has one, fed at the driver's side: what the program hears of it comes from
/// a device of the server.
class TouchpadDevice
{
public:
    /// The units that the driver counts as one point, and its wheel click as fifteen.
    static constexpr double unitsPerPoint = 8;

    /// Throws when the server does not answer.
    explicit TouchpadDevice(const XSession &session);
    ~TouchpadDevice();
    TouchpadDevice(const TouchpadDevice &) = delete;
    TouchpadDevice &operator=(const TouchpadDevice &) = delete;

    /// Two fingers move, as far as the content shall move right and down, in points. Returns when the server
    /// has taken it.
    void scroll(double dx, double dy) const;
    /// The same in several steps.
    void scrollBy(double dx, double dy) const;

private:
    template<typename Message>
    void send(Message message, int type) const;
    void waitForAnswer() const;

    int m_socket;
};

} // namespace brimlight::onscreen
