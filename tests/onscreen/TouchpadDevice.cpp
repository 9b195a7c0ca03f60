#include "TouchpadDevice.h"

#include "Hand.h"
#include "XSession.h"

#include <xorg/xf86-input-inputtest-protocol.h>

#include <cstring>
#include <stdexcept>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace brimlight::onscreen {

TouchpadDevice::TouchpadDevice(const XSession &session)
    : m_socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    const QByteArray path = session.touchpadSocket().toUtf8();
    std::strncpy(address.sun_path, path.constData(), sizeof address.sun_path - 1);
    if (::connect(m_socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0)
        throw std::runtime_error("the server has no touchpad");
    send(xf86ITEventClientVersion{.header = {},
                                  .major = XF86IT_PROTOCOL_VERSION_MAJOR,
                                  .minor = XF86IT_PROTOCOL_VERSION_MINOR},
         XF86IT_EVENT_CLIENT_VERSION);
    waitForAnswer();
    const XClient x(session.display());
    Hand(x).useTouchpad("touchpad");
}

TouchpadDevice::~TouchpadDevice()
{
    ::close(m_socket);
}

void TouchpadDevice::scroll(double dx, double dy) const
{
    constexpr int horizontal = 2;
    constexpr int vertical = 3;
    xf86ITEventMotion motion = {};
    motion.valuators.mask[0] = 1 << horizontal | 1 << vertical;
    // Values grow towards the lower right, where the content moves the other way.
    motion.valuators.valuators[horizontal] = -dx * unitsPerPoint;
    motion.valuators.valuators[vertical] = -dy * unitsPerPoint;
    send(motion, XF86IT_EVENT_MOTION);
    send(xf86ITEventWaitForSync{}, XF86IT_EVENT_WAIT_FOR_SYNC);
    waitForAnswer();
}

void TouchpadDevice::scrollBy(double dx, double dy) const
{
    constexpr int steps = 10;
    for (int i = 0; i < steps; ++i)
        scroll(dx / steps, dy / steps);
}

template<typename Message>
void TouchpadDevice::send(Message message, int type) const
{
    message.header.length = sizeof message;
    message.header.type = static_cast<xf86ITEventType>(type);
    if (::send(m_socket, &message, sizeof message, MSG_NOSIGNAL) != static_cast<ssize_t>(sizeof message))
        throw std::runtime_error("the server has let go of the touchpad");
}

void TouchpadDevice::waitForAnswer() const
{
    xf86ITResponseHeader header = {};
    if (::recv(m_socket, &header, sizeof header, MSG_WAITALL) != static_cast<ssize_t>(sizeof header))
        throw std::runtime_error("the server does not answer for the touchpad");
    std::vector<char> rest(header.length - sizeof header);
    if (!rest.empty())
        ::recv(m_socket, rest.data(), rest.size(), MSG_WAITALL);
}

} // namespace brimlight::onscreen
